// SPDX-License-Identifier: MIT
#include "logo.h"

#include <QPainterPath>

#include "logo_parts.h"

namespace orrerix {

namespace {

QPainterPath Frame() {
  QPainterPath frame;
  frame.addRoundedRect(QRectF(1, 1, LogoWidth - 2, LogoHeight - 2), 14, 14);
  return frame;
}

QPainterPath LowerLeft() {
  QPainterPath half({0, 0});
  half.lineTo(LogoWidth, LogoHeight);
  half.lineTo(0, LogoHeight);
  half.closeSubpath();
  return half;
}

void DrawSeam(QPainter& painter) {
  const QPointF corner(LogoWidth, LogoHeight);
  painter.setPen(QPen(QColor(20, 12, 4, 170), 4));
  painter.drawLine(QPointF(0, 0), corner);
  QLinearGradient gold(QPointF(0, 0), corner);
  gold.setColorAt(0, QColor(150, 110, 50));
  gold.setColorAt(0.5, QColor(255, 236, 180));
  gold.setColorAt(1, QColor(150, 110, 50));
  painter.setPen(QPen(gold, 1.8));
  painter.drawLine(QPointF(0, 0), corner);
}

}  // namespace

QImage PaintLogo(int scale) {
  QImage image(LogoWidth * scale, LogoHeight * scale, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  const QPainterPath frame = Frame();
  painter.setClipPath(frame);
  painter.drawImage(QRectF(0, 0, LogoWidth, LogoHeight), PaintLogoSky(scale));
  painter.setClipPath(frame.intersected(LowerLeft()));
  DrawLogoMachine(painter);
  painter.setClipPath(frame);
  DrawSeam(painter);
  painter.setClipping(false);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(176, 140, 76), 2));
  painter.drawPath(frame);
  return image;
}

}  // namespace orrerix
