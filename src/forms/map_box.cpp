// SPDX-License-Identifier: MIT
#include "forms/map_box.h"

#include <utility>

#include "db/number_text.h"

namespace orrerix {

bool MapBox::IsHoverBox() const {
  return Visible() && shown_.front().Shape == ShapeForm::RoundedRectangle;
}

void MapBox::ShowHover(const HoverBox& hover) {
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
  if (const Control* icon = scene_.Find("Image1", index)) scene_.Replace(RestoredIcon(*icon, tag));
}

void MapBox::MapRedrawn() {
  if (IsHoverBox()) Hide();
}

}  // namespace orrerix
