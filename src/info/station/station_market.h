// SPDX-License-Identifier: MIT
// What a place sells and buys, and where its goods fetch more.
#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "info/station/station_data.h"
#include "shell/routine.h"

namespace orrerix {

// Reads the market of a place, found by its base or else by its own nickname. Cancelled in the
// middle, it keeps the rows that it has.
class MarketReader {
 public:
  // All of these must outlive this.
  MarketReader(Routine& routine, Universe& universe, std::string_view nickname)
      : routine_(routine), universe_(universe), nickname_(nickname) {}

  // The price table; with the trades from there in the mode Trades.
  void ReadPrices(std::string_view base, StationMode mode);

  // The ships and the equipment for sale.
  void ReadShips(std::string_view base);
  void ReadEquipment(std::string_view base);

  // What is read so far.
  std::vector<PriceItem> TakePrices() { return std::move(prices_); }
  std::vector<ForSale> TakeShips() { return std::move(ships_); }
  std::vector<ForSale> TakeEquipment() { return std::move(equipment_); }

 private:
  Routine& routine_;
  Universe& universe_;
  std::string_view nickname_;
  std::vector<PriceItem> prices_;
  std::vector<ForSale> ships_;
  std::vector<ForSale> equipment_;
};

// The best 15 sales of the goods in `prices` at other places, inside the system (group 1) or
// outside it (group 0), those with the highest profit first; equal ones in the order of the goods.
// Of each good only the 11 places that pay most are looked at.
std::vector<PriceItem> BestTrades(Routine& routine, Universe& universe, std::string_view nickname,
                                  std::string_view system, int group,
                                  const std::vector<PriceItem>& prices);

}  // namespace orrerix
