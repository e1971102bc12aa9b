// SPDX-License-Identifier: MIT
// The best trades between the stops of a universe.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "routes/market.h"
#include "routes/trade_plan.h"
#include "routes/travel_times.h"

namespace orrerix {

// A good that is aboard already.
struct CarriedGood {
  GoodIndex Good = 0;
  std::optional<std::int64_t> Units;  // none: as many as fit
};

// What a player asks for. Sets of docks and goods that are not given limit nothing.
struct TradeQuestion {
  double Hold = 100;
  std::optional<std::int64_t> Credits;  // money at the start; none: without limit
  std::optional<std::vector<NodeIndex>> From;
  std::optional<std::vector<NodeIndex>> To;
  std::vector<std::vector<NodeIndex>> Via;  // the docks of each place in turn
  std::optional<std::int64_t> LongestTime;  // milliseconds
  int Hops = 1;
  bool Loop = false;
  std::optional<CarriedGood> Carry;
  PlanSorting Sorting = PlanSorting::Minute;
  std::size_t Top = 20;
  std::size_t Width = 10;  // kept stops
};

struct TradeAnswer {
  std::uint64_t Count = 0;  // of all plans
  std::vector<TradePlan> Plans;
};

// Combinations of docks that a question with `Via` may have.
inline constexpr std::uint64_t kMostCombinations = 100'000;

// How many combinations of docks a question with `Via` asks for.
std::uint64_t CombinationsOf(const TradeQuestion& question);

// Finds the plans.
//
// One leg: every good that is dearer at another stop; where it is aboard, every stop that takes it.
// Several legs: every leg has a load, chosen with the money at hand, and no base comes twice. From
// a stop a plan goes on to its kept stops: of each other base the dock with the most profit per
// time of the load with the money at the start (then the shorter time, then the first nickname), of
// these the `Width` best in the same order. Towards `To`, or back to the first stop, the last leg
// may be any with a load. With `Via` the plan goes from `From` through the places, empty where
// there is no load.
//
// `goesOn` is asked now and then; once it answers false the answer is what was found so far.
TradeAnswer FindTrades(
    const Market& market, const TravelTimes& times, const TradeQuestion& question,
    const std::function<bool()>& goesOn = [] { return true; });

}  // namespace orrerix
