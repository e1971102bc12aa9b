// SPDX-License-Identifier: MIT
#include "picture/map_scene.h"

#include <QPaintEngine>
#include <QPainter>
#include <QRegion>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <span>
#include <utility>

#include "picture/twips.h"

namespace orrerix {

namespace {

bool BelongsToStill(const Control& control) {
  switch (control.Id) {
    case ControlId::BackgroundTile:
    case ControlId::PaintedUniverse:
    case ControlId::SystemPicture:
    case ControlId::EmptyCell:
    case ControlId::SystemLabel:
      return true;
    case ControlId::MapLine:
      return control.Line != LineKind::TradeLane;
    default:
      return false;
  }
}

}  // namespace

MapScene::MapScene(PictureStore& pictures, QObject* parent)
    : QGraphicsScene(parent), pictures_(pictures) {
  // All items change at once and most are seen: an index would cost more than it saves.
  setItemIndexMethod(NoIndex);
  setBackgroundBrush(ToQColor(drawing_.FrameColor));
}

MapScene::~MapScene() {
  // The items refer to the drawing, which is destroyed before the base class.
  layers_.clear();
  clear();
}

// The part of the frame that the panel does not cover. A panel at the back covers nothing.
QRectF MapScene::OpenPart(const MapDrawing& drawing) {
  QRectF open(0, 0, Pixels(drawing.Frame.Width), Pixels(drawing.Frame.Height));
  const ControlList& controls = drawing.Controls;
  if (controls.empty() || controls.back().Kind != ControlKind::Frame) return open;
  const QRectF panel = Pixels(drawing.PanelBox);
  if (drawing.Panel == PanelPlace::Right) open.setRight(panel.left());
  if (drawing.Panel == PanelPlace::Below) open.setBottom(panel.top());
  return open;
}

void MapScene::Show(MapDrawing drawing) {
  ShowLayers(drawing);
  if (drawing.FrameColor != drawing_.FrameColor || drawing.Frame != drawing_.Frame ||
      OpenPart(drawing) != StillPart()) {
    still_.Changes.AddAll();
  }
  if (drawing.FrameColor != drawing_.FrameColor) {
    setBackgroundBrush(ToQColor(drawing.FrameColor));
  }
  // The controls of a list that is moved stay where they are.
  drawing_ = std::move(drawing);
  setSceneRect(0, 0, Pixels(drawing_.Frame.Width), Pixels(drawing_.Frame.Height));
  SpareLetters();
}

// Layers that both drawings have go over to the next one; the others end.
void MapScene::ShowLayers(const MapDrawing& next) {
  std::vector<std::unique_ptr<ControlLayer>> before = std::exchange(layers_, {});
  auto rest = before.begin();
  for (const std::span<const Control> controls : LayersOf(next.Controls)) {
    const auto same = std::find_if(
        rest, before.end(), [&](const auto& layer) { return layer->Holds(controls.front()); });
    if (same == before.end()) {
      layers_.push_back(std::make_unique<ControlLayer>());
    } else {
      layers_.push_back(std::move(*same));
      rest = same + 1;
    }
    layers_.back()->Show(controls, pictures_, ViewOf(next));
  }
  for (const auto& layer : before) {
    if (layer != nullptr) layer->SetStill(nullptr);
  }
  StackLayers();
  SetStill();
}

// Still are the layers up to the first that is not: all that follows is painted in front of them.
void MapScene::SetStill() {
  bool isStill = true;
  for (const auto& layer : layers_) {
    isStill = isStill && BelongsToStill(layer->First());
    layer->SetStill(isStill ? &still_ : nullptr);
  }
}

QRegion MapScene::FinerSince(std::uint64_t picturesVersion) {
  QRegion finer;
  if (picturesVersion == pictures_.Version()) return finer;
  for (QGraphicsItem* item : items()) {
    auto* shown = static_cast<ControlItem*>(item);
    const QString picture = shown->PictureName();
    if (picture.isEmpty() || pictures_.VersionOf(picture) <= picturesVersion) continue;
    if (shown->IsStill()) {
      finer += shown->PaintedPart().toAlignedRect();
    } else {
      update(shown->PaintedPart());
    }
  }
  return finer;
}

// The items that are seen in a part of the scene, front to back. Most tiles of the sky lie below
// pictures.
std::vector<ControlItem*> MapScene::StillItemsIn(const QRegion& part, QPainter& painter) {
  const QTransform whole = painter.worldTransform();
  std::vector<ControlItem*> seen;
  QRegion hidden;
  for (QGraphicsItem* item :
       items(StillPart(), Qt::IntersectsItemBoundingRect, Qt::DescendingOrder)) {
    auto* still = static_cast<ControlItem*>(item);
    if (!still->IsStill() || still->effectiveOpacity() == 0 || !still->IsSeenIn(part)) continue;
    painter.setWorldTransform(still->sceneTransform() * whole);
    const QRect pixels = still->PaintedPixels(painter);
    if (!pixels.isEmpty() && (QRegion(pixels) - hidden).isEmpty()) continue;
    hidden += still->HiddenPixels(painter);
    seen.push_back(still);
  }
  painter.setWorldTransform(whole);
  return seen;
}

void MapScene::DrawStill(QPainter& painter, const QRegion& part, QWidget* window) {
  drawBackground(&painter, StillPart());
  const QTransform whole = painter.worldTransform();
  QStyleOptionGraphicsItem option;
  const std::vector<ControlItem*> seen = StillItemsIn(part, painter);
  std::for_each(seen.rbegin(), seen.rend(), [&](ControlItem* still) {
    painter.setWorldTransform(still->sceneTransform() * whole);
    option.exposedRect = still->boundingRect();
    still->Draw(painter, option, window);
  });
  painter.setWorldTransform(whole);
}

void MapScene::StackLayers() {
  for (std::size_t i = layers_.size(); i-- > 0;) {
    if (layers_[i]->scene() == this) continue;
    addItem(layers_[i].get());
    if (i + 1 < layers_.size()) layers_[i]->stackBefore(layers_[i + 1].get());
  }
}

void MapScene::SpareLetters() {
  std::vector<QRectF> letters;
  for (const auto& layer : layers_) {
    if (layer->First().Id != ControlId::SystemLabel) continue;
    for (const ControlItem* item : layer->Items()) {
      if (const QRectF name = item->NameLetters(); !name.isEmpty()) letters.push_back(name);
    }
  }
  const bool areOthers = letters != letters_;
  letters_ = std::move(letters);
  for (const auto& layer : layers_) {
    if (areOthers || layer->IsNew()) layer->SpareLetters(letters_);
  }
}

// The part of the scene that its largest items hide, in whole pixels.
QRegion MapScene::HiddenPart() const {
  QRegion hidden;
  for (const auto& layer : layers_) {
    const ControlId id = layer->First().Id;
    if (id != ControlId::BackgroundTile && id != ControlId::PaintedUniverse &&
        id != ControlId::PanelFrame) {
      continue;
    }
    for (const ControlItem* item : layer->Items()) hidden += WholePixelsWithin(item->Hides());
  }
  return hidden;
}

void MapScene::drawBackground(QPainter* painter, const QRectF& exposed) {
  if (painter->paintEngine()->type() != QPaintEngine::Raster) {
    return QGraphicsScene::drawBackground(painter, exposed);
  }
  const QRegion open = QRegion(exposed.toAlignedRect()) - HiddenPart();
  const bool smooth = painter->testRenderHint(QPainter::Antialiasing);
  painter->setRenderHint(QPainter::Antialiasing, false);
  // What hides it goes to the device's pixels, which may be one less than it asks for.
  for (const QRect& part : open) painter->fillRect(part.adjusted(-1, -1, 1, 1), backgroundBrush());
  painter->setRenderHint(QPainter::Antialiasing, smooth);
}

void MapScene::ShowInFront(FrontLayer layer, ControlList controls) {
  Front& shown = front_[static_cast<std::size_t>(layer)];
  if (shown.Controls.empty() && controls.empty()) return;
  qDeleteAll(shown.Items);
  shown.Controls = std::move(controls);
  MakeFrontItems(layer);
  if (layer == FrontLayer::Box && OnBoxChanged) OnBoxChanged();
}

// Precondition: the layer's old items have been deleted.
void MapScene::MakeFrontItems(FrontLayer layer) {
  Front& shown = front_[static_cast<std::size_t>(layer)];
  shown.Items.clear();
  for (const Control& control : shown.Controls) {
    shown.Items.push_back(MakeControlItem(control, pictures_, {sceneRect()}, nullptr));
    shown.Items.back()->setZValue(1 + static_cast<int>(layer));
    addItem(shown.Items.back());
  }
}

const Control* MapScene::Find(ControlId id, int index) const {
  const auto found = std::find_if(
      drawing_.Controls.begin(), drawing_.Controls.end(),
      [&](const Control& control) { return control.Id == id && control.Index == index; });
  return found == drawing_.Controls.end() ? nullptr : &*found;
}

void MapScene::Replace(const Control& control) {
  const auto known = std::find_if(
      drawing_.Controls.begin(), drawing_.Controls.end(), [&](const Control& candidate) {
        return candidate.Id == control.Id && candidate.Index == control.Index;
      });
  if (known == drawing_.Controls.end()) return;
  const Control changed = control;  // which may be the one that goes
  for (const auto& layer : layers_) {
    if (layer->Replace(*known, changed, pictures_)) return;
  }
}

void MapScene::Put(ControlItem& item, Stratum stratum) {
  const auto isAbove = [stratum](const Control& control) {
    if (control.Id == ControlId::PanelFrame) return true;
    return stratum == Stratum::BelowLines &&
           (control.Id == ControlId::MapLine || control.Id == ControlId::MapIcon ||
            control.Id == ControlId::Border);
  };
  // An item that stands above all is the last one: it is taken out and added again for that.
  if (item.scene() == this) removeItem(&item);
  addItem(&item);
  const auto above = std::find_if(layers_.begin(), layers_.end(),
                                  [&](const auto& layer) { return isAbove(layer->First()); });
  if (above != layers_.end()) item.stackBefore(above->get());
  const bool isStill = above != layers_.end() && stratum == Stratum::BelowLines && HasStill();
  item.SetStill(isStill ? &still_ : nullptr);
}

void MapScene::ShowSystemNames(bool shown) {
  for (const auto& layer : layers_) {
    if (layer->First().Id != ControlId::SystemLabel) continue;
    for (ControlItem* item : layer->Items()) {
      if (item->opacity() != (shown ? 1 : 0)) item->MarkChanged();
      item->setOpacity(shown ? 1 : 0);
    }
  }
}

ControlHit MapScene::HitAt(QPointF point) const {
  const QList<QGraphicsItem*> under = items(point, Qt::IntersectsItemShape, Qt::DescendingOrder);
  if (under.isEmpty()) return {};
  const Control& topmost = ControlItem::Of(*under.front());
  for (const QGraphicsItem* item = under.front(); item != nullptr; item = item->parentItem()) {
    if (ControlItem::Of(*item).Id == ControlId::PanelFrame) return {&topmost, true};
  }
  return {&topmost, false};
}

}  // namespace orrerix
