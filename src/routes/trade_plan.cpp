// SPDX-License-Identifier: MIT
#include "routes/trade_plan.h"

#include <algorithm>

#include "routes/ratio.h"

namespace orrerix {
namespace {

std::int64_t AtLeastOne(std::int64_t divisor) {
  return std::max<std::int64_t>(1, divisor);
}

std::optional<Ratio> RatioOf(const TradePlan& plan, PlanSorting sorting, bool hasReturn) {
  switch (sorting) {
    case PlanSorting::Profit:
      return Ratio{plan.Profit(), 1};
    case PlanSorting::Percent:
      if (plan.Spending() == 0) return std::nullopt;
      return Ratio{plan.Profit(), plan.Spending()};
    case PlanSorting::Loop:
      if (!hasReturn) break;
      if (!plan.Back) return std::nullopt;
      return Ratio{plan.Profit() + (plan.Back->Cargo ? plan.Back->Cargo->Profit() : 0),
                   AtLeastOne(plan.Time() + plan.Back->Time)};
    case PlanSorting::Minute:
      break;
  }
  return Ratio{plan.Profit(), AtLeastOne(plan.Time())};
}

std::vector<NodeIndex> StopsOf(const TradePlan& plan) {
  std::vector<NodeIndex> stops{plan.Legs.front().From};
  for (const TradeLeg& leg : plan.Legs) stops.push_back(leg.To);
  return stops;
}

// An empty leg comes before every good.
std::vector<std::size_t> GoodsOf(const TradePlan& plan) {
  std::vector<std::size_t> goods;
  for (const TradeLeg& leg : plan.Legs) goods.push_back(leg.Cargo ? leg.Cargo->Good + 1 : 0);
  return goods;
}

}  // namespace

std::int64_t TradePlan::Profit() const {
  std::int64_t profit = 0;
  for (const TradeLeg& leg : Legs) profit += leg.Cargo ? leg.Cargo->Profit() : 0;
  return profit;
}

std::int64_t TradePlan::Spending() const {
  std::int64_t spending = 0;
  for (const TradeLeg& leg : Legs) spending += leg.Cargo ? leg.Cargo->Spending() : 0;
  return spending;
}

std::int64_t TradePlan::Time() const {
  std::int64_t time = 0;
  for (const TradeLeg& leg : Legs) time += leg.Time;
  return time;
}

bool PlanOrder::operator()(const TradePlan& a, const TradePlan& b) const {
  const auto ratioA = RatioOf(a, Sorting, HasReturn);
  const auto ratioB = RatioOf(b, Sorting, HasReturn);
  if (ratioA.has_value() != ratioB.has_value()) return ratioA.has_value();
  if (ratioA && !(*ratioA == *ratioB)) return *ratioA > *ratioB;
  if (a.Time() != b.Time()) return a.Time() < b.Time();
  const auto stopsA = StopsOf(a);
  const auto stopsB = StopsOf(b);
  if (stopsA != stopsB) return stopsA < stopsB;
  return GoodsOf(a) < GoodsOf(b);
}

void BestPlans::Add(TradePlan plan, std::string key) {
  if (keys_.insert(key).second) ++count_;
  const auto twin = std::find_if(best_.begin(), best_.end(),
                                 [&](const KeyedPlan& known) { return known.Key == key; });
  if (twin != best_.end()) {
    if (!order_(plan, twin->Plan)) return;
    best_.erase(twin);
  }
  Insert({std::move(plan), std::move(key)});
}

void BestPlans::AddUnique(TradePlan plan) {
  ++count_;
  Insert({std::move(plan), {}});
}

bool BestPlans::CountUnique(const TradeLeg& leg) {
  ++count_;
  if (best_.size() < most_) return true;
  if (most_ == 0) return false;
  const auto worst = RatioOf(best_.back().Plan, order_.Sorting, false);
  const std::int64_t divisor = order_.Sorting == PlanSorting::Profit    ? 1
                               : order_.Sorting == PlanSorting::Percent ? leg.Cargo->Spending()
                                                                        : AtLeastOne(leg.Time);
  if (divisor == 0) return !worst.has_value();
  return !worst || !(*worst > Ratio{leg.Cargo->Profit(), divisor});
}

void BestPlans::Insert(KeyedPlan plan) {
  if (best_.size() == most_ && (most_ == 0 || !order_(plan.Plan, best_.back().Plan))) return;
  const auto before = [this](const KeyedPlan& a, const KeyedPlan& b) {
    return order_(a.Plan, b.Plan);
  };
  best_.insert(std::upper_bound(best_.begin(), best_.end(), plan, before), std::move(plan));
  if (best_.size() > most_) best_.pop_back();
}

std::vector<TradePlan> BestPlans::Take() {
  std::vector<TradePlan> plans;
  for (KeyedPlan& keyed : best_) plans.push_back(std::move(keyed.Plan));
  best_.clear();
  return plans;
}

}  // namespace orrerix
