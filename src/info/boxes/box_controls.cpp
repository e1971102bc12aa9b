// SPDX-License-Identifier: MIT
#include "info/boxes/box_controls.h"

#include <utility>

namespace orrerix {
namespace {

constexpr Color kBoxBack{0x400000};
constexpr Color kBoxBorder{0xB08040};
constexpr Color kBoxText{0x00CCCC};

}  // namespace

Control BoxShape(const TwipRect& place, ShapeForm form) {
  Control shape = MakeFrame(ControlId::BoxShape, std::nullopt, place, kBoxBack);
  shape.Shape = form;
  shape.BorderColor = kBoxBorder;
  return shape;
}

Control BoxText(const TwipRect& place, std::string text) {
  Control info = MakeLabel(ControlId::BoxText, std::nullopt, place, std::move(text));
  info.FontSize = kBoxFont;
  info.ForeColor = kBoxText;
  info.BackColor = kBoxBack;
  return info;
}

double RoomForBox(const MapDrawing& drawing) {
  return drawing.Panel == PanelPlace::Right ? drawing.PanelBox.Left : drawing.Frame.Width;
}

}  // namespace orrerix
