// SPDX-License-Identifier: MIT
#include "forms/layers/layer_items.h"

#include <QImage>
#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace orrerix {
namespace {

const Control kBareFrame;

bool IsBlank(const QImage& image) {
  const uchar* bits = image.constBits();
  return std::all_of(bits, bits + image.sizeInBytes(), [](uchar byte) { return byte == 0; });
}

}  // namespace

PaintedItem::PaintedItem(Paint paint)
    : ControlItem(kBareFrame, nullptr), paint_(std::move(paint)) {}

void PaintedItem::Renew(const QRectF& place) {
  if (place.isEmpty() && place_.isEmpty()) return;
  if (place != place_) prepareGeometryChange();
  // Whole pixels, so that the picture is as sharp as what it shows.
  place_ = QRectF(place.toAlignedRect());
  picture_ = QPixmap();
  drawnRatio_ = 0;
  SetChanged();
}

qint64 PaintedItem::BytesOfPicture() const {
  return qint64{picture_.width()} * picture_.height() * picture_.depth() / 8;
}

void PaintedItem::Draw(QPainter& painter, const QStyleOptionGraphicsItem&, QWidget* widget) {
  if (place_.isEmpty()) return;
  if (widget != nullptr) {
    const double ratio = widget->devicePixelRatioF();
    if (ratio != drawnRatio_) DrawPicture(ratio);
    if (!picture_.isNull()) painter.drawPixmap(place_.topLeft(), picture_);
    return;
  }
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(place_, Qt::IntersectClip);
  paint_(painter, painter.clipBoundingRect());
  painter.restore();
}

// A picture of a whole screen in which there is nothing is not worth its memory.
void PaintedItem::DrawPicture(double devicePixelRatio) {
  drawnRatio_ = devicePixelRatio;
  QImage image((place_.size() * devicePixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(devicePixelRatio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(-place_.topLeft());
  paint_(painter, place_);
  painter.end();
  picture_ = IsBlank(image) ? QPixmap() : QPixmap::fromImage(std::move(image));
}

}  // namespace orrerix
