// SPDX-License-Identifier: MIT
// The buttons at the left of a station window and what they switch between.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "info/station/station_data.h"

namespace orrerix {

inline constexpr std::size_t kModeButtons = 4;

struct ModeButton {
  std::string Caption;
  int FontSize = 0;  // points
  std::string ToolTip;
};

// The texts of a window that are set while its data is read, and stay through every lay-out and
// every change of the language until the data is read again.
struct StationTexts {
  std::array<std::string, kPriceGroups> Heads;  // of the price table, by group
  std::string PriceTip;                         // tool tip of the price button
};

// The texts once the data for a mode is read. The views without prices leave those of the price
// view that was read before, but for the head of what the place sells.
StationTexts ReadStationTexts(StationTexts before, StationMode mode, TextSource& texts);

// What a click on a button asks of the window.
enum class ModeAnswer {
  Beep,    // nothing to show; the view stays
  Resize,  // another view of the same data
  Read     // the data again, then the view
};

// The mode of a window. The price button names the price view that was entered last and opens the
// other one.
class StationModes {
 public:
  // As a window opens: the price view is prepared, the info text shown.
  StationModes() = default;
  explicit StationModes(StationMode mode) { Enter(mode); }

  StationMode Mode() const { return mode_; }

  // Buttons 0 to 3. `data` says whether there are ships and equipment to list.
  ModeAnswer Click(std::size_t button, const StationData& data);

  std::array<ModeButton, kModeButtons> Buttons(const StationData& data,
                                               const StationTexts& texts) const;

 private:
  void Enter(StationMode mode);

  StationMode mode_ = StationMode::Info;
  StationMode priceMode_ = StationMode::Prices;
};

}  // namespace orrerix
