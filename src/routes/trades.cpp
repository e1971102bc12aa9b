// SPDX-License-Identifier: MIT
#include "routes/trades.h"

#include <algorithm>
#include <map>
#include <unordered_map>

#include "routes/ratio.h"

namespace orrerix {
namespace {

using StopIndex = std::size_t;

// The stops of a market with the times between them, row by row as they are asked for.
class StopTimes {
 public:
  StopTimes(const Market& market, const TravelTimes& times) : times_(times) {
    const std::vector<NodeIndex>& docks = times.Docks();
    for (std::size_t i = 0; i < docks.size(); ++i) columns_.emplace(docks[i], i);
    for (const TradeStop& stop : market.Stops) stopColumns_.push_back(columns_.at(stop.Dock));
  }

  std::vector<std::int64_t> RowFrom(NodeIndex dock) const {
    return times_.RowFrom(columns_.at(dock));
  }

  // Rows that are asked for again and again are kept.
  std::int64_t Between(NodeIndex from, NodeIndex to) {
    auto& row = rows_[from];
    if (row.empty()) row = RowFrom(from);
    return row[columns_.at(to)];
  }

  std::size_t ColumnOf(StopIndex stop) const { return stopColumns_[stop]; }

 private:
  const TravelTimes& times_;
  std::unordered_map<NodeIndex, std::size_t> columns_;
  std::vector<std::size_t> stopColumns_;
  std::unordered_map<NodeIndex, std::vector<std::int64_t>> rows_;
};

class TradeFinder {
 public:
  TradeFinder(const Market& market, const TravelTimes& times, const TradeQuestion& question,
              const std::function<bool()>& goesOn)
      : market_(market),
        question_(question),
        goesOn_(goesOn),
        times_(market, times),
        best_({question.Sorting, IsSingle()}, question.Top) {
    for (StopIndex i = 0; i < market.Stops.size(); ++i) stops_.emplace(market.Stops[i].Dock, i);
    stopsOfBase_.resize(market.Bases);
    for (StopIndex i = 0; i < market.Stops.size(); ++i) {
      stopsOfBase_[market.Stops[i].Base].push_back(i);
    }
  }

  TradeAnswer Find() {
    if (question_.Carry) {
      FindSales();
    } else if (!question_.Via.empty()) {
      FindTours();
    } else if (question_.Hops == 1 && !question_.Loop) {
      FindSingleLegs();
    } else {
      FindChains();
    }
    TradeAnswer answer{best_.Count(), best_.Take()};
    if (IsSingle()) {
      for (TradePlan& plan : answer.Plans) plan.Back = ReturnOf(plan.Legs.front());
    }
    return answer;
  }

 private:
  bool IsSingle() const { return question_.Via.empty() && question_.Hops == 1 && !question_.Loop; }
  bool NeedsReturns() const { return IsSingle() && question_.Sorting == PlanSorting::Loop; }

  bool IsTooLong(std::int64_t time) const {
    return question_.LongestTime && time > *question_.LongestTime;
  }

  const TradeStop* StopAt(NodeIndex dock) const {
    const auto found = stops_.find(dock);
    return found == stops_.end() ? nullptr : &market_.Stops[found->second];
  }

  // The stops among the docks that a question names; all stops where it names none.
  std::vector<StopIndex> StopsOf(const std::optional<std::vector<NodeIndex>>& docks) const {
    std::vector<StopIndex> stops;
    if (!docks) {
      for (StopIndex i = 0; i < market_.Stops.size(); ++i) stops.push_back(i);
      return stops;
    }
    for (const NodeIndex dock : *docks) {
      if (const auto found = stops_.find(dock); found != stops_.end()) {
        stops.push_back(found->second);
      }
    }
    return stops;
  }

  std::optional<std::int64_t> MoneyAfter(std::int64_t profit) const {
    if (!question_.Credits) return std::nullopt;
    return *question_.Credits + profit;
  }

  std::optional<ReturnTrip> ReturnOf(const TradeLeg& leg) {
    const std::int64_t time = times_.Between(leg.To, leg.From);
    if (time == kUnreachable) return std::nullopt;
    ReturnTrip trip{std::nullopt, time};
    const TradeStop* from = StopAt(leg.To);
    const TradeStop* to = StopAt(leg.From);
    if (from != nullptr && to != nullptr) {
      trip.Cargo = BestLoad(market_, *from, *to, {question_.Hold, MoneyAfter(leg.Cargo->Profit())});
    }
    return trip;
  }

  // One leg.

  void AddSingle(const TradeLeg& leg) {
    if (!NeedsReturns()) {
      if (best_.CountUnique(leg)) best_.Enter({{leg}, std::nullopt});
      return;
    }
    best_.AddUnique({{leg}, ReturnOf(leg)});
  }

  bool IsBetter(const TradeLeg& a, const TradeLeg& b) {
    const PlanOrder order{question_.Sorting, NeedsReturns()};
    TradePlan planA{{a}, std::nullopt};
    TradePlan planB{{b}, std::nullopt};
    if (NeedsReturns()) {
      planA.Back = ReturnOf(a);
      planB.Back = ReturnOf(b);
    }
    return order(planA, planB);
  }

  // Legs between the docks of two bases with the same good are one plan: the best of them.
  void FindSingleLegs() {
    const std::vector<StopIndex> targets = StopsOf(question_.To);
    std::map<std::size_t, std::vector<StopIndex>> sources;  // by base
    for (const StopIndex from : StopsOf(question_.From)) {
      sources[market_.Stops[from].Base].push_back(from);
    }
    std::map<std::size_t, std::vector<StopIndex>> targetsOfBase;
    for (const StopIndex to : targets) targetsOfBase[market_.Stops[to].Base].push_back(to);
    for (const auto& [base, docks] : sources) {
      if (!goesOn_()) return;
      std::vector<std::vector<std::int64_t>> rows;
      for (const StopIndex from : docks) {
        rows.push_back(times_.RowFrom(market_.Stops[from].Dock));
      }
      for (const auto& [other, others] : targetsOfBase) FindLegsBetween(docks, rows, others);
    }
  }

  void FindLegsBetween(const std::vector<StopIndex>& sources,
                       const std::vector<std::vector<std::int64_t>>& rows,
                       const std::vector<StopIndex>& targets) {
    const bool isOnePair = sources.size() == 1 && targets.size() == 1;
    std::map<GoodIndex, TradeLeg> bestOfGood;
    for (std::size_t i = 0; i < sources.size(); ++i) {
      for (const StopIndex to : targets) {
        const std::int64_t time = rows[i][times_.ColumnOf(to)];
        if (sources[i] == to || time == kUnreachable || IsTooLong(time)) continue;
        ForEachGood(sources[i], to, time, [&](const TradeLeg& leg) {
          if (isOnePair) return AddSingle(leg);
          const auto [known, isNew] = bestOfGood.try_emplace(leg.Cargo->Good, leg);
          if (!isNew && IsBetter(leg, known->second)) known->second = leg;
        });
      }
    }
    for (const auto& [good, leg] : bestOfGood) AddSingle(leg);
  }

  template <typename Take>
  void ForEachGood(StopIndex from, StopIndex to, std::int64_t time, const Take& take) const {
    const TradeStop& here = market_.Stops[from];
    const TradeStop& there = market_.Stops[to];
    auto at = there.Offers.begin();
    for (const Offer& offer : here.Offers) {
      if (!offer.IsSold) continue;
      while (at != there.Offers.end() && at->Good < offer.Good) ++at;
      if (at == there.Offers.end()) return;
      if (at->Good != offer.Good || at->Price <= offer.Price) continue;
      const std::int64_t units =
          UnitsOf(market_.Goods[offer.Good], offer.Price, {question_.Hold, question_.Credits});
      if (units < 1) continue;
      take(TradeLeg{here.Dock, there.Dock, Load{offer.Good, offer.Price, at->Price, units}, time});
    }
  }

  // Cargo already on board is sold wherever it fetches a price.
  void FindSales() {
    const CarriedGood& carry = *question_.Carry;
    const std::int64_t units =
        carry.Units.value_or(UnitsOf(market_.Goods[carry.Good], 0, {question_.Hold, {}}));
    if (units < 1) return;
    for (const NodeIndex from : *question_.From) {
      if (!goesOn_()) return;
      const std::vector<std::int64_t> row = times_.RowFrom(from);
      for (const StopIndex to : StopsOf(question_.To)) {
        const TradeStop& stop = market_.Stops[to];
        const Offer* offer = stop.Find(carry.Good);
        const std::int64_t time = row[times_.ColumnOf(to)];
        if (offer == nullptr || stop.Dock == from) continue;
        if (time == kUnreachable || IsTooLong(time)) continue;
        TradePlan plan{{{from, stop.Dock, Load{carry.Good, 0, offer->Price, units}, time}}, {}};
        if (NeedsReturns()) plan.Back = ReturnOf(plan.Legs.front());
        std::string key = KeyOf(plan);
        best_.Add(std::move(plan), std::move(key));
      }
    }
  }

  // Several legs.

  struct Candidate {
    StopIndex Stop = 0;
    std::int64_t Profit = 0;
    std::int64_t Time = 0;

    bool operator<(const Candidate& other) const {
      const Ratio mine{Profit, std::max<std::int64_t>(1, Time)};
      const Ratio others{other.Profit, std::max<std::int64_t>(1, other.Time)};
      if (!(mine == others)) return mine > others;
      if (Time != other.Time) return Time < other.Time;
      return Stop < other.Stop;
    }
  };

  const std::vector<StopIndex>& KeptStops(StopIndex from) {
    auto [known, isNew] = kept_.try_emplace(from);
    if (!isNew) return known->second;
    std::vector<Candidate> ofBases;
    for (std::size_t base = 0; base < stopsOfBase_.size(); ++base) {
      if (base == market_.Stops[from].Base) continue;
      std::optional<Candidate> best;
      for (const StopIndex to : stopsOfBase_[base]) {
        const auto candidate = CandidateOf(from, to);
        if (candidate && (!best || *candidate < *best)) best = candidate;
      }
      if (best) ofBases.push_back(*best);
    }
    std::sort(ofBases.begin(), ofBases.end());
    ofBases.resize(std::min(ofBases.size(), question_.Width));
    for (const Candidate& candidate : ofBases) known->second.push_back(candidate.Stop);
    return known->second;
  }

  std::optional<Candidate> CandidateOf(StopIndex from, StopIndex to) {
    const auto load = BestLoad(market_, market_.Stops[from], market_.Stops[to],
                               {question_.Hold, question_.Credits});
    if (!load) return std::nullopt;
    const std::int64_t time = times_.Between(market_.Stops[from].Dock, market_.Stops[to].Dock);
    if (time == kUnreachable) return std::nullopt;
    return Candidate{to, load->Profit(), time};
  }

  void FindChains() {
    targets_ = StopsOf(question_.To);
    for (const StopIndex from : StopsOf(question_.From)) {
      if (!goesOn_()) return;
      TradePlan plan;
      std::vector<StopIndex> stops{from};
      Extend(plan, stops, 0, 0);
    }
  }

  // Adds the plans that begin with `plan`, which has led through `stops`.
  void Extend(TradePlan& plan, std::vector<StopIndex>& stops, std::int64_t profit,
              std::int64_t time) {
    const auto legs = static_cast<int>(plan.Legs.size());
    if (question_.Loop) {
      if (legs >= 1) TryLeg(plan, stops, stops.front(), profit, time, true);
    } else if (question_.To) {
      for (const StopIndex to : targets_) {
        if (!HasBase(stops, to)) TryLeg(plan, stops, to, profit, time, true);
      }
    }
    const bool isOpen = !question_.Loop && !question_.To;
    if (legs + (isOpen ? 0 : 1) >= question_.Hops) return;
    const std::vector<StopIndex> kept = KeptStops(stops.back());
    for (const StopIndex to : kept) {
      if (!HasBase(stops, to)) TryLeg(plan, stops, to, profit, time, false);
    }
  }

  // One leg more, if there is a load for it and time: the last one, or one to go on from.
  void TryLeg(TradePlan& plan, std::vector<StopIndex>& stops, StopIndex to, std::int64_t profit,
              std::int64_t time, bool isLast) {
    const TradeStop& here = market_.Stops[stops.back()];
    const TradeStop& there = market_.Stops[to];
    if (here.Dock == there.Dock) return;
    const auto load = BestLoad(market_, here, there, {question_.Hold, MoneyAfter(profit)});
    if (!load) return;
    const std::int64_t legTime = times_.Between(here.Dock, there.Dock);
    if (legTime == kUnreachable || IsTooLong(time + legTime)) return;
    plan.Legs.push_back({here.Dock, there.Dock, load, legTime});
    const bool isOpen = !question_.Loop && !question_.To;
    if (isLast || isOpen) best_.Add(plan, KeyOf(plan));
    if (!isLast) {
      stops.push_back(to);
      Extend(plan, stops, profit + load->Profit(), time + legTime);
      stops.pop_back();
    }
    plan.Legs.pop_back();
  }

  bool HasBase(const std::vector<StopIndex>& stops, StopIndex stop) const {
    return std::any_of(stops.begin(), stops.end(), [&](StopIndex each) {
      return market_.Stops[each].Base == market_.Stops[stop].Base;
    });
  }

  // Through given places.

  void FindTours() {
    std::vector<NodeIndex> docks;
    for (const NodeIndex from : *question_.From) {
      if (!goesOn_()) return;
      docks.push_back(from);
      ExtendTour(docks);
      docks.pop_back();
    }
  }

  void ExtendTour(std::vector<NodeIndex>& docks) {
    if (docks.size() <= question_.Via.size()) {
      for (const NodeIndex next : question_.Via[docks.size() - 1]) {
        docks.push_back(next);
        ExtendTour(docks);
        docks.pop_back();
      }
      return;
    }
    if (question_.Loop) docks.push_back(docks.front());
    AddTour(docks);
    if (question_.Loop) docks.pop_back();
  }

  void AddTour(const std::vector<NodeIndex>& docks) {
    TradePlan plan;
    std::int64_t profit = 0;
    for (std::size_t i = 0; i + 1 < docks.size(); ++i) {
      const TradeStop* here = StopAt(docks[i]);
      const TradeStop* there = StopAt(docks[i + 1]);
      if (here == nullptr || there == nullptr || here == there) return;
      const std::int64_t time = times_.Between(docks[i], docks[i + 1]);
      if (time == kUnreachable) return;
      const auto load = BestLoad(market_, *here, *there, {question_.Hold, MoneyAfter(profit)});
      if (load) profit += load->Profit();
      plan.Legs.push_back({docks[i], docks[i + 1], load, time});
    }
    if (!IsTooLong(plan.Time())) best_.Add(plan, KeyOf(plan));
  }

  // The bases and goods of a plan in their order; of a loop its legs, wherever it begins.
  std::string KeyOf(const TradePlan& plan) const {
    std::vector<std::string> legs;
    for (const TradeLeg& leg : plan.Legs) {
      legs.push_back(BaseOf(leg.From) + '|' +
                     (leg.Cargo ? std::to_string(leg.Cargo->Good) : std::string()) + '|' +
                     BaseOf(leg.To) + '\n');
    }
    if (question_.Loop) std::sort(legs.begin(), legs.end());
    std::string key;
    for (const std::string& leg : legs) key += leg;
    return key;
  }

  std::string BaseOf(NodeIndex dock) const {
    const TradeStop* stop = StopAt(dock);
    return stop == nullptr ? "dock " + std::to_string(dock) : std::to_string(stop->Base);
  }

  const Market& market_;
  const TradeQuestion& question_;
  const std::function<bool()>& goesOn_;
  StopTimes times_;
  BestPlans best_;
  std::unordered_map<NodeIndex, StopIndex> stops_;
  std::vector<std::vector<StopIndex>> stopsOfBase_;
  std::unordered_map<StopIndex, std::vector<StopIndex>> kept_;
  std::vector<StopIndex> targets_;
};

}  // namespace

std::uint64_t CombinationsOf(const TradeQuestion& question) {
  std::uint64_t combinations = question.From ? question.From->size() : 0;
  for (const std::vector<NodeIndex>& docks : question.Via) {
    if (combinations > kMostCombinations) return combinations;
    combinations *= docks.size();
  }
  return combinations;
}

TradeAnswer FindTrades(const Market& market, const TravelTimes& times,
                       const TradeQuestion& question, const std::function<bool()>& goesOn) {
  return TradeFinder(market, times, question, goesOn).Find();
}

}  // namespace orrerix
