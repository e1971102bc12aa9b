// SPDX-License-Identifier: MIT
#include "info/station_modes.h"

#include <cassert>

#include "db/number_text.h"

namespace orrerix {
namespace {

constexpr int kToTradesText = 17;
constexpr int kToPricesText = 20;
constexpr int kSymbolFont = 36;
constexpr int kCountFont = 18;

ModeButton ListButton(std::size_t rows) {
  if (rows == 0) return {"X", kSymbolFont, ""};
  return {NumberText(static_cast<std::int64_t>(rows)), kCountFont, ""};
}

}  // namespace

ModeAnswer StationModes::Click(std::size_t button, const StationData& data) {
  assert(button < kModeButtons);
  switch (button) {
    case 0:
      Enter(priceMode_ == StationMode::Prices ? StationMode::Trades : StationMode::Prices);
      return ModeAnswer::Read;
    case 1:
      Enter(StationMode::Info);
      return ModeAnswer::Resize;
    case 2:
      if (data.Ships.empty()) return ModeAnswer::Beep;
      Enter(StationMode::Ships);
      return ModeAnswer::Resize;
    default:
      if (data.Equipment.empty()) return ModeAnswer::Beep;
      Enter(StationMode::Equipment);
      return ModeAnswer::Resize;
  }
}

std::array<ModeButton, kModeButtons> StationModes::Buttons(const StationData& data,
                                                           TextSource& texts) const {
  const bool prices = priceMode_ == StationMode::Prices;
  return {ModeButton{prices ? "#" : "$", kSymbolFont,
                     texts.TXT(prices ? kToTradesText : kToPricesText)},
          ModeButton{"I", kSymbolFont, ""}, ListButton(data.Ships.size()),
          ListButton(data.Equipment.size())};
}

void StationModes::Enter(StationMode mode) {
  mode_ = mode;
  if (mode == StationMode::Prices || mode == StationMode::Trades) priceMode_ = mode;
}

}  // namespace orrerix
