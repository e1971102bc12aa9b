// SPDX-License-Identifier: MIT
#pragma once

#include <QBrush>
#include <QIODevice>
#include <QPainterPath>
#include <QPen>
#include <QRectF>
#include <QSize>
#include <QTransform>
#include <optional>
#include <vector>

namespace orrerix {

// One shape of a drawing, in the order of painting.
struct DrawnShape {
  QPainterPath Path;
  QBrush Fill;
  QPen Stroke;
  QTransform Place;  // from the shape's coordinates to the drawing's
};

struct DrawnShapes {
  QSize Size;   // in logical pixels
  QRectF View;  // the part of the drawing's coordinates that is shown
  std::vector<DrawnShape> Shapes;
};

// Reads an SVG file. Nothing if it is not well formed, or has no size.
std::optional<DrawnShapes> ReadSvg(QIODevice& device);

}  // namespace orrerix
