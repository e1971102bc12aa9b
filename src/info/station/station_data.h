// SPDX-License-Identifier: MIT
// Everything that a station window shows of its place.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "import/universe.h"
#include "map/grid/map_coords.h"
#include "shell/language.h"

namespace orrerix {

// The views of a station window, and their letters.
enum class StationMode : char {
  Prices = '#',
  Trades = '$',
  Info = 'I',
  Ships = '2',
  Equipment = '3'
};

// The three groups of the price table, from the top: what the place sells, what it buys only, and
// nothing; or in the trades' view what it sells, where that fetches more in the same system, and
// where in others.
inline constexpr int kPriceGroups = 3;

// One row of the price table. Prices are texts: they go straight into labels.
struct PriceItem {
  int Group = 0;     // 2, 1 or 0
  std::string Good;  // a good's nickname, or the key of a trade: system, base and good with
                     // commas between them
  std::string Price;
  std::string Difference;  // to the good's list price; of a trade, its profit
};

struct ForSale {
  std::string Nickname;  // of a ship, its package
  std::string RealName;
};

struct StationData {
  std::string Caption;
  std::string Info;  // lines ending in CR LF
  std::string Base;  // key by which the place's market is found
  std::vector<PriceItem> Prices;
  std::vector<ForSale> Ships;
  std::vector<ForSale> Equipment;
};

// Gathers it for the object with a nickname, whose case does not count. Only in the mode Prices are
// all goods listed, in the others those that the place sells; only Trades has trades. An object
// that the map lacks has neither texts nor prices, but may have a market.
StationData ReadStation(Universe& universe, const CellNames& names, TextSource& texts,
                        std::string_view nickname, StationMode mode);

}  // namespace orrerix
