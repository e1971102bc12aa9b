// SPDX-License-Identifier: MIT
#include "picture/map_scene_view.h"

#include <QPaintEngine>
#include <QPainter>
#include <cmath>

#include "picture/pool_painting.h"

namespace orrerix {
namespace {

// Painting all takes less time than keeping to a region of more rectangles.
constexpr int kMostRectangles = 600;

bool IsUpright(const QPainter& painter) {
  return painter.paintEngine() != nullptr &&
         painter.paintEngine()->type() == QPaintEngine::Raster &&
         painter.deviceTransform().type() <= QTransform::TxScale;
}

}  // namespace

// The scene paints every pixel that it is asked for, so nothing is painted below it.
MapSceneView::MapSceneView(QWidget* parent) : QGraphicsView(parent) {
  setFrameShape(QFrame::NoFrame);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setRenderHint(QPainter::Antialiasing);
  setViewportUpdateMode(QGraphicsView::BoundingRectViewportUpdate);
  setOptimizationFlag(QGraphicsView::DontSavePainterState);
  setOptimizationFlag(QGraphicsView::DontAdjustForAntialiasing);
  viewport()->setAutoFillBackground(false);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

void MapSceneView::paintEvent(QPaintEvent* event) {
  isPainting_ = true;
  QGraphicsView::paintEvent(event);
  isPainting_ = false;
  if (auto* map = dynamic_cast<MapScene*>(scene())) map->KeepStill(false);
}

void MapSceneView::drawBackground(QPainter* painter, const QRectF& exposed) {
  auto* map = dynamic_cast<MapScene*>(scene());
  QGraphicsView::drawBackground(painter, exposed);
  if (!isPainting_ || map == nullptr || map->StillVersion() == 0 || !IsUpright(*painter)) return;
  const QTransform toDevice = painter->deviceTransform();
  const QPointF origin = toDevice.map(QPointF(0, 0));
  const QPoint corner(static_cast<int>(std::floor(origin.x())),
                      static_cast<int>(std::floor(origin.y())));
  const QTransform toPicture = toDevice * QTransform::fromTranslate(-corner.x(), -corner.y());
  const QRect part = toPicture.mapRect(map->StillPart()).toAlignedRect();
  const QSize size = toPicture.mapRect(QRectF(viewport()->rect())).toAlignedRect().size();
  Renew(*map, {map, toPicture, size, painter->device()->devicePixelRatioF()});
  const QTransform world = painter->worldTransform();
  painter->setWorldTransform(toDevice.inverted() * world);
  painter->drawImage(corner + part.topLeft(), still_, part);
  painter->setWorldTransform(world);
  map->KeepStill(true);
}

// As large as the window, so that lines are cut off at the same pixels as there. What the panel
// hides is never written and takes no memory.
void MapSceneView::Renew(MapScene& map, const Look& look) {
  const std::uint64_t version = map.StillVersion();
  auto changed = look == look_ ? map.StillChangesSince(version_) : std::nullopt;
  if (changed && changed->rectCount() > kMostRectangles) changed.reset();
  if (still_.size() != look.Size) still_ = QImage(look.Size, QImage::Format_RGB32);
  look_ = look;
  version_ = version;
  if (!changed || !changed->isEmpty()) Paint(map, changed);
}

// Paints a part of the scene into the picture, or all of it.
void MapSceneView::Paint(MapScene& map, const std::optional<QRegion>& part) {
  still_.setDevicePixelRatio(look_.DevicePixelRatio);
  QPainter painter(&still_);
  painter.setRenderHints(renderHints());
  const QTransform pixels = painter.deviceTransform().inverted();
  if (part) {
    painter.setWorldTransform(pixels);
    painter.setClipRegion(look_.ToDevice.map(*part) + OutermostPixels(still_.rect()));
  }
  painter.setWorldTransform(look_.ToDevice * pixels);
  map.DrawStill(painter, part.value_or(map.StillPart().toAlignedRect()), viewport());
  painter.end();
  still_.setDevicePixelRatio(1);  // it is copied pixel for pixel
}

}  // namespace orrerix
