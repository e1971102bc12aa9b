// SPDX-License-Identifier: MIT
// Drawings that stay sharp in every size.
#pragma once

#include <QPainter>
#include <QSize>
#include <QString>
#include <memory>
#include <utility>

#include "picture/svg_reader.h"

namespace orrerix {

// A drawing out of an SVG file, of which it knows what the program's own pictures use: paths of
// straight lines and cubic curves in absolute coordinates, circles, ellipses and rectangles;
// groups; plain colours, gradients in the drawing's own coordinates; the attributes of strokes. The
// rest of a file is passed over.
class VectorDrawing {
 public:
  // Nothing if the file cannot be read or is no drawing with a size.
  static std::unique_ptr<VectorDrawing> Read(const QString& file);

  QSize Size() const { return content_.Size; }

  // Stretches the drawing over a place, in the painter's coordinates.
  void Paint(QPainter& painter, const QRectF& place) const;

 private:
  explicit VectorDrawing(DrawnShapes content) : content_(std::move(content)) {}

  DrawnShapes content_;
};

}  // namespace orrerix
