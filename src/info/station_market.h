// SPDX-License-Identifier: MIT
// What a place sells and buys, and where its goods fetch more.
#pragma once

#include <string_view>
#include <vector>

#include "info/station_data.h"
#include "shell/routine.h"

namespace orrerix {

// Adds the price table of a place, found by its base or else by its own nickname; with the trades
// from there in the mode Trades. Cancelled, it leaves the rows that it has so far.
void ReadPrices(Routine& routine, Universe& universe, std::string_view nickname,
                std::string_view base, StationMode mode, std::vector<PriceItem>& prices);

// The best 15 sales of the goods in `prices` at other places, inside the system (group 1) or
// outside it (group 0), those with the highest profit first; equal ones in the order of the goods.
// Of each good only the 11 places that pay most are looked at.
std::vector<PriceItem> BestTrades(Routine& routine, Universe& universe, std::string_view nickname,
                                  std::string_view system, int group,
                                  const std::vector<PriceItem>& prices);

// Adds the ships and the equipment that the place has in its market. Cancelled, they leave the rows
// that they have so far.
void ShipsForSale(Routine& routine, Universe& universe, std::string_view nickname,
                  std::string_view base, std::vector<ForSale>& ships);
void EquipmentForSale(Routine& routine, Universe& universe, std::string_view nickname,
                      std::string_view base, std::vector<ForSale>& equipment);

}  // namespace orrerix
