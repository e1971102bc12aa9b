// SPDX-License-Identifier: MIT
#include "info/boxes/text_info_box.h"

#include <algorithm>

#include <fmt/format.h>

#include "info/boxes/box_controls.h"
#include "map/grid/numeric.h"

namespace orrerix {
namespace {

constexpr int kRoomBesideText = 400;
constexpr int kTextLeft = 200;
constexpr int kTextTop = 150;

int WidestLine(std::string_view text, const TextMeasure& measure) {
  int widest = 0;
  ForEachLine(text, [&](std::string_view line) {
    widest = std::max(widest, measure.TextWidth(line, kBoxFont));
  });
  return widest;
}

}  // namespace

ControlList ShowTextInfoBox(ErrorLog& log, const std::string& text, const TextMeasure& measure,
                            const MapDrawing& drawing) {
  ControlList box;
  Routine routine(log, "OrrerixMain.ShowTextInfoBox",
                  [&] { return "While showing InfoText: " + text; });
  routine.Run([&] {
    const double room = RoomForBox(drawing);
    const double width = std::min<double>(WidestLine(text, measure) + kRoomBesideText, room);
    const TwipRect place{NotBelowZero(room - width), 0, width, drawing.Frame.Height};
    box.push_back(BoxShape(place, ShapeForm::Rectangle));
    box.push_back(BoxText({place.Left + kTextLeft, place.Top + kTextTop,
                           NotBelowZero(place.Width - 450), NotBelowZero(place.Height - 300)},
                          text));
  });
  return box;
}

ControlList ShowInfoTextType(Universe& universe, const Wording& wording, const TextMeasure& measure,
                             const MapDrawing& drawing, std::string_view nickname, InfoType type) {
  ControlList box;
  Routine routine(universe.Log, "OrrerixMain.ShowInfoTextType",
                  [&] { return fmt::format("{} Type#{}", nickname, static_cast<int>(type)); });
  routine.Run([&] {
    const std::string text = GetInfoTextType(universe, wording, nickname, type);
    if (!text.empty()) box = ShowTextInfoBox(universe.Log, text, measure, drawing);
  });
  return box;
}

}  // namespace orrerix
