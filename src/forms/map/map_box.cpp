// SPDX-License-Identifier: MIT
#include "forms/map/map_box.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace orrerix {

void MapBox::ShowHover(const HoverBox& hover) {
  hoveredText_ = IconText(hover.Icon);
  scene_.Replace(hover.Icon);
  Show(hover.Box);
  hovering_ = Visible();
}

void MapBox::Show(ControlList box) {
  hovering_ = false;
  shown_ = std::move(box);
  scene_.ShowInFront(FrontLayer::Box, shown_);
}

void MapBox::ShowElsewhere(ControlList box) {
  hovering_ = false;
  scene_.ShowInFront(FrontLayer::Box, {});
  shown_ = std::move(box);
}

void MapBox::EndHover() {
  if (!IsHoverBox()) return;
  const auto before = std::get<HoveredIcon>(shown_.front().Subject);
  Hide();
  const Control* icon = scene_.Find(ControlId::MapIcon, before.Index);
  if (icon != nullptr && IconText(*icon) == hoveredText_) {
    scene_.Replace(RestoredIcon(*icon, before));
  }
}

void MapBox::MapRedrawn() {
  if (!IsHoverBox()) return;
  const ControlList& controls = scene_.Drawing().Controls;
  const auto icon = std::find_if(controls.begin(), controls.end(), [this](const Control& control) {
    return control.Id == ControlId::MapIcon && IconText(control) == hoveredText_;
  });
  if (icon != controls.end()) ShowHover(MovedHoverBox(shown_, *icon, scene_.Drawing()));
}

}  // namespace orrerix
