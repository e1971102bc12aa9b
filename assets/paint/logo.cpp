// SPDX-License-Identifier: MIT
#include "logo.h"

#include <QPainterPath>

#include "logo_parts.h"

namespace orrerix {

namespace {

// The halves are two buttons on one plate, which is seen between them.
constexpr QColor Plate(3, 6, 22);
constexpr double HalfGap = 3;
constexpr double EdgeWidth = 1.6;

QPainterPath Frame() {
  QPainterPath frame;
  frame.addRoundedRect(QRectF(1, 1, LogoWidth - 2, LogoHeight - 2), 12, 12);
  return frame;
}

QPainterPath LowerLeft() {
  QPainterPath half({0, HalfGap});
  half.lineTo(LogoWidth, LogoHeight + HalfGap);
  half.lineTo(0, LogoHeight + HalfGap);
  half.closeSubpath();
  return half.intersected(Frame());
}

QPainterPath UpperRight() {
  QPainterPath half({0, -HalfGap});
  half.lineTo(LogoWidth, LogoHeight - HalfGap);
  half.lineTo(LogoWidth, -HalfGap);
  half.closeSubpath();
  return half.intersected(Frame());
}

void DrawEdge(QPainter& painter, const QPainterPath& half, QColor light, QColor shade) {
  QLinearGradient metal(0, 0, LogoWidth, LogoHeight);
  metal.setColorAt(0, shade);
  metal.setColorAt(0.5, light);
  metal.setColorAt(1, shade);
  painter.setClipping(false);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(metal, EdgeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(half);
}

// The sign of a link: an arrow that leaves a corner, on a dark disc.
void DrawLinkSign(QPainter& painter, QPointF middle, QColor color) {
  painter.setPen(QPen(color, 1.2));
  painter.setBrush(QColor(4, 8, 22, 190));
  painter.drawEllipse(middle, 10, 10);
  painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF tip = middle + QPointF(4, -4);
  painter.drawLine(middle + QPointF(-4, 4), tip);
  painter.drawPolyline(QPolygonF({tip + QPointF(-6, 0), tip, tip + QPointF(0, 6)}));
}

}  // namespace

QImage PaintLogo(int scale) {
  QImage image(LogoWidth * scale, LogoHeight * scale, QImage::Format_RGB32);
  image.fill(Plate);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  painter.setClipPath(UpperRight());
  painter.drawImage(QRectF(0, 0, LogoWidth, LogoHeight), PaintLogoSky(scale));
  painter.setClipPath(LowerLeft());
  DrawLogoMachine(painter);
  const QColor brass(255, 226, 156);
  const QColor sky(190, 226, 255);
  DrawEdge(painter, LowerLeft(), brass, QColor(150, 110, 50));
  DrawEdge(painter, UpperRight(), sky, QColor(70, 110, 180));
  DrawLinkSign(painter, {22, LogoHeight - 22}, brass);
  DrawLinkSign(painter, {LogoWidth - 22, 22}, sky);
  return image;
}

}  // namespace orrerix
