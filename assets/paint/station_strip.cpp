// SPDX-License-Identifier: MIT
#include "station_strip.h"

#include <QPainter>
#include <QPainterPath>

#include "nebula.h"
#include "seeds.h"
#include "stars.h"

namespace orrerix {

namespace {

constexpr int StripWidth = 80;
constexpr int StripHeight = 600;
constexpr QColor Ground(0, 0, 64);  // of the station window

// Gas that is densest in the middle of the height.
QImage PaintSpace(int scale) {
  Canvas canvas(StripWidth, StripHeight, scale);
  const Nebula nebula(StationSeed);
  Palette palette = PaletteAt({8.9, 10.3});
  palette.Bright = 1;
  canvas.Fill([&](Spot at) {
    const GridPoint place{at.X / 130, at.Y / 130};
    const double middle = Smooth(0, 260, at.Y) * (1 - Smooth(340, 600, at.Y));
    return FromScreen(0x03062A) +
           nebula.Light(place, palette, {0.9, 7, 0.5}) * (0.15 + 0.5 * middle);
  });
  SplitMix64 dice(StationSeed);
  DrawStars(canvas, {7, 0.04, 0.8, 1.3}, dice);
  return canvas.Expose();
}

// One bay of the lattice between the two posts.
void DrawBay(QPainter& painter, double top, double bottom) {
  constexpr double left = 7;
  constexpr double right = StripWidth - 8;
  painter.drawLine(QPointF(left, top), QPointF(right, bottom));
  painter.drawLine(QPointF(right, top), QPointF(left, bottom));
  painter.drawLine(QPointF(left, bottom), QPointF(right, bottom));
}

void DrawMast(QPainter& painter) {
  constexpr double bay = 72;
  painter.setPen(QPen(QColor(130, 170, 230, 46), 1.4));
  for (double top = 4; top < StripHeight; top += bay) DrawBay(painter, top, top + bay);
  painter.setPen(QPen(QColor(10, 20, 60, 160), 5));
  painter.drawLine(QPointF(7, 0), QPointF(7, StripHeight));
  painter.drawLine(QPointF(StripWidth - 8, 0), QPointF(StripWidth - 8, StripHeight));
  painter.setPen(QPen(QColor(110, 150, 215, 120), 2));
  painter.drawLine(QPointF(7, 0), QPointF(7, StripHeight));
  painter.drawLine(QPointF(StripWidth - 8, 0), QPointF(StripWidth - 8, StripHeight));
  painter.setPen(Qt::NoPen);
  for (double top = 4; top < StripHeight; top += bay) {
    painter.setBrush(QColor(255, 190, 90, 190));
    painter.drawEllipse(QPointF(7, top), 1.6, 1.6);
    painter.setBrush(QColor(90, 220, 255, 190));
    painter.drawEllipse(QPointF(StripWidth - 8.0, top), 1.6, 1.6);
  }
}

void DrawFade(QPainter& painter) {
  QLinearGradient fade(0, StripHeight * 0.72, 0, StripHeight);
  QColor clear = Ground;
  clear.setAlpha(0);
  fade.setColorAt(0, clear);
  fade.setColorAt(1, Ground);
  painter.fillRect(QRectF(0, 0, StripWidth, StripHeight), fade);
  QLinearGradient side(StripWidth - 4, 0, StripWidth, 0);
  side.setColorAt(0, clear);
  side.setColorAt(1, Ground);
  painter.fillRect(QRectF(StripWidth - 4, 0, 4, StripHeight), side);
}

}  // namespace

QImage PaintStationStrip(int scale) {
  QImage image = PaintSpace(scale);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  DrawMast(painter);
  DrawFade(painter);
  return image;
}

}  // namespace orrerix
