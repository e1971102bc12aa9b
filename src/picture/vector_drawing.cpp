// SPDX-License-Identifier: MIT
#include "picture/vector_drawing.h"

#include <QFile>

namespace orrerix {

std::unique_ptr<VectorDrawing> VectorDrawing::Read(const QString& file) {
  QFile device(file);
  if (!device.open(QIODevice::ReadOnly)) return nullptr;
  auto content = ReadSvg(device);
  if (!content) return nullptr;
  return std::unique_ptr<VectorDrawing>(new VectorDrawing(std::move(*content)));
}

void VectorDrawing::Paint(QPainter& painter, const QRectF& place) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(place.topLeft());
  painter.scale(place.width() / content_.View.width(), place.height() / content_.View.height());
  painter.translate(-content_.View.topLeft());
  const QTransform whole = painter.worldTransform();
  for (const DrawnShape& shape : content_.Shapes) {
    painter.setWorldTransform(shape.Place * whole);
    painter.setPen(shape.Stroke);
    painter.setBrush(shape.Fill);
    painter.drawPath(shape.Path);
  }
  painter.restore();
}

}  // namespace orrerix
