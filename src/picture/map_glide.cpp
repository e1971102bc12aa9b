// SPDX-License-Identifier: MIT
#include "picture/map_glide.h"

#include <cmath>
#include <utility>

#include "picture/pool_painting.h"
#include "picture/twips.h"

namespace orrerix {
namespace {

// A part of the way; scales multiply, so that the movement is even.
QTransform PartOf(const QTransform& whole, double part) {
  const double scale = std::pow(whole.m11(), part);
  const double share = whole.m11() == 1 ? part : (scale - 1) / (whole.m11() - 1);
  return QTransform(scale, 0, 0, scale, whole.dx() * share, whole.dy() * share);
}

}  // namespace

std::optional<QTransform> WayBetween(const ShownCells& from, const ShownCells& to) {
  const bool isWay = !from.OnPaper && !to.OnPaper && from.Frame == to.Frame &&
                     from.Cells.CellSize() > 0 && to.Cells.CellSize() > 0;
  if (!isWay || from.Cells == to.Cells) return std::nullopt;
  const double scale = double(to.Cells.CellSize()) / from.Cells.CellSize();
  const QPointF shift =
      QPointF(Pixels(to.Cells.CellLeft(0)), Pixels(to.Cells.CellTop(0))) -
      QPointF(Pixels(from.Cells.CellLeft(0)), Pixels(from.Cells.CellTop(0))) * scale;
  return QTransform(scale, 0, 0, scale, shift.x(), shift.y());
}

MapGlide::MapGlide() {
  movement_.setStartValue(0.0);
  movement_.setEndValue(1.0);
  movement_.setDuration(0);
  movement_.setEasingCurve(QEasingCurve::OutCubic);
  const auto move = [this] {
    if (IsShown() && OnMove) OnMove();
  };
  QObject::connect(&movement_, &QVariantAnimation::valueChanged, &movement_, move);
  QObject::connect(&movement_, &QVariantAnimation::finished, &movement_, move);
}

void MapGlide::Begin(QImage picture, const QRect& part, const QTransform& way) {
  const QTransform start = IsShown() ? goal_.inverted() * Now() : QTransform();
  picture_ = std::move(picture);
  part_ = part;
  Leave(start, way);
}

void MapGlide::Redirect(const QTransform& way) {
  Leave(Now(), goal_ * way);
}

void MapGlide::Leave(const QTransform& start, const QTransform& goal) {
  movement_.stop();
  start_ = start;
  goal_ = goal;
  if (movement_.duration() > 0) movement_.start();
}

void MapGlide::End() {
  movement_.stop();
  picture_ = QImage();
}

QTransform MapGlide::Now() const {
  const double part = IsMoving() ? movement_.currentValue().toDouble() : 1;
  return start_ * PartOf(start_.inverted() * goal_, part);
}

QRect MapGlide::Hides() const {
  const QRectF place = Now().mapRect(QRectF(part_));
  const QPoint corner(static_cast<int>(std::ceil(place.left())),
                      static_cast<int>(std::ceil(place.top())));
  const QPoint end(static_cast<int>(std::floor(place.right())),
                   static_cast<int>(std::floor(place.bottom())));
  return {corner, QSize(end.x() - corner.x(), end.y() - corner.y())};
}

void MapGlide::Paint(QPainter& painter, const QRect& part) const {
  const QRect seen = Hides() & part;
  if (seen.isEmpty()) return;
  const QRectF source = Now().inverted().mapRect(QRectF(seen));
  PaintPixelsInHalves(painter, [&](QPainter& half) { half.drawImage(seen, picture_, source); });
}

}  // namespace orrerix
