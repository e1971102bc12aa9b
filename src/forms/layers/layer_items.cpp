// SPDX-License-Identifier: MIT
#include "forms/layers/layer_items.h"

#include <QPainter>
#include <QWidget>

namespace orrerix {
namespace {

const Control kBareFrame;

}  // namespace

PaintedItem::PaintedItem(Paint paint)
    : ControlItem(kBareFrame, nullptr), paint_(std::move(paint)) {}

void PaintedItem::Renew(const QRectF& place) {
  if (place != place_) prepareGeometryChange();
  // Whole pixels, so that the picture is as sharp as what it shows.
  place_ = QRectF(place.toAlignedRect());
  picture_ = QPixmap();
  update();
}

void PaintedItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget) {
  if (place_.isEmpty()) return;
  if (widget != nullptr) {
    painter->drawPixmap(place_.topLeft(), Picture(widget->devicePixelRatioF()));
    return;
  }
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setClipRect(place_, Qt::IntersectClip);
  paint_(*painter, painter->clipBoundingRect());
  painter->restore();
}

const QPixmap& PaintedItem::Picture(double devicePixelRatio) {
  if (!picture_.isNull() && picture_.devicePixelRatio() == devicePixelRatio) return picture_;
  picture_ = QPixmap((place_.size() * devicePixelRatio).toSize());
  picture_.setDevicePixelRatio(devicePixelRatio);
  picture_.fill(Qt::transparent);
  QPainter painter(&picture_);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(-place_.topLeft());
  paint_(painter, place_);
  return picture_;
}

}  // namespace orrerix
