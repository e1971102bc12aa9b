// SPDX-License-Identifier: MIT
#pragma once

#include "info/boxes/hover_box.h"
#include "picture/map_scene.h"

namespace orrerix {

// The one box on the map: as the hover box of an icon, which is larger while it is up, or as the
// info box.
class MapBox {
 public:
  // `scene` must outlive this.
  explicit MapBox(MapScene& scene) : scene_(scene) {}

  bool Visible() const { return !shown_.empty(); }
  bool IsHoverBox() const { return hovering_; }

  // Shows a hover box with its icon. One that the user gave up shows the icon alone.
  void ShowHover(const HoverBox& hover);

  // Shows a shape with its text in the place of what is shown.
  void Show(ControlList box);

  // The box is shown by a widget of its own: here it only counts as visible.
  void ShowElsewhere(ControlList box);

  // Hides the box, whichever it is. An icon keeps its size.
  void Hide() { Show({}); }

  // Hides a hover box and gives its icon its own size again.
  void EndHover();

  // The map was drawn again, with all icons in their own size. A hover goes on: its icon is
  // enlarged again with the box beside it. A box whose icon is no longer there stays where it is.
  void MapRedrawn();

 private:
  MapScene& scene_;
  ControlList shown_;
  bool hovering_ = false;    // the box is that of an icon
  std::string hoveredText_;  // of the icon
};

}  // namespace orrerix
