// SPDX-License-Identifier: MIT
// One good at a time: what it brings, and which stops sell or take it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "routes/market.h"
#include "routes/trade_plan.h"
#include "routes/travel.h"

namespace orrerix {

// The trade of each good that has the most profit by time, then the shorter time, then the first
// nicknames; by good, nothing where no stop takes it for more. With `from` it is bought at one of
// these docks. `goesOn` is asked between docks; once it answers false the answer is what was found
// so far.
std::vector<std::optional<TradeLeg>> BestTradeOfGoods(
    const Market& market, const TravelTimes& times, const Purse& purse,
    const std::optional<std::vector<NodeIndex>>& from,
    const std::function<bool()>& goesOn = [] { return true; });

// A stop that sells or takes a good, and the fastest way to it.
struct GoodOffer {
  NodeIndex Dock = 0;
  std::int64_t Price = 0;
  bool IsSold = false;
  std::optional<Way> WayThere;  // nothing without a start, or where there is no way
};

// All stops that have a good, the highest price first, then by time (those without a way last),
// then by nickname.
std::vector<GoodOffer> OffersOf(
    const Market& market, const Travel& travel, GoodIndex good,
    const std::optional<TravelPlace>& from,
    const std::function<bool()>& goesOn = [] { return true; });

// What a good costs where it is sold for least among some docks; nothing if none sells it.
std::optional<std::int64_t> CheapestAt(const Market& market, const std::vector<NodeIndex>& docks,
                                       GoodIndex good);

}  // namespace orrerix
