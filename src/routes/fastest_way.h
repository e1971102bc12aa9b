// SPDX-License-Identifier: MIT
// The fastest way between two places, leg by leg.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "routes/places.h"
#include "routes/travel_graph.h"

namespace orrerix {

// In the order in which equal legs between the same two nodes are preferred, but for the first and
// the last.
enum class LegKind { Launch, Gate, Hole, Lane, Fly, Dock };

struct WayLeg {
  LegKind Kind = LegKind::Fly;
  NodeIndex From = 0;
  NodeIndex To = 0;
  double Distance = 0;  // game units; 0 for launch, dock and jumps
  std::int64_t Time = 0;
};

struct Way {
  NodeIndex From = 0;
  NodeIndex To = 0;
  std::vector<WayLeg> Legs;

  std::int64_t Time() const;
  double Distance() const;
  int Jumps() const;
};

// The way of the fewest milliseconds from any open node of `from` to any of `to` that may be
// entered; of equal ones that of the fewest legs, then that with the first nicknames in turn, then
// a jump before a lane before free flight. No flight directly follows a flight. A node that both
// share is the whole way, without legs. Nothing if there is no way.
std::optional<Way> FastestWay(const TravelGraph& graph, const TravelModel& model,
                              const TravelLimits& limits, const TravelPlace& from,
                              const TravelPlace& to);

// A trip from one dock to another.
struct DockTrip {
  NodeIndex From = 0;
  NodeIndex To = 0;
};

// How many jumps the fastest way of each trip has; 0 where there is none. Trips to one dock are
// found together. `goesOn` is asked between docks; once it answers false the rest stays 0.
std::vector<int> JumpsOf(
    const TravelGraph& graph, const TravelModel& model, const TravelLimits& limits,
    const std::vector<DockTrip>& trips, const std::function<bool()>& goesOn = [] { return true; });

// How soon each node is reached from a place, launch included where it is docks (a node of the
// place itself takes no time); nothing where it is not reached. By node.
std::vector<std::optional<std::int64_t>> TimesFrom(const TravelGraph& graph,
                                                   const TravelModel& model,
                                                   const TravelLimits& limits,
                                                   const TravelPlace& from);

}  // namespace orrerix
