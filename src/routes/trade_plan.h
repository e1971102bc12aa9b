// SPDX-License-Identifier: MIT
// Plans of trades, and which of them is better.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "routes/market.h"

namespace orrerix {

struct TradeLeg {
  NodeIndex From = 0;  // docks
  NodeIndex To = 0;
  std::optional<Load> Cargo;
  std::int64_t Time = 0;  // launch and docking included, milliseconds
};

// The way back of a plan with one leg.
struct ReturnTrip {
  std::optional<Load> Cargo;
  std::int64_t Time = 0;
};

struct TradePlan {
  std::vector<TradeLeg> Legs;
  std::optional<ReturnTrip> Back;  // nothing where there is no way back, or it was not asked for

  std::int64_t Profit() const;
  std::int64_t Spending() const;
  std::int64_t Time() const;
};

enum class PlanSorting { Profit, Minute, Percent, Loop };

// Whether `a` stands before `b`: the greater profit, profit per time, per spending, or per time
// there and back (compared as exact fractions; a plan without one comes last), then the shorter
// time, then the first nicknames of stops, then of goods. Without returns Loop sorts as Minute.
struct PlanOrder {
  PlanSorting Sorting = PlanSorting::Minute;
  bool HasReturn = false;

  bool operator()(const TradePlan& a, const TradePlan& b) const;
};

// The best plans of many. Of plans with equal keys the best counts, and is counted once.
class BestPlans {
 public:
  BestPlans(PlanOrder order, std::size_t most) : order_(order), most_(most) {}

  void Add(TradePlan plan, std::string key);

  // Counts a plan that is known to have a key of its own.
  void AddUnique(TradePlan plan);

  // Counts such a plan of one leg. True if it may be among the best: building it is
  // worth while only then. For sortings without a way back.
  bool CountUnique(const TradeLeg& leg);

  // Takes a plan that CountUnique counted.
  void Enter(TradePlan plan) { Insert({std::move(plan), {}}); }

  std::uint64_t Count() const { return count_; }

  // The best, in order; nothing is left then.
  std::vector<TradePlan> Take();

 private:
  struct KeyedPlan {
    TradePlan Plan;
    std::string Key;  // empty: unique
  };
  void Insert(KeyedPlan plan);

  PlanOrder order_;
  std::size_t most_;
  std::uint64_t count_ = 0;
  std::unordered_set<std::string> keys_;
  std::vector<KeyedPlan> best_;  // in order
};

}  // namespace orrerix
