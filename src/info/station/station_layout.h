// SPDX-License-Identifier: MIT
// The views of a station window as plain controls.
#pragma once

#include <string>
#include <vector>

#include "info/station/price_table.h"
#include "info/station/station_modes.h"
#include "info/texts/wording.h"
#include "map/drawing_list.h"
#include "map/grid/text_measure.h"

namespace orrerix {

// Design values that the views rest on, twips and points.
inline constexpr int kStationMargin = 1200;  // left of every view
inline constexpr int kStationText = 9;       // letters of texts and lists

// What a view needs to know.
struct StationView {
  const StationData& Data;
  const StationTexts& Texts;
  StationMode Mode = StationMode::Info;
  int FormWidth = 0;  // outer size of the window, twips
  int FormHeight = 0;
};

// A view: either the wrapped info text, or the list of ships or equipment (its rows are those of
// the data) beside the text of the first one, or price tables. All places are twips from the
// window's top left corner, except that of the list, which lies in its frame.
struct StationPicture {
  ControlList Controls;  // back to front
  std::vector<PriceTable> Prices;
};

// A list is filled again by every layout, which selects its first row. If the user cancels, price
// tables keep the rows that they have so far.
StationPicture LayOutStation(Universe& universe, const Wording& wording, const TextMeasure& measure,
                             const StationView& view);

// What the window shows for a row of its list: a ship by its package, equipment by its nickname.
std::string ForSaleText(Universe& universe, const Wording& wording, StationMode mode,
                        const ForSale& item);

}  // namespace orrerix
