// SPDX-License-Identifier: MIT
#include "picture/map_scene.h"

#include <algorithm>
#include <utility>

#include "picture/twips.h"

namespace orrerix {

MapScene::MapScene(PictureStore& pictures, QObject* parent)
    : QGraphicsScene(parent), pictures_(pictures) {
  // All items change at once and most are seen: an index would cost more than it saves.
  setItemIndexMethod(NoIndex);
  setBackgroundBrush(ToQColor(drawing_.FrameColor));
}

MapScene::~MapScene() {
  // The items refer to the drawing, which is destroyed before the base class.
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

// Drops the items from the first control on in which the next drawing differs, and returns how
// many are left. The area that the panel leaves open belongs to an item.
std::size_t MapScene::KeepItems(const MapDrawing& next) {
  std::size_t kept = 0;
  if (OpenPart(next) == OpenPart(drawing_) && next.PrintMode == drawing_.PrintMode) {
    const ControlList& before = drawing_.Controls;
    const auto differ =
        std::mismatch(before.begin(), before.end(), next.Controls.begin(), next.Controls.end());
    kept = static_cast<std::size_t>(differ.first - before.begin());
  }
  for (std::size_t i = kept; i < items_.size(); ++i) delete items_[i];
  items_.resize(kept);
  return kept;
}

void MapScene::Show(MapDrawing drawing) {
  const std::size_t kept = KeepItems(drawing);
  for (std::size_t i = 0; i < kept; ++i) items_[i]->Rebind(drawing.Controls[i]);
  if (drawing.FrameColor != drawing_.FrameColor) {
    setBackgroundBrush(ToQColor(drawing.FrameColor));
  }
  // The controls of a list that is moved stay where they are.
  drawing_ = std::move(drawing);
  setSceneRect(0, 0, Pixels(drawing_.Frame.Width), Pixels(drawing_.Frame.Height));
  const ItemView view{OpenPart(drawing_), drawing_.PrintMode};
  for (std::size_t i = kept; i < drawing_.Controls.size(); ++i) {
    items_.push_back(MakeControlItem(drawing_.Controls[i], pictures_, view, nullptr));
    addItem(items_.back());
  }
  SpareLetters(kept);
}

// Names come before the lines, so those of the items that are kept have not changed.
void MapScene::SpareLetters(std::size_t firstNew) {
  std::vector<QRectF> letters;
  for (const ControlItem* item : items_) {
    if (const QRectF name = item->NameLetters(); !name.isEmpty()) letters.push_back(name);
  }
  for (std::size_t i = firstNew; i < items_.size(); ++i) items_[i]->SpareLetters(letters);
}

void MapScene::ShowInFront(FrontLayer layer, ControlList controls) {
  Layer& shown = front_[static_cast<std::size_t>(layer)];
  if (shown.Controls.empty() && controls.empty()) return;
  qDeleteAll(shown.Items);
  shown.Controls = std::move(controls);
  MakeFrontItems(layer);
  if (layer == FrontLayer::Box && OnBoxChanged) OnBoxChanged();
}

// Precondition: the layer's old items have been deleted.
void MapScene::MakeFrontItems(FrontLayer layer) {
  Layer& shown = front_[static_cast<std::size_t>(layer)];
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
  for (std::size_t i = 0; i < drawing_.Controls.size(); ++i) {
    Control& known = drawing_.Controls[i];
    if (known.Id != control.Id || known.Index != control.Index) continue;
    const Control changed = control;  // which may be the one that goes
    delete items_[i];
    known = changed;
    items_[i] =
        MakeControlItem(known, pictures_, {OpenPart(drawing_), drawing_.PrintMode}, nullptr);
    addItem(items_[i]);
    if (i + 1 < items_.size()) items_[i]->stackBefore(items_[i + 1]);
    return;
  }
}

void MapScene::Put(QGraphicsItem& item, Stratum stratum) {
  const auto isAbove = [stratum](const Control& control) {
    if (control.Id == ControlId::PanelFrame) return true;
    return stratum == Stratum::BelowLines &&
           (control.Id == ControlId::MapLine || control.Id == ControlId::MapIcon ||
            control.Id == ControlId::Border);
  };
  // An item that stands above all is the last one: it is taken out and added again for that.
  if (item.scene() == this) removeItem(&item);
  addItem(&item);
  const ControlList& controls = drawing_.Controls;
  const auto above = std::find_if(controls.begin(), controls.end(), isAbove);
  if (above == controls.end()) return;
  item.stackBefore(items_[static_cast<std::size_t>(above - controls.begin())]);
}

void MapScene::ShowSystemNames(bool shown) {
  for (ControlItem* item : items_) {
    if (item->Shown().Id == ControlId::SystemLabel) item->setOpacity(shown ? 1 : 0);
  }
}

ControlHit MapScene::HitAt(QPointF point) const {
  const QList<QGraphicsItem*> under = items(point, Qt::IntersectsItemShape, Qt::DescendingOrder);
  if (under.isEmpty()) return {};
  const QGraphicsItem& topmost = *under.front();
  return {&ControlItem::Of(topmost),
          ControlItem::Of(*topmost.topLevelItem()).Id == ControlId::PanelFrame};
}

}  // namespace orrerix
