// SPDX-License-Identifier: MIT
#include "forms/map_box.h"

#include <algorithm>
#include <utility>

#include "db/number_text.h"

namespace orrerix {

bool MapBox::IsHoverBox() const {
  return Visible() && shown_.front().Shape == ShapeForm::RoundedRectangle;
}

void MapBox::ShowHover(const HoverBox& hover) {
  hovered_ = hover.Icon.Tag.value_or("");
  scene_.Replace(hover.Icon);
  Show(hover.Box);
}

void MapBox::Show(ControlList box) {
  shown_ = std::move(box);
  scene_.ShowInFront(FrontLayer::Box, shown_);
}

void MapBox::ShowElsewhere(ControlList box) {
  scene_.ShowInFront(FrontLayer::Box, {});
  shown_ = std::move(box);
}

void MapBox::EndHover() {
  if (!IsHoverBox()) return;
  const std::string tag = shown_.front().Tag.value_or("");
  Hide();
  const int index = static_cast<int>(Val(tag));
  const Control* icon = scene_.Find("Image1", index);
  if (icon != nullptr && icon->Tag == hovered_) scene_.Replace(RestoredIcon(*icon, tag));
}

void MapBox::MapRedrawn() {
  if (!IsHoverBox()) return;
  const ControlList& controls = scene_.Drawing().Controls;
  const auto icon = std::find_if(controls.begin(), controls.end(), [this](const Control& control) {
    return control.Name == "Image1" && control.Tag == hovered_;
  });
  if (icon != controls.end()) ShowHover(MovedHoverBox(shown_, *icon, scene_.Drawing()));
}

}  // namespace orrerix
