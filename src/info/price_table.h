// SPDX-License-Identifier: MIT
// The price table of a station window.
#pragma once

#include <string>
#include <vector>

#include "info/station_modes.h"
#include "map/drawing_list.h"
#include "map/text_measure.h"
#include "shell/routine.h"

namespace orrerix {

// What each row is called: a good by its name; a trade by good, system and station, without the
// station where the map lacks it.
std::vector<std::string> PriceRowNames(Universe& universe, const StationData& data,
                                       StationMode mode);

// Adds heads and rows of the three groups, one below the other within `place`, each text in the
// largest font that fits its label. Rows are numbered from 1 through all groups; each has a name, a
// price and a difference. Cancelled, it leaves the rows that it has so far.
void WritePriceTable(Routine& routine, Universe& universe, const TextMeasure& measure,
                     const StationData& data, const StationTexts& texts, StationMode mode,
                     const Box& place, ControlList& controls);

}  // namespace orrerix
