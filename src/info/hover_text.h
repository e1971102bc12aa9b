// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "import/universe.h"
#include "map/map_coords.h"
#include "shell/language.h"
#include "shell/routine.h"

namespace orrerix {

// What the hover box of an icon says, lines ending in CR LF but for the last, which is the icon's
// tag. Of an object with an owner: name, owner and coordinates. Of one without: name, coordinates
// and what its loadout carries, each cargo with amount and price. Any other tag stands alone.
std::string HoverText(Universe& universe, const CellNames& names, TextSource& texts,
                      std::string_view tag);

// The same as a part of `routine`; `text` comes in as the tag and keeps what was written when the
// routine is left.
void WriteHoverText(Routine& routine, Universe& universe, const CellNames& names, TextSource& texts,
                    std::string& text);

// The tag of an object's icon: its nickname as the map has it, whatever the case of `nickname`. One
// that the map does not have comes back as it is.
std::string IconTag(Universe& universe, std::string_view nickname);

// Whether a click on an icon with this tag opens a station window.
bool OpensStation(Universe& universe, std::string_view tag);

}  // namespace orrerix
