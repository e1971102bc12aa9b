// SPDX-License-Identifier: MIT
// The box beside an icon under the mouse.
#pragma once

#include "info/boxes/box_controls.h"
#include "info/texts/hover_text.h"
#include "map/redraw.h"

namespace orrerix {

// Width and height of a hovered icon, twips.
inline constexpr float kHoveredIcon = 600;

struct HoverBox {
  Control Icon;     // the icon at its larger size; its corner stays
  ControlList Box;  // shape and text, to be shown in front; empty if the user gave it up
};

// Opens the box of an icon of the last drawing. `measure` is that of the box's own font. The
// shape's subject is the icon as it was, so that it can be restored.
HoverBox OpenHoverBox(Universe& universe, const CellNames& names, TextSource& texts,
                      const TextMeasure& measure, const MapDrawing& drawing, const Control& icon);

// The box of a hover after a redraw: the same text beside the icon's new place.
HoverBox MovedHoverBox(const ControlList& box, const Control& icon, const MapDrawing& drawing);

// The icon at the size that it had before its box opened.
Control RestoredIcon(Control icon, const HoveredIcon& hovered);

// Size of a text of several lines, twips.
struct TextExtent {
  int Width = 0;   // of the longest line
  int Height = 0;  // of all lines
};

// Measures line by line; lines end in CR LF. Sizes end at 32,767: what would go beyond is a failure
// of `routine`, and left out.
TextExtent MeasureLines(Routine& routine, std::string_view text, const TextMeasure& measure,
                        int fontSize);

// Where the box stands: below the icon, or above it in the lower half of the map; flush with the
// icon's left side, or with its right side where the panel would be in the way.
TwipRect HoverBoxPlace(const TwipRect& icon, const TextExtent& text, const MapDrawing& drawing);

}  // namespace orrerix
