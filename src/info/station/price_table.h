// SPDX-License-Identifier: MIT
// The price tables of a station window.
#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "info/station/station_modes.h"
#include "map/drawing_list.h"
#include "map/grid/text_measure.h"
#include "shell/routine.h"

namespace orrerix {

// A text of a table at its place in the window, in the largest font that fits there.
struct PriceLabel {
  std::string Caption;
  TwipRect Place;    // twips
  int FontSize = 0;  // points
  Color ForeColor;
  Color BackColor;
};

struct PriceRow {
  int Number = 0;
  std::string Good;      // as PriceItem has it
  bool IsTrade = false;  // its name is longer than a label may show
  PriceLabel Name;
  PriceLabel Price;
  PriceLabel Difference;
};

// One group of prices.
struct PriceTable {
  int Group = 0;
  PriceLabel Head;
  std::vector<PriceRow> Rows;
};

// What each row is called: a good by its name; a trade by good, system and station, without the
// station where the map lacks it.
std::vector<std::string> PriceRowNames(Universe& universe, const StationData& data,
                                       StationMode mode);

// Writes one table for each group, one below the other within a place. Rows are numbered from 1
// through all tables.
class PriceTableWriter {
 public:
  PriceTableWriter(Routine& routine, Universe& universe, const TextMeasure& measure,
                   StationMode mode)
      : routine_(routine), universe_(universe), measure_(measure), mode_(mode) {}

  void Write(const std::vector<PriceItem>& items,
             const std::array<std::string, kPriceGroups>& heads, const TwipRect& place);

  // The tables, from the top. After a Write that was cancelled they have the rows so far.
  std::vector<PriceTable> Take() { return std::move(tables_); }

 private:
  double Top(int group) const;
  PriceLabel Head(int group, const std::string& caption) const;
  PriceRow Row(const PriceItem& item) const;
  PriceLabel Label(const TwipRect& place, std::string caption, Color text, Color back) const;

  Routine& routine_;
  Universe& universe_;
  const TextMeasure& measure_;
  StationMode mode_;
  TwipRect place_;
  int rowHeight_ = 0;
  int rows_ = 0;
  std::vector<PriceTable> tables_;
};

}  // namespace orrerix
