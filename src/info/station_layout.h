// SPDX-License-Identifier: MIT
// The views of a station window as plain controls.
#pragma once

#include <string>

#include "info/station_modes.h"
#include "info/wording.h"
#include "map/drawing_list.h"
#include "map/text_measure.h"

namespace orrerix {

// Design values that the views rest on, twips and points.
inline constexpr int kStationMargin = 1200;  // Image1.Width, the left margin of every view
inline constexpr int kStationText = 9;       // letters of InfoText and SearchList

// What a view needs to know.
struct StationView {
  const StationData& Data;
  const StationTexts& Texts;
  StationMode Mode = StationMode::Info;
  int FormWidth = 0;  // outer size of the window, twips
  int FormHeight = 0;
};

// The controls of a view, back to front: the wrapped info text; the price table; or the list of
// ships or equipment (its rows are those of the data) beside the text of the first one. All
// places are twips from the window's top left corner, but that of SearchList, which lies in
// SearchFrame. A list is filled anew by every lay-out, which selects its first row.
ControlList LayOutStation(Universe& universe, const Wording& wording, const TextMeasure& measure,
                          const StationView& view);

// What the window tells of a row of its list: a ship by its package, equipment by its nickname.
std::string ForSaleText(Universe& universe, const Wording& wording, StationMode mode,
                        const ForSale& item);

}  // namespace orrerix
