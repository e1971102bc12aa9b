// SPDX-License-Identifier: MIT
#include "routes/leg_search.h"

#include <queue>

namespace orrerix {
namespace {

struct QueuedState {
  WayCost Cost;
  TravelState State;
  bool operator>(const QueuedState& other) const { return Cost > other.Cost; }
};
using StateQueue =
    std::priority_queue<QueuedState, std::vector<QueuedState>, std::greater<QueuedState>>;

// Settles states in the order of their cost. `expand(state, relax)` calls relax(state, leg time)
// for each state one leg further on.
template <typename Expand>
void Settle(LegSearch::CostTable& costs, StateQueue& queue, const Expand& expand) {
  while (!queue.empty()) {
    const QueuedState next = queue.top();
    queue.pop();
    if (next.Cost > costs[next.State]) continue;
    expand(next.State, [&](const TravelState& further, std::int64_t time) {
      const WayCost cost{next.Cost.Time + time, next.Cost.Legs + 1};
      if (cost >= costs[further]) return;
      costs[further] = cost;
      queue.push({cost, further});
    });
  }
}

}  // namespace

LegSearch::LegSearch(const TravelGraph& graph, const TravelModel& model, const TravelLimits& limits,
                     const TravelPlace& from, const TravelPlace& to)
    : graph_(graph),
      model_(model),
      isOpen_(graph.Objects.size()),
      nodesOfSystem_(graph.Systems.size()),
      jumps_(graph.Objects.size()),
      jumpsTo_(graph.Objects.size()) {
  for (NodeIndex i = 0; i < graph.Objects.size(); ++i) isOpen_[i] = graph.Objects[i].IsNode();
  for (const TravelPlace* place : {&from, &to}) {
    for (const NodeIndex node : place->Nodes) isOpen_[node] = true;
  }
  for (NodeIndex i = 0; i < graph.Objects.size(); ++i) {
    if (!limits.IsOpen(i)) isOpen_[i] = false;
    if (!isOpen_[i]) continue;
    nodesOfSystem_[graph.Objects[i].System].push_back(i);
    if (ObstacleOf(graph, limits, i)) continue;
    jumps_[i] = true;
    jumpsTo_[graph.Objects[i].JumpsTo->Target].push_back(i);
  }
}

LegSearch::CostTable LegSearch::CostsFrom(const std::vector<NodeIndex>& nodes) const {
  CostTable costs(graph_.Objects.size());
  StateQueue queue;
  for (const NodeIndex node : nodes) {
    if (!isOpen_[node]) continue;
    costs[{node, false}] = {};
    queue.push({{}, {node, false}});
  }
  Settle(costs, queue, [&](const TravelState& state, const auto& relax) {
    ForEachLeg(state, [&](const WayLeg& leg) {
      relax(TravelState{leg.To, leg.Kind == LegKind::Fly}, leg.Time);
    });
  });
  return costs;
}

// Flights and rides lead back as they lead there; only jumps have a direction.
LegSearch::CostTable LegSearch::CostsTo(const std::vector<NodeIndex>& nodes) const {
  CostTable costs(graph_.Objects.size());
  StateQueue queue;
  for (const NodeIndex node : nodes) {
    if (!isOpen_[node]) continue;
    for (const bool flew : {false, true}) {
      costs[{node, flew}] = {};
      queue.push({{}, {node, flew}});
    }
  }
  Settle(costs, queue, [&](const TravelState& state, const auto& relax) {
    if (state.Flew) {
      ForEachFlight(state.Node, [&](const WayLeg& leg) { relax({leg.To, false}, leg.Time); });
      return;
    }
    const auto relaxBoth = [&](NodeIndex node, std::int64_t time) {
      relax(TravelState{node, false}, time);
      relax(TravelState{node, true}, time);
    };
    ForEachRide(state.Node, [&](const WayLeg& leg) { relaxBoth(leg.To, leg.Time); });
    ForEachJumpTo(state.Node, [&](const WayLeg& leg) { relaxBoth(leg.From, leg.Time); });
  });
  return costs;
}

}  // namespace orrerix
