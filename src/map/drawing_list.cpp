// SPDX-License-Identifier: MIT
#include "map/drawing_list.h"

#include <utility>

#include <fmt/format.h>

namespace orrerix {
namespace {

Control MakeControl(ControlKind kind, ControlId id, std::optional<int> index, TwipRect place) {
  Control control;
  control.Kind = kind;
  control.Id = id;
  control.Index = index;
  control.Place = place;
  return control;
}

}  // namespace

std::string Color::Text() const {
  return fmt::format("0x{:06X}", Bgr);
}

std::optional<TwipRect> PlaceOf(const ControlList& controls, ControlId id) {
  for (const Control& control : controls) {
    if (control.Id == id) return control.Place;
    if (auto inner = PlaceOf(control.Children, id)) {
      inner->Left += control.Place.Left;
      inner->Top += control.Place.Top;
      return inner;
    }
  }
  return std::nullopt;
}

const std::string& IconText(const Control& control) {
  static const std::string none;
  if (const auto* object = std::get_if<DockableObject>(&control.Subject)) return object->Nickname;
  if (const auto* jump = std::get_if<JumpEnd>(&control.Subject)) return jump->Description;
  return none;
}

void Append(ControlList& list, ControlList more) {
  for (Control& control : more) list.push_back(std::move(control));
}

Control MakeLine(ControlId id, int index, LineKind kind, Color color, LineStyle style) {
  Control line = MakeControl(ControlKind::Line, id, index, {});
  line.Line = kind;
  line.Style = style;
  line.BorderColor = color;
  return line;
}

Control MakePicture(ControlId id, std::optional<int> index, TwipRect place, std::string picture) {
  Control control = MakeControl(ControlKind::Picture, id, index, place);
  control.Picture = std::move(picture);
  return control;
}

Control MakePicture(ControlId id, std::optional<int> index, TwipRect place) {
  return MakePicture(id, index, place, ObjectName(id));
}

Control MakeFrame(ControlId id, std::optional<int> index, TwipRect place, Color back) {
  Control control = MakeControl(ControlKind::Frame, id, index, place);
  control.BackColor = back;
  return control;
}

Control MakeLabel(ControlId id, std::optional<int> index, TwipRect place, std::string caption) {
  Control control = MakeControl(ControlKind::Label, id, index, place);
  control.Caption = std::move(caption);
  return control;
}

}  // namespace orrerix
