// SPDX-License-Identifier: MIT
// What can be bought and sold where.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "routes/travel_graph.h"

namespace orrerix {

using GoodIndex = std::size_t;

struct TradedGood {
  std::string Nickname;  // as its first offer spells it
  std::string Key;       // in lower case (ASCII)
  std::string Name;
  double Volume = 1;  // of the hold that a unit takes; at least 1
};

// A good at a stop: what a base sells it also takes, at the same price.
struct Offer {
  GoodIndex Good = 0;
  std::int64_t Price = 0;  // at least 1
  bool IsSold = false;     // else the base only takes it
};

// A dock at which one can trade.
struct TradeStop {
  NodeIndex Dock = 0;
  std::size_t Base = 0;       // the same number for all docks of a base
  std::vector<Offer> Offers;  // by good

  const Offer* Find(GoodIndex good) const;
};

// All goods in text order, and all stops in the order of their nicknames.
struct Market {
  std::vector<TradedGood> Goods;
  std::vector<TradeStop> Stops;
  std::size_t Bases = 0;

  std::optional<GoodIndex> FindGood(std::string_view nickname) const;
};

// Reads the market of a universe: the open docks that let people in, with their prices. Rows
// without a good, with a price below 1 or neither sold nor taken are left out; of several rows for
// a good at a dock the first counts.
Market ReadMarket(FailureSink& sink, Database& universe, const TravelGraph& graph,
                  const TravelLimits& limits);

// Whether any row of the prices is about a good.
bool IsTraded(FailureSink& sink, Database& universe, std::string_view good);

// What a ship carries from one stop to another.
struct Load {
  GoodIndex Good = 0;
  std::int64_t Buy = 0;
  std::int64_t Sell = 0;
  std::int64_t Units = 0;

  std::int64_t Profit() const { return Units * (Sell - Buy); }
  std::int64_t Spending() const { return Units * Buy; }
};

// What limits a load: the hold, and the money if it counts.
struct Purse {
  double Hold = 0;
  std::optional<std::int64_t> Money;
};

// How many units of a good fit and can be paid; 0 if none.
std::int64_t UnitsOf(const TradedGood& good, std::int64_t price, const Purse& purse);

// The load of the greatest profit between two stops, then of the least spending, then the first
// good in text order; nothing if no good is dearer there.
std::optional<Load> BestLoad(const Market& market, const TradeStop& from, const TradeStop& to,
                             const Purse& purse);

}  // namespace orrerix
