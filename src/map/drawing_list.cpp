// SPDX-License-Identifier: MIT
#include "map/drawing_list.h"

#include <fmt/format.h>

namespace orrerix {
namespace {

Control MakeControl(ControlKind kind, std::string name, std::optional<int> index, Box place) {
  Control control;
  control.Kind = kind;
  control.Name = std::move(name);
  control.Index = index;
  control.Place = place;
  return control;
}

}  // namespace

std::string Color::Text() const {
  return fmt::format("0x{:06X}", Bgr);
}

std::optional<Box> PlaceOf(const ControlList& controls, std::string_view name) {
  for (const Control& control : controls) {
    if (control.Name == name) return control.Place;
    if (auto inner = PlaceOf(control.Children, name)) {
      inner->Left += control.Place.Left;
      inner->Top += control.Place.Top;
      return inner;
    }
  }
  return std::nullopt;
}

Control MakePicture(std::string name, std::optional<int> index, Box place, std::string picture) {
  Control control = MakeControl(ControlKind::Picture, std::move(name), index, place);
  control.Picture = std::move(picture);
  return control;
}

Control MakeFrame(std::string name, std::optional<int> index, Box place, Color back) {
  Control control = MakeControl(ControlKind::Frame, std::move(name), index, place);
  control.BackColor = back;
  return control;
}

Control MakeLabel(std::string name, std::optional<int> index, Box place, std::string caption) {
  Control control = MakeControl(ControlKind::Label, std::move(name), index, place);
  control.Caption = std::move(caption);
  return control;
}

}  // namespace orrerix
