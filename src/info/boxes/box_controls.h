// SPDX-License-Identifier: MIT
// What the hover box and the large info box share.
#pragma once

#include <string>
#include <string_view>

#include "map/redraw.h"

namespace orrerix {

// Size of a box's letters, points.
inline constexpr int kBoxFont = 9;

// A box and its text at their places on the map frame.
Control BoxShape(const TwipRect& place, ShapeForm form);
Control BoxText(const TwipRect& place, std::string text);

// The right edge of what a box may cover, twips: the panel's left side, or the frame's width where
// the panel does not stand at the right.
double RoomForBox(const MapDrawing& drawing);

// Calls `visit` with each line of a text. Lines end in CR LF; one at the very end adds no line.
template <typename Visit>
void ForEachLine(std::string_view text, const Visit& visit) {
  constexpr std::string_view lineEnd = "\r\n";
  if (text.ends_with(lineEnd)) text.remove_suffix(lineEnd.size());
  while (true) {
    const std::size_t end = text.find(lineEnd);
    visit(text.substr(0, end));
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + lineEnd.size());
  }
}

}  // namespace orrerix
