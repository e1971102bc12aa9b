// SPDX-License-Identifier: MIT
// The search for ways over the legs of a travel graph.
#pragma once

#include <compare>
#include <cstdint>
#include <vector>

#include "routes/fastest_way.h"

namespace orrerix {

// What a way costs: of equal times the one with fewer legs is less.
struct WayCost {
  std::int64_t Time = 0;
  int Legs = 0;
  auto operator<=>(const WayCost&) const = default;
};
inline constexpr WayCost kNoWay{INT64_MAX, 0};

// One node as a traveller stands there: after a flight no other flight may follow.
struct TravelState {
  NodeIndex Node = 0;
  bool Flew = false;
};

// The legs of a graph, under limits, with the nodes that one way adds to it.
class LegSearch {
 public:
  // All of these must outlive this.
  LegSearch(const TravelGraph& graph, const TravelModel& model, const TravelLimits& limits,
            const TravelPlace& from, const TravelPlace& to);

  bool IsOpen(NodeIndex node) const { return isOpen_[node]; }

  // Calls take(leg) for each leg that leaves a state.
  template <typename Take>
  void ForEachLeg(const TravelState& state, const Take& take) const;

  // What is left to a node of the place, from each state; kNoWay where there is no way.
  class CostTable {
   public:
    explicit CostTable(std::size_t nodes) : costs_(2 * nodes, kNoWay) {}
    WayCost& operator[](const TravelState& state) {
      return costs_[2 * state.Node + (state.Flew ? 1 : 0)];
    }
    const WayCost& operator[](const TravelState& state) const {
      return costs_[2 * state.Node + (state.Flew ? 1 : 0)];
    }

   private:
    std::vector<WayCost> costs_;
  };
  CostTable CostsFrom(const std::vector<NodeIndex>& nodes) const;
  CostTable CostsTo(const std::vector<NodeIndex>& nodes) const;

 private:
  template <typename Take>
  void ForEachFlight(NodeIndex node, const Take& take) const;
  template <typename Take>
  void ForEachRide(NodeIndex node, const Take& take) const;
  template <typename Take>
  void ForEachJumpTo(NodeIndex node, const Take& take) const;

  const TravelGraph& graph_;
  const TravelModel& model_;
  std::vector<bool> isOpen_;
  std::vector<std::vector<NodeIndex>> nodesOfSystem_;  // the open ones
  std::vector<bool> jumps_;                            // by node: its jump can be taken
  std::vector<std::vector<NodeIndex>> jumpsTo_;        // by node
};

template <typename Take>
void LegSearch::ForEachFlight(NodeIndex node, const Take& take) const {
  const TravelObject& here = graph_.Objects[node];
  for (const NodeIndex there : nodesOfSystem_[here.System]) {
    if (there == node) continue;
    const double distance = Distance(here.Point, graph_.Objects[there].Point);
    take(WayLeg{LegKind::Fly, node, there, distance, FlyTime(model_, distance)});
  }
}

template <typename Take>
void LegSearch::ForEachRide(NodeIndex node, const Take& take) const {
  for (const LanePlace& place : graph_.Objects[node].Rings) {
    const TradeLaneRings& lane = graph_.Lanes[place.Lane];
    for (std::size_t ring = 0; ring < lane.Rings.size(); ++ring) {
      if (ring == place.Ring || !isOpen_[lane.Rings[ring]]) continue;
      const double distance = lane.Between(place.Ring, ring);
      take(WayLeg{LegKind::Lane, node, lane.Rings[ring], distance, LaneTime(model_, distance)});
    }
  }
}

template <typename Take>
void LegSearch::ForEachLeg(const TravelState& state, const Take& take) const {
  if (jumps_[state.Node]) {
    const Jump& jump = *graph_.Objects[state.Node].JumpsTo;
    const bool isGate = jump.Kind == JumpKind::Gate;
    take(WayLeg{isGate ? LegKind::Gate : LegKind::Hole, state.Node, jump.Target, 0,
                Milliseconds(isGate ? model_.GateSeconds : model_.HoleSeconds)});
  }
  ForEachRide(state.Node, take);
  if (!state.Flew) ForEachFlight(state.Node, take);
}

template <typename Take>
void LegSearch::ForEachJumpTo(NodeIndex node, const Take& take) const {
  for (const NodeIndex jump : jumpsTo_[node]) {
    ForEachLeg({jump, true}, [&](const WayLeg& leg) {
      if (leg.Kind == LegKind::Gate || leg.Kind == LegKind::Hole) take(leg);
    });
  }
}

}  // namespace orrerix
