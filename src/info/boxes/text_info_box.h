// SPDX-License-Identifier: MIT
// The large box at the map's edge.
#pragma once

#include <string>

#include "info/texts/info_text.h"
#include "map/redraw.h"

namespace orrerix {

// The box with a text: as high as the map, against the panel, as wide as the text's longest line
// but no wider than the map. Shape and text, to be shown in front. `measure` is that of the
// box's own font, which has equal widths.
ControlList ShowTextInfoBox(ErrorLog& log, const std::string& text, const TextMeasure& measure,
                            const MapDrawing& drawing);

// The box about a ship, a piece of equipment or a faction; empty, which hides both controls, if
// there is nothing to say.
ControlList ShowInfoTextType(Universe& universe, const Wording& wording, const TextMeasure& measure,
                             const MapDrawing& drawing, std::string_view nickname, InfoType type);

}  // namespace orrerix
