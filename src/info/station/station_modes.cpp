// SPDX-License-Identifier: MIT
#include "info/station/station_modes.h"

#include <cassert>
#include <utility>

#include "db/values/number_text.h"

namespace orrerix {
namespace {

constexpr int kSymbolFont = 36;
constexpr int kCountFont = 18;

ModeButton ListButton(std::size_t rows) {
  if (rows == 0) return {"X", kSymbolFont, ""};
  return {NumberText(static_cast<std::int64_t>(rows)), kCountFont, ""};
}

}  // namespace

StationTexts ReadStationTexts(StationTexts before, StationMode mode, TextSource& texts) {
  StationTexts read = std::move(before);
  read.Heads[2] = texts.Text(TextId::BuyPrices);
  if (mode == StationMode::Prices) {
    read.PriceTip = texts.Text(TextId::SwitchToTrades);
    read.Heads[1] = texts.Text(TextId::SellPrices);
    read.Heads[0] = texts.Text(TextId::StandardSellPrices);
  } else if (mode == StationMode::Trades) {
    read.PriceTip = texts.Text(TextId::SwitchToPrices);
    read.Heads[1] = texts.Text(TextId::TradesInsideSystem);
    read.Heads[0] = texts.Text(TextId::TradesOutsideSystem);
  }
  return read;
}

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
                                                           const StationTexts& texts) const {
  return {ModeButton{priceMode_ == StationMode::Prices ? "#" : "$", kSymbolFont, texts.PriceTip},
          ModeButton{"I", kSymbolFont, ""}, ListButton(data.Ships.size()),
          ListButton(data.Equipment.size())};
}

void StationModes::Enter(StationMode mode) {
  mode_ = mode;
  if (mode == StationMode::Prices || mode == StationMode::Trades) priceMode_ = mode;
}

}  // namespace orrerix
