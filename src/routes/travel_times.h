// SPDX-License-Identifier: MIT
// How long it takes from each dock of a universe to each other one.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "routes/travel_graph.h"

namespace orrerix {

// No way between two docks.
inline constexpr std::int64_t kUnreachable = INT64_MAX;

// The times of the fastest ways between docks, launch and docking included, in milliseconds. What
// is asked for is put together from the ways between the ports of each system (docks, jumps and
// where jumps arrive), which are found once.
class TravelTimes {
 public:
  // All of these must outlive this. `goesOn` is asked between systems; once it answers false the
  // times are given up and IsComplete() is false.
  TravelTimes(
      const TravelGraph& graph, const TravelModel& model, const TravelLimits& limits,
      const std::function<bool()>& goesOn = [] { return true; });

  bool IsComplete() const { return complete_; }

  // The open docks in text order; rows and columns are in this order.
  const std::vector<NodeIndex>& Docks() const { return docks_; }

  // From one dock (its place in Docks()) to all: 0 to itself, kUnreachable where there is no way
  // or the dock lets nobody in.
  std::vector<std::int64_t> RowFrom(std::size_t dock) const;

 private:
  // The ports of a system and the time of the fastest way within it between any two.
  struct SystemPorts {
    std::vector<NodeIndex> Ports;
    std::vector<std::int64_t> Times;  // Ports by Ports

    std::int64_t Between(std::size_t from, std::size_t to) const {
      return Times[from * Ports.size() + to];
    }
  };
  // Where a traveller enters a system by a jump.
  struct Arrival {
    SystemIndex System = 0;
    std::size_t Port = 0;
  };
  // A jump that can be taken.
  struct Exit {
    std::size_t Port = 0;
    std::size_t Arrival = 0;
    std::int64_t Time = 0;
  };
  struct DockPort {
    SystemIndex System = 0;
    std::size_t Port = 0;
  };

  void FindPorts();
  void LinkExits();
  bool FindTimesWithin(const std::function<bool()>& goesOn);
  bool FindTimesBetweenArrivals(const std::function<bool()>& goesOn);

  const TravelGraph& graph_;
  const TravelModel& model_;
  const TravelLimits& limits_;
  bool complete_ = false;
  std::vector<NodeIndex> docks_;
  std::vector<DockPort> dockPorts_;  // as docks_
  std::vector<SystemPorts> systems_;
  std::vector<Arrival> arrivals_;
  std::vector<std::vector<std::size_t>> arrivalsIn_;  // by system
  std::vector<std::vector<Exit>> exits_;              // by system
  std::vector<std::int64_t> between_;                 // arrivals by arrivals
};

}  // namespace orrerix
