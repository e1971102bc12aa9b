// SPDX-License-Identifier: MIT
#include "routes/fastest_way.h"

#include <algorithm>
#include <map>

#include "routes/leg_search.h"

namespace orrerix {
namespace {

// The best way once the cost that is left from every state is known. Of all ways of the least cost
// the one with the first nicknames is walked node by node; a node may be reached in two states, by
// flight or otherwise, so a set of states goes on together.
class WayWalk {
 public:
  WayWalk(const LegSearch& search, const LegSearch::CostTable& left)
      : search_(search), left_(left) {}

  std::vector<WayLeg> From(NodeIndex start) {
    std::vector<NodeIndex> nodes = Nodes(start);
    std::vector<WayLeg> legs(nodes.size() - 1);
    Fill(nodes, legs, 0, {start, false});
    return legs;
  }

 private:
  // Whether a leg lies on a way of the least cost from a state.
  bool IsBest(const TravelState& state, const WayLeg& leg) const {
    const WayCost& after = left_[{leg.To, leg.Kind == LegKind::Fly}];
    if (after == kNoWay) return false;
    return WayCost{after.Time + leg.Time, after.Legs + 1} == left_[state];
  }

  std::vector<NodeIndex> Nodes(NodeIndex start) const {
    std::vector<NodeIndex> nodes{start};
    std::vector<TravelState> states{{start, false}};
    while (left_[states.front()].Legs > 0) {
      std::optional<NodeIndex> next;
      std::vector<TravelState> reached;
      for (const TravelState& state : states) {
        search_.ForEachLeg(state, [&](const WayLeg& leg) {
          if (!IsBest(state, leg) || (next && leg.To > *next)) return;
          if (!next || leg.To < *next) reached.clear();
          next = leg.To;
          reached.push_back({leg.To, leg.Kind == LegKind::Fly});
        });
      }
      nodes.push_back(*next);
      states = std::move(reached);
    }
    return nodes;
  }

  // Chooses the kinds of the legs between known nodes, the preferred one where it leads to the end.
  bool Fill(const std::vector<NodeIndex>& nodes, std::vector<WayLeg>& legs, std::size_t at,
            const TravelState& state) const {
    if (at == legs.size()) return true;
    std::vector<WayLeg> choices;
    search_.ForEachLeg(state, [&](const WayLeg& leg) {
      if (leg.To == nodes[at + 1] && IsBest(state, leg)) choices.push_back(leg);
    });
    std::stable_sort(choices.begin(), choices.end(),
                     [](const WayLeg& a, const WayLeg& b) { return a.Kind < b.Kind; });
    return std::any_of(choices.begin(), choices.end(), [&](const WayLeg& leg) {
      legs[at] = leg;
      return Fill(nodes, legs, at + 1, {leg.To, leg.Kind == LegKind::Fly});
    });
  }

  const LegSearch& search_;
  const LegSearch::CostTable& left_;
};

std::vector<NodeIndex> Enterable(const TravelLimits& limits, const TravelPlace& to) {
  std::vector<NodeIndex> nodes = to.Nodes;
  std::erase_if(nodes, [&](NodeIndex node) { return to.AreDocks && limits.Forbidden[node]; });
  return nodes;
}

// The ways to one place; what is left to it is found once.
class WaysTo {
 public:
  // `from` holds all the places that are asked for and are no nodes of every way.
  WaysTo(const TravelGraph& graph, const TravelModel& model, const TravelLimits& limits,
         const TravelPlace& from, const TravelPlace& to)
      : model_(model),
        search_(graph, model, limits, from, to),
        left_(search_.CostsTo(Enterable(limits, to))),
        docks_(to.AreDocks) {}

  std::optional<Way> From(const TravelPlace& from) const {
    const auto start = BestStart(from);
    if (!start) return std::nullopt;
    Way way{*start, *start, {}};
    if (left_[{*start, false}].Legs == 0) return way;
    way.Legs = WayWalk(search_, left_).From(*start);
    way.To = way.Legs.back().To;
    if (from.AreDocks) {
      way.Legs.insert(way.Legs.begin(),
                      {LegKind::Launch, way.From, way.From, 0, Milliseconds(model_.LaunchSeconds)});
    }
    if (docks_) {
      way.Legs.push_back({LegKind::Dock, way.To, way.To, 0, Milliseconds(model_.DockSeconds)});
    }
    return way;
  }

 private:
  std::optional<NodeIndex> BestStart(const TravelPlace& from) const {
    std::optional<NodeIndex> start;
    for (const NodeIndex node : from.Nodes) {
      if (!search_.IsOpen(node) || left_[{node, false}] == kNoWay) continue;
      if (!start || left_[{node, false}] < left_[{*start, false}]) start = node;
    }
    return start;
  }

  const TravelModel& model_;
  LegSearch search_;
  LegSearch::CostTable left_;
  bool docks_;
};

}  // namespace

std::int64_t Way::Time() const {
  std::int64_t time = 0;
  for (const WayLeg& leg : Legs) time += leg.Time;
  return time;
}

double Way::Distance() const {
  double distance = 0;
  for (const WayLeg& leg : Legs) distance += leg.Distance;
  return distance;
}

int Way::Jumps() const {
  return static_cast<int>(std::count_if(Legs.begin(), Legs.end(), [](const WayLeg& leg) {
    return leg.Kind == LegKind::Gate || leg.Kind == LegKind::Hole;
  }));
}

std::optional<Way> FastestWay(const TravelGraph& graph, const TravelModel& model,
                              const TravelLimits& limits, const TravelPlace& from,
                              const TravelPlace& to) {
  return WaysTo(graph, model, limits, from, to).From(from);
}

std::vector<int> JumpsOf(const TravelGraph& graph, const TravelModel& model,
                         const TravelLimits& limits, const std::vector<DockTrip>& trips,
                         const std::function<bool()>& goesOn) {
  std::vector<int> jumps(trips.size());
  std::map<NodeIndex, std::vector<std::size_t>> tripsTo;
  for (std::size_t i = 0; i < trips.size(); ++i) tripsTo[trips[i].To].push_back(i);
  for (const auto& [to, indexes] : tripsTo) {
    if (!goesOn()) break;
    const WaysTo ways(graph, model, limits, {}, {{to}, true});
    for (const std::size_t i : indexes) {
      const auto way = ways.From({{trips[i].From}, true});
      if (way) jumps[i] = way->Jumps();
    }
  }
  return jumps;
}

std::vector<std::optional<std::int64_t>> TimesFrom(const TravelGraph& graph,
                                                   const TravelModel& model,
                                                   const TravelLimits& limits,
                                                   const TravelPlace& from) {
  const LegSearch search(graph, model, limits, from, {});
  const LegSearch::CostTable costs = search.CostsFrom(from.Nodes);
  std::vector<std::optional<std::int64_t>> times(graph.Objects.size());
  for (NodeIndex node = 0; node < times.size(); ++node) {
    const WayCost best = std::min(costs[{node, false}], costs[{node, true}]);
    if (best == kNoWay) continue;
    const std::int64_t launch = from.AreDocks ? Milliseconds(model.LaunchSeconds) : 0;
    times[node] = best.Legs == 0 ? 0 : best.Time + launch;
  }
  return times;
}

}  // namespace orrerix
