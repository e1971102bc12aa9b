// SPDX-License-Identifier: MIT
#include "routes/travel_times.h"

#include <algorithm>
#include <map>
#include <queue>
#include <utility>

namespace orrerix {
namespace {

std::int64_t Sum(std::int64_t a, std::int64_t b) {
  return a == kUnreachable || b == kUnreachable ? kUnreachable : a + b;
}

// The open nodes of one system and the times of the legs between them, for the ways within it.
class SystemWays {
 public:
  SystemWays(const TravelGraph& graph, const TravelModel& model, std::vector<NodeIndex> nodes)
      : nodes_(std::move(nodes)), flights_(nodes_.size() * nodes_.size()), rides_(nodes_.size()) {
    std::map<NodeIndex, std::size_t> places;
    for (std::size_t i = 0; i < nodes_.size(); ++i) places.emplace(nodes_[i], i);
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
      const TravelObject& here = graph.Objects[nodes_[i]];
      for (std::size_t k = 0; k < nodes_.size(); ++k) {
        flights_[i * nodes_.size() + k] =
            FlyTime(model, Distance(here.Point, graph.Objects[nodes_[k]].Point));
      }
      for (const LanePlace& place : here.Rings) {
        const TradeLaneRings& lane = graph.Lanes[place.Lane];
        for (std::size_t ring = 0; ring < lane.Rings.size(); ++ring) {
          const auto there = places.find(lane.Rings[ring]);
          if (ring == place.Ring || there == places.end()) continue;
          rides_[i].push_back({there->second, LaneTime(model, lane.Between(place.Ring, ring))});
        }
      }
    }
  }

  std::size_t PlaceOf(NodeIndex node) const {
    return static_cast<std::size_t>(std::lower_bound(nodes_.begin(), nodes_.end(), node) -
                                    nodes_.begin());
  }

  // The times from a node to all; after a flight no other follows.
  std::vector<std::int64_t> From(std::size_t start) const {
    const std::size_t count = nodes_.size();
    std::vector<std::int64_t> landed(count, kUnreachable);  // not by flight
    std::vector<std::int64_t> flown(count, kUnreachable);
    std::vector<bool> doneLanded(count);
    std::vector<bool> doneFlown(count);
    landed[start] = 0;
    while (true) {
      const auto [at, isFlown] = Next(landed, flown, doneLanded, doneFlown);
      if (at == count) break;
      const std::int64_t time = isFlown ? flown[at] : landed[at];
      (isFlown ? doneFlown : doneLanded)[at] = true;
      for (const Ride& ride : rides_[at]) {
        landed[ride.To] = std::min(landed[ride.To], time + ride.Time);
      }
      if (isFlown) continue;
      for (std::size_t to = 0; to < count; ++to) {
        if (to != at) flown[to] = std::min(flown[to], time + flights_[at * count + to]);
      }
    }
    for (std::size_t i = 0; i < count; ++i) landed[i] = std::min(landed[i], flown[i]);
    return landed;
  }

 private:
  struct Ride {
    std::size_t To;
    std::int64_t Time;
  };

  // The nearest state that is not settled; a flight that is no better than the other way is none.
  static std::pair<std::size_t, bool> Next(const std::vector<std::int64_t>& landed,
                                           const std::vector<std::int64_t>& flown,
                                           const std::vector<bool>& doneLanded,
                                           const std::vector<bool>& doneFlown) {
    std::size_t best = landed.size();
    bool isFlown = false;
    std::int64_t time = kUnreachable;
    for (std::size_t i = 0; i < landed.size(); ++i) {
      if (!doneLanded[i] && landed[i] < time) {
        best = i;
        isFlown = false;
        time = landed[i];
      }
      if (!doneFlown[i] && flown[i] < time && flown[i] < landed[i]) {
        best = i;
        isFlown = true;
        time = flown[i];
      }
    }
    return {best, isFlown};
  }

  std::vector<NodeIndex> nodes_;
  std::vector<std::int64_t> flights_;
  std::vector<std::vector<Ride>> rides_;
};

}  // namespace

TravelTimes::TravelTimes(const TravelGraph& graph, const TravelModel& model,
                         const TravelLimits& limits, const std::function<bool()>& goesOn)
    : graph_(graph),
      model_(model),
      limits_(limits),
      systems_(graph.Systems.size()),
      arrivalsIn_(graph.Systems.size()),
      exits_(graph.Systems.size()) {
  FindPorts();
  LinkExits();
  complete_ = FindTimesWithin(goesOn) && FindTimesBetweenArrivals(goesOn);
}

void TravelTimes::FindPorts() {
  for (NodeIndex i = 0; i < graph_.Objects.size(); ++i) {
    const TravelObject& object = graph_.Objects[i];
    if (!limits_.IsOpen(i) || !(object.IsDock || object.JumpsTo || object.IsArrival)) continue;
    std::vector<NodeIndex>& ports = systems_[object.System].Ports;
    if (object.IsDock) {
      docks_.push_back(i);
      dockPorts_.push_back({object.System, ports.size()});
    }
    ports.push_back(i);
  }
}

void TravelTimes::LinkExits() {
  std::map<NodeIndex, std::size_t> known;
  for (SystemIndex system = 0; system < systems_.size(); ++system) {
    const std::vector<NodeIndex>& ports = systems_[system].Ports;
    for (std::size_t port = 0; port < ports.size(); ++port) {
      if (ObstacleOf(graph_, limits_, ports[port])) continue;
      const Jump& jump = *graph_.Objects[ports[port]].JumpsTo;
      const SystemIndex behind = graph_.Objects[jump.Target].System;
      const auto [arrival, isNew] = known.emplace(jump.Target, arrivals_.size());
      if (isNew) {
        const std::vector<NodeIndex>& there = systems_[behind].Ports;
        const auto place = std::lower_bound(there.begin(), there.end(), jump.Target);
        arrivalsIn_[behind].push_back(arrivals_.size());
        arrivals_.push_back({behind, static_cast<std::size_t>(place - there.begin())});
      }
      exits_[system].push_back(
          {port, arrival->second,
           Milliseconds(jump.Kind == JumpKind::Gate ? model_.GateSeconds : model_.HoleSeconds)});
    }
  }
}

bool TravelTimes::FindTimesWithin(const std::function<bool()>& goesOn) {
  for (SystemIndex system = 0; system < systems_.size(); ++system) {
    if (!goesOn()) return false;
    std::vector<NodeIndex> nodes;
    for (const NodeIndex node : graph_.Systems[system].Objects) {
      if (limits_.IsOpen(node) && graph_.Objects[node].IsNode()) nodes.push_back(node);
    }
    const SystemWays ways(graph_, model_, std::move(nodes));
    SystemPorts& ports = systems_[system];
    for (const NodeIndex from : ports.Ports) {
      const std::vector<std::int64_t> times = ways.From(ways.PlaceOf(from));
      for (const NodeIndex to : ports.Ports) ports.Times.push_back(times[ways.PlaceOf(to)]);
    }
  }
  return true;
}

bool TravelTimes::FindTimesBetweenArrivals(const std::function<bool()>& goesOn) {
  const std::size_t count = arrivals_.size();
  between_.assign(count * count, kUnreachable);
  using Queued = std::pair<std::int64_t, std::size_t>;
  for (std::size_t start = 0; start < count; ++start) {
    if (!goesOn()) return false;
    const auto times = between_.begin() + static_cast<std::ptrdiff_t>(start * count);
    const auto timeOf = [&](std::size_t arrival) -> std::int64_t& {
      return times[static_cast<std::ptrdiff_t>(arrival)];
    };
    std::priority_queue<Queued, std::vector<Queued>, std::greater<Queued>> queue;
    timeOf(start) = 0;
    queue.push({0, start});
    while (!queue.empty()) {
      const auto [time, at] = queue.top();
      queue.pop();
      if (time > timeOf(at)) continue;
      const Arrival& here = arrivals_[at];
      for (const Exit& exit : exits_[here.System]) {
        const std::int64_t within = systems_[here.System].Between(here.Port, exit.Port);
        const std::int64_t there = Sum(time, Sum(within, exit.Time));
        if (there >= timeOf(exit.Arrival)) continue;
        timeOf(exit.Arrival) = there;
        queue.push({there, exit.Arrival});
      }
    }
  }
  return true;
}

std::vector<std::int64_t> TravelTimes::RowFrom(std::size_t dock) const {
  const DockPort& from = dockPorts_[dock];
  const std::size_t count = arrivals_.size();
  std::vector<std::int64_t> arriving(count, kUnreachable);
  for (const Exit& exit : exits_[from.System]) {
    const std::int64_t through =
        Sum(systems_[from.System].Between(from.Port, exit.Port), exit.Time);
    if (through == kUnreachable) continue;
    for (std::size_t arrival = 0; arrival < count; ++arrival) {
      arriving[arrival] =
          std::min(arriving[arrival], Sum(through, between_[exit.Arrival * count + arrival]));
    }
  }
  const std::int64_t ends = Milliseconds(model_.LaunchSeconds) + Milliseconds(model_.DockSeconds);
  std::vector<std::int64_t> row(docks_.size(), kUnreachable);
  for (std::size_t to = 0; to < docks_.size(); ++to) {
    const DockPort& port = dockPorts_[to];
    if (limits_.Forbidden[docks_[to]]) continue;
    std::int64_t time = kUnreachable;
    if (port.System == from.System) time = systems_[port.System].Between(from.Port, port.Port);
    for (const std::size_t arrival : arrivalsIn_[port.System]) {
      time = std::min(time, Sum(arriving[arrival],
                                systems_[port.System].Between(arrivals_[arrival].Port, port.Port)));
    }
    row[to] = Sum(time, ends);
  }
  row[dock] = 0;
  return row;
}

}  // namespace orrerix
