// SPDX-License-Identifier: MIT
#include "picture/map_scene_view.h"

#include <QBackingStore>
#include <QPaintEngine>
#include <QPainter>
#include <cmath>

#include "picture/pool_painting.h"
#include "picture/twips.h"

namespace orrerix {
namespace {

// So many pixels are painted in a pass.
constexpr qint64 kPassArea = 1024 * 1024;

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
  glide_.OnMove = [this] {
    if (Map() != nullptr) viewport()->update(InView(still_.Part()).boundingRect());
  };
}

bool MapSceneView::IsOnWindow(const QPainter& painter) const {
  QBackingStore* store = viewport()->backingStore();
  return store != nullptr && painter.paintEngine()->paintDevice() == store->paintDevice();
}

void MapSceneView::paintEvent(QPaintEvent* event) {
  isPainting_ = true;
  QGraphicsView::paintEvent(event);
  isPainting_ = false;
  if (MapScene* map = Map()) map->KeepStill(false);
}

void MapSceneView::drawBackground(QPainter* painter, const QRectF& exposed) {
  MapScene* map = Map();
  QGraphicsView::drawBackground(painter, exposed);
  if (!isPainting_ || map == nullptr || map->StillVersion() == 0 || !IsUpright(*painter)) return;
  const QTransform toDevice = painter->deviceTransform();
  const QPointF origin = toDevice.map(QPointF(0, 0));
  const QPoint corner(static_cast<int>(std::floor(origin.x())),
                      static_cast<int>(std::floor(origin.y())));
  const QTransform toPicture = toDevice * QTransform::fromTranslate(-corner.x(), -corner.y());
  const QSize size = toPicture.mapRect(QRectF(viewport()->rect())).toAlignedRect().size();
  Renew(*map, {map, toPicture, size, painter->device()->devicePixelRatioF()},
        OnUnfinished && IsOnWindow(*painter));
  const QTransform world = painter->worldTransform();
  painter->setWorldTransform(QTransform::fromTranslate(corner.x(), corner.y()) *
                             toDevice.inverted() * world);
  Draw(*painter);
  painter->setWorldTransform(world);
  map->KeepStill(true);
}

// Whether the map has moved; then a picture of the one before is on its way to where it is now.
bool MapSceneView::Moves(MapScene& map, const StillLook& look) {
  const auto way = WayBetween(cells_, ShownCells::Of(map.Drawing()));
  if (!way) return false;
  const QTransform pixels = look.ToDevice.inverted() * *way * look.ToDevice;
  if (glide_.IsShown() && !still_.Missing().isEmpty()) {
    glide_.Redirect(pixels);
  } else {
    glide_.Begin(still_.Release(), still_.Part(), pixels);
  }
  return true;
}

void MapSceneView::Renew(MapScene& map, const StillLook& look, bool inPasses) {
  const bool isSameLook = look == still_.Look();
  const bool isMoved = isSameLook && inPasses && Moves(map, look);
  cells_ = ShownCells::Of(map.Drawing());
  if (!isSameLook || isMoved) still_.Begin(map, look);
  if (!isSameLook) glide_.End();
  still_.Follow(map);
  still_.FollowPictures(map);
  if (!inPasses) {
    still_.Paint(map, still_.Due(), viewport());
    glide_.End();
  } else if (!glide_.IsShown()) {
    still_.Paint(map, still_.Missing(), viewport());
  }
  EndGlide();
  if (!still_.Due().isEmpty()) OnUnfinished();
}

void MapSceneView::EndGlide() {
  if (!glide_.IsShown() || !still_.Missing().isEmpty() || glide_.IsMoving()) return;
  glide_.End();
  if (OnUnfinished) OnUnfinished();
}

// The painter is in the picture's pixels.
void MapSceneView::Draw(QPainter& painter) const {
  const QRect part = still_.Part();
  const auto copy = [&](const QRect& rect) {
    PaintPixelsInHalves(
        painter, [&](QPainter& half) { half.drawImage(rect.topLeft(), still_.Image(), rect); });
  };
  if (!glide_.IsShown()) return copy(part);
  const QRegion open = QRegion(part) - glide_.Hides();
  for (const QRect& rect : open - still_.Missing()) copy(rect);
  const QRegion blank = open & still_.Missing();
  for (const QRect& rect : blank) painter.fillRect(rect, scene()->backgroundBrush());
  glide_.Paint(painter, part);
}

// The logical pixels of the view in which pixels of the picture are seen.
QRegion MapSceneView::InView(const QRegion& pixels) const {
  const QTransform toView = still_.Look().ToDevice.inverted();
  QRegion seen;
  for (const QRect& rect : pixels) seen += toView.mapRect(QRectF(rect)).toAlignedRect();
  return seen;
}

std::optional<QRegion> MapSceneView::PaintMore() {
  MapScene* map = Map();
  const bool isShown = map != nullptr && map == still_.Look().Scene;
  // What has changed otherwise waits for the redraw that shows it.
  if (!isShown || !still_.IsUpToDate(*map)) return std::nullopt;
  still_.FollowPictures(*map);
  const QRegion pass = still_.NextDue(kPassArea);
  if (pass.isEmpty()) return std::nullopt;
  still_.Paint(*map, pass, viewport());
  const QRegion hidden = glide_.IsShown() ? QRegion(glide_.Hides()) : QRegion();
  EndGlide();
  const QRegion seen = InView(glide_.IsShown() ? pass - hidden : pass + (hidden & still_.Part()));
  viewport()->update(seen);
  return seen;
}

}  // namespace orrerix
