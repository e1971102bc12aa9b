// SPDX-License-Identifier: MIT
#include "picture/map_scene.h"

#include <algorithm>
#include <utility>

#include "picture/control_items.h"
#include "picture/twips.h"

namespace orrerix {

MapScene::MapScene(PictureStore& pictures, QObject* parent)
    : QGraphicsScene(parent), pictures_(pictures) {
  // All items change at once and most are seen: an index would cost more than it saves.
  setItemIndexMethod(NoIndex);
}

MapScene::~MapScene() {
  // The items refer to the drawing, which goes before the scene's own part does.
  clear();
}

// What of the frame the panel leaves open. A panel that is not in front covers nothing.
QRectF MapScene::OpenPart() const {
  QRectF open = sceneRect();
  const ControlList& controls = drawing_.Controls;
  if (controls.empty() || controls.back().Kind != ControlKind::Frame) return open;
  const QRectF panel = Pixels(drawing_.PanelBox);
  if (drawing_.Panel == PanelPlace::Right) open.setRight(panel.left());
  if (drawing_.Panel == PanelPlace::Below) open.setBottom(panel.top());
  return open;
}

void MapScene::Show(MapDrawing drawing) {
  clear();
  drawing_ = std::move(drawing);
  setSceneRect(0, 0, Pixels(drawing_.Frame.Width), Pixels(drawing_.Frame.Height));
  setBackgroundBrush(ToQColor(drawing_.FrameColor));
  const QRectF open = OpenPart();
  items_.clear();
  for (const Control& control : drawing_.Controls) {
    items_.push_back(MakeControlItem(control, pictures_, open, nullptr));
    addItem(items_.back());
  }
  for (const FrontLayer layer : {FrontLayer::Box, FrontLayer::CellCursor, FrontLayer::RubberBand}) {
    MakeFrontItems(layer);
  }
}

void MapScene::ShowInFront(FrontLayer layer, ControlList controls) {
  Layer& shown = front_[static_cast<std::size_t>(layer)];
  if (shown.Controls.empty() && controls.empty()) return;
  qDeleteAll(shown.Items);
  shown.Controls = std::move(controls);
  MakeFrontItems(layer);
}

// Those of before must be gone.
void MapScene::MakeFrontItems(FrontLayer layer) {
  Layer& shown = front_[static_cast<std::size_t>(layer)];
  shown.Items.clear();
  for (const Control& control : shown.Controls) {
    shown.Items.push_back(MakeControlItem(control, pictures_, sceneRect(), nullptr));
    shown.Items.back()->setZValue(1 + static_cast<int>(layer));
    addItem(shown.Items.back());
  }
}

const Control* MapScene::Find(std::string_view name, int index) const {
  const auto found = std::find_if(
      drawing_.Controls.begin(), drawing_.Controls.end(),
      [&](const Control& control) { return control.Name == name && control.Index == index; });
  return found == drawing_.Controls.end() ? nullptr : &*found;
}

void MapScene::Replace(const Control& control) {
  for (std::size_t i = 0; i < drawing_.Controls.size(); ++i) {
    Control& known = drawing_.Controls[i];
    if (known.Name != control.Name || known.Index != control.Index) continue;
    const Control changed = control;  // which may be the one that goes
    delete items_[i];
    known = changed;
    items_[i] = MakeControlItem(known, pictures_, OpenPart(), nullptr);
    addItem(items_[i]);
    if (i + 1 < items_.size()) items_[i]->stackBefore(items_[i + 1]);
    return;
  }
}

ControlHit MapScene::HitAt(QPointF point) const {
  const QList<QGraphicsItem*> under = items(point, Qt::IntersectsItemShape, Qt::DescendingOrder);
  if (under.isEmpty()) return {};
  const QGraphicsItem& topmost = *under.front();
  return {&ControlItem::Of(topmost), ControlItem::Of(*topmost.topLevelItem()).Name == "MenuFrame"};
}

}  // namespace orrerix
