// SPDX-License-Identifier: MIT
#include "info_box.h"

#include <QPainter>
#include <QPainterPath>

#include "canvas.h"
#include "lettering.h"
#include "noise.h"
#include "seeds.h"

namespace orrerix {

namespace {

constexpr double BandWidth = 541;
constexpr double BandHeight = 41;

void DrawBandPlate(QPainter& painter) {
  QLinearGradient steel(0, 0, 0, BandHeight);
  steel.setColorAt(0.00, QColor(46, 84, 124));
  steel.setColorAt(0.12, QColor(20, 44, 84));
  steel.setColorAt(0.50, QColor(8, 22, 60));
  steel.setColorAt(0.52, QColor(4, 14, 48));
  steel.setColorAt(1.00, QColor(14, 34, 74));
  painter.fillRect(QRectF(0, 0, BandWidth, BandHeight), steel);
  for (int y = 3; y < static_cast<int>(BandHeight) - 2; y += 2) {
    painter.fillRect(QRectF(0, y, BandWidth, 1), QColor(120, 190, 255, 9));
  }
}

// The lighter trapezium that the name stands on.
void DrawShield(QPainter& painter) {
  QPainterPath shield({148, 2});
  shield.lineTo(393, 2);
  shield.lineTo(372, BandHeight - 4);
  shield.lineTo(169, BandHeight - 4);
  shield.closeSubpath();
  QLinearGradient glow(0, 0, 0, BandHeight);
  glow.setColorAt(0, QColor(50, 120, 170, 140));
  glow.setColorAt(1, QColor(10, 40, 90, 60));
  painter.setPen(QPen(QColor(80, 170, 210, 150), 1));
  painter.setBrush(glow);
  painter.drawPath(shield);
}

// A measuring scale that runs outwards from `left` and fades.
void DrawScale(QPainter& painter, double left, double step) {
  for (int i = 0; i < 22; ++i) {
    const double length = i % 5 == 0 ? 9 : 4;
    painter.setPen(QPen(QColor(110, 200, 235, 170 - 7 * i), 1));
    const double x = left + i * step;
    painter.drawLine(QPointF(x, 20.5 - length / 2), QPointF(x, 20.5 + length / 2));
  }
}

void DrawName(QPainter& painter) {
  const QPainterPath name = Lettering(QStringLiteral("ORRERIX"), 16, 11);
  const double left = (BandWidth - name.boundingRect().width()) / 2;
  painter.translate(left, 11.5);
  painter.setBrush(Qt::NoBrush);
  painter.strokePath(name, QPen(QColor(60, 180, 240, 60), 6));
  painter.strokePath(name, QPen(QColor(208, 238, 252), 2.1));
  painter.translate(-left, -11.5);
}

void DrawBandLines(QPainter& painter) {
  QLinearGradient line(0, 0, BandWidth, 0);
  line.setColorAt(0, QColor(60, 140, 190));
  line.setColorAt(0.5, QColor(190, 240, 255));
  line.setColorAt(1, QColor(60, 140, 190));
  painter.fillRect(QRectF(0, 0, BandWidth, 1), line);
  painter.fillRect(QRectF(0, BandHeight - 2, BandWidth, 1), line);
  painter.fillRect(QRectF(0, BandHeight - 1, BandWidth, 1), QColor(2, 8, 30));
}

// The sky at the back of the info box, darker downwards. The box may be far wider than the picture,
// so there is nothing round in it that would be drawn out: gas and orbits bear it.
Rgb Backdrop(Spot at, const Noise& veil) {
  const double gas = Smooth(-0.4, 0.9, veil.Warped({at.X / 130, at.Y / 130, 0.2}, 6, 1.0));
  const double down = at.Y / 400;
  const Rgb base = Mix(FromScreen(0x06103A), FromScreen(0x020824), down);
  return base + FromScreen(0x1A4C8C) * (0.22 * gas * (1.1 - down));
}

void DrawOrbits(QPainter& painter) {
  painter.setBrush(Qt::NoBrush);
  for (int i = 0; i < 7; ++i) {
    const double radius = 40 + 46 * i;
    painter.setPen(QPen(QColor(90, 170, 230, 34 - 3 * i), i % 2 == 0 ? 1.4 : 0.7));
    painter.drawEllipse(QPointF(300, 0), radius, radius);
  }
}

}  // namespace

QImage PaintHeadBand(int scale) {
  QImage image(541 * scale, 41 * scale, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  DrawBandPlate(painter);
  DrawShield(painter);
  DrawScale(painter, 405.5, 6);
  DrawScale(painter, 135.5, -6);
  DrawName(painter);
  DrawBandLines(painter);
  return image;
}

QImage PaintInfoBackground(int scale) {
  Canvas canvas(300, 400, scale);
  const Noise veil(PanelSeed);
  canvas.Fill([&veil](Spot at) { return Backdrop(at, veil); });
  QImage image = canvas.Expose();
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  DrawOrbits(painter);
  return image;
}

}  // namespace orrerix
