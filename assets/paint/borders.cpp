// SPDX-License-Identifier: MIT
#include "borders.h"

#include <QPainter>
#include <QPainterPath>
#include <array>

namespace orrerix {

namespace {

constexpr int Thickness = 4;
constexpr int EdgeLength = 64;

// The lines of an edge from the outside inwards, and how a corner is bevelled.
struct BorderStyle {
  int CornerWidth;
  int CornerHeight;
  double OuterBevel;  // where the outer lines leave the edge
  double InnerBevel;  // where the inner lines leave it: the plate between them is the corner
  std::array<QColor, Thickness> Lines;
  QColor PlateLight;
  QColor PlateDark;
  QColor Lamp;
};

BorderStyle StyleOf(int set) {
  const QColor rim(16, 30, 52, 235);
  const QColor shade(4, 12, 34, 150);
  switch (set) {
    case 0:
      return {21,
              21,
              5,
              14,
              {rim, QColor(150, 178, 200), QColor(58, 150, 190), shade},
              QColor(138, 164, 186),
              QColor(34, 52, 78),
              QColor(130, 236, 255)};
    case 1:
      return {21,
              21,
              4,
              12,
              {rim, QColor(96, 200, 226), QColor(40, 92, 132), shade},
              QColor(84, 132, 164),
              QColor(20, 40, 72),
              QColor(255, 206, 112)};
    case 2:
      return {15,
              16,
              3.5,
              9.5,
              {rim, QColor(122, 150, 178), QColor(48, 124, 164), shade},
              QColor(112, 140, 166),
              QColor(28, 46, 74),
              QColor(110, 226, 250)};
    default:
      return {15,
              16,
              3,
              8.5,
              {rim, QColor(92, 186, 214), QColor(44, 84, 124), shade},
              QColor(92, 128, 158),
              QColor(22, 40, 70),
              QColor(110, 226, 250)};
  }
}

QImage Blank(int width, int height, int scale) {
  QImage image(width * scale, height * scale, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  return image;
}

// The way of one line through the corner, at `offset` from the outside.
QPainterPath LinePath(const BorderStyle& style, double offset, double bevel) {
  QPainterPath path({style.CornerWidth + 1.0, offset});
  path.lineTo(bevel, offset);
  path.lineTo(offset, bevel);
  path.lineTo(offset, style.CornerHeight + 1.0);
  return path;
}

QPainterPath Plate(const BorderStyle& style) {
  QPainterPath plate = LinePath(style, 1, style.OuterBevel);
  plate.connectPath(LinePath(style, 3, style.InnerBevel).toReversed());
  plate.closeSubpath();
  return plate;
}

void DrawLamp(QPainter& painter, const BorderStyle& style) {
  const double middle = (style.OuterBevel + style.InnerBevel) / 4 + 0.9;
  const double radius = style.InnerBevel / 9;
  QRadialGradient glow(middle, middle, radius * 2.2);
  QColor faint = style.Lamp;
  faint.setAlpha(0);
  glow.setColorAt(0, style.Lamp);
  glow.setColorAt(0.35, style.Lamp);
  glow.setColorAt(1, faint);
  painter.setPen(Qt::NoPen);
  painter.setBrush(glow);
  painter.drawEllipse(QPointF(middle, middle), radius * 2.2, radius * 2.2);
}

QImage PaintCorner(const BorderStyle& style, int scale) {
  QImage image = Blank(style.CornerWidth, style.CornerHeight, scale);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  QLinearGradient metal(0, 0, style.InnerBevel, style.InnerBevel);
  metal.setColorAt(0.1, style.PlateLight);
  metal.setColorAt(0.9, style.PlateDark);
  painter.fillPath(Plate(style), metal);
  const std::array<double, Thickness> bevels{style.OuterBevel, style.OuterBevel + 0.6,
                                             style.InnerBevel, style.InnerBevel + 0.6};
  for (int i = 0; i < Thickness; ++i) {
    painter.setPen(QPen(style.Lines[i], 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawPath(LinePath(style, i + 0.5, bevels[i]));
  }
  DrawLamp(painter, style);
  return image;
}

QImage PaintTopEdge(const BorderStyle& style, int scale) {
  QImage image = Blank(EdgeLength, Thickness, scale);
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  for (int i = 0; i < Thickness; ++i) {
    painter.fillRect(0, i * scale, EdgeLength * scale, scale, style.Lines[i]);
  }
  return image;
}

}  // namespace

QImage PaintBorderPiece(int set, int piece, int scale) {
  const BorderStyle style = StyleOf(set);
  switch (piece) {
    case 0:
      return PaintCorner(style, scale);
    case 1:
      return PaintTopEdge(style, scale);
    case 2:
      return PaintCorner(style, scale).mirrored(true, false);
    case 3:
      return PaintTopEdge(style, scale).transformed(QTransform(0, 1, 1, 0, 0, 0));
    case 4:
      return PaintTopEdge(style, scale).transformed(QTransform(0, 1, -1, 0, 0, 0));
    case 5:
      return PaintCorner(style, scale).mirrored(false, true);
    case 6:
      return PaintTopEdge(style, scale).mirrored(false, true);
    default:
      return PaintCorner(style, scale).mirrored(true, true);
  }
}

}  // namespace orrerix
