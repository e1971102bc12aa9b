// SPDX-License-Identifier: MIT
#include "picture/control_layer.h"

#include <algorithm>

#include "picture/line_items.h"

namespace orrerix {
namespace {

const Control kNoControl;

bool IsLane(const Control& control) {
  return control.Kind == ControlKind::Line && control.Line == LineKind::TradeLane;
}

bool AreOfOneLayer(const Control& one, const Control& other) {
  const bool areOfOneArray = one.Id == other.Id && one.Kind == other.Kind;
  return areOfOneArray && IsLane(one) == IsLane(other);
}

}  // namespace

std::vector<std::span<const Control>> LayersOf(const ControlList& controls) {
  std::vector<std::span<const Control>> layers;
  for (auto first = controls.begin(); first != controls.end();) {
    const auto end = std::find_if_not(first, controls.end(), [&](const Control& control) {
      return AreOfOneLayer(control, *first);
    });
    layers.emplace_back(first, end);
    first = end;
  }
  return layers;
}

ControlLayer::ControlLayer() : ControlItem(kNoControl, nullptr) {
  setFlag(ItemHasNoContents);
}

bool ControlLayer::Holds(const Control& control) const {
  return AreOfOneLayer(First(), control);
}

// Deletes all items from this one on.
void ControlLayer::Remove(std::size_t first) {
  for (std::size_t i = first; i < items_.size(); ++i) {
    items_[i]->SetStill(nullptr);
    delete items_[i];
  }
  items_.resize(first);
}

// Deletes the items from the first control on that differs, and returns how many are left.
std::size_t ControlLayer::KeepItems(std::span<const Control> next) {
  const auto differ = std::mismatch(controls_.begin(), controls_.end(), next.begin(), next.end());
  const auto same = static_cast<std::size_t>(differ.first - controls_.begin());
  const bool areLines = next.front().Kind == ControlKind::Line;
  if (areLines && same == controls_.size() && same == next.size()) return items_.size();
  const std::size_t kept = areLines ? 0 : same;
  Remove(kept);
  return kept;
}

void ControlLayer::Show(std::span<const Control> controls, PictureStore& pictures,
                        const ItemView& view) {
  if (view != view_) {
    Remove(0);
    controls_ = {};
  }
  view_ = view;
  const std::size_t kept = KeepItems(controls);
  isNew_ = kept < controls.size() && !(kept > 0 && controls.front().Kind == ControlKind::Line);
  controls_ = controls;
  for (std::size_t i = 0; i < kept; ++i) items_[i]->Rebind(controls[i]);
  if (controls.front().Kind == ControlKind::Line) {
    if (kept == 0) Add(new LinesItem(controls, view, nullptr));
    return;
  }
  for (const Control& control : controls.subspan(kept)) {
    Add(MakeControlItem(control, pictures, view, nullptr));
  }
}

// An item gets its parent when it is complete: the scene asks at once for its bounds.
void ControlLayer::Add(ControlItem* item) {
  item->setParentItem(this);
  items_.push_back(item);
}

void ControlLayer::SetStill(StillItems* still) {
  ControlItem::SetStill(still);
  for (ControlItem* item : items_) item->SetStill(still);
}

bool ControlLayer::Replace(Control& known, const Control& changed, PictureStore& pictures) {
  const auto place = static_cast<std::size_t>(&known - controls_.data());
  if (&known < controls_.data() || place >= items_.size()) return false;
  items_[place]->SetStill(nullptr);
  delete items_[place];
  known = changed;
  items_[place] = MakeControlItem(known, pictures, view_, nullptr);
  items_[place]->setParentItem(this);
  items_[place]->SetStill(Still());
  if (place + 1 < items_.size()) items_[place]->stackBefore(items_[place + 1]);
  return true;
}

void ControlLayer::SpareLetters(const std::vector<QRectF>& letters) {
  for (ControlItem* item : items_) item->SpareLetters(letters);
}

}  // namespace orrerix
