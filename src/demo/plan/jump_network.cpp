// SPDX-License-Identifier: MIT
#include "demo/plan/jump_network.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <set>
#include <tuple>
#include <utility>

#include "demo/content/nations.h"
#include "demo/plan/random.h"

namespace orrerix::demo {
namespace {

constexpr double kShortcutReach = 3.7;

class Network {
 public:
  explicit Network(const std::vector<PlacedCell>& cells) : cells_(cells) {}

  double Distance(int a, int b) const { return CellDistance(CellOf(a), CellOf(b)); }

  void Connect(int a, int b, bool hole) {
    if (linked_.insert({std::min(a, b), std::max(a, b), hole}).second) {
      connections_.push_back({a, b, hole});
    }
  }

  bool AreLinked(int a, int b) const {
    const auto [low, high] = std::minmax(a, b);
    return linked_.contains({low, high, false}) || linked_.contains({low, high, true});
  }

  // The nearest of `others` to a system, itself left out; -1 if there is none.
  int Nearest(int from, const std::vector<int>& others) const {
    int nearest = -1;
    double best = std::numeric_limits<double>::max();
    for (const int other : others) {
      if (other != from && Distance(from, other) < best) {
        best = Distance(from, other);
        nearest = other;
      }
    }
    return nearest;
  }

  std::vector<Connection> Connections() && { return std::move(connections_); }

 private:
  Cell CellOf(int system) const { return cells_[static_cast<std::size_t>(system)].Place; }

  const std::vector<PlacedCell>& cells_;
  std::set<std::tuple<int, int, bool>> linked_;
  std::vector<Connection> connections_;
};

using Members = std::vector<std::vector<int>>;

Members MembersOf(const std::vector<PlacedCell>& cells) {
  Members members(kNationCount + 1);
  for (std::size_t i = 0; i < cells.size(); ++i) {
    members[static_cast<std::size_t>(cells[i].Nation)].push_back(static_cast<int>(i));
  }
  return members;
}

// Grows a tree over the systems of one nation, always by the shortest step from inside to outside.
void ConnectNation(Network& network, const std::vector<int>& systems) {
  if (systems.empty()) return;
  std::vector<int> outside(systems.begin() + 1, systems.end());
  std::vector<int> nearest(outside.size(), systems[0]);
  while (!outside.empty()) {
    std::size_t best = 0;
    for (std::size_t i = 1; i < outside.size(); ++i) {
      const double length = network.Distance(outside[i], nearest[i]);
      if (length < network.Distance(outside[best], nearest[best])) best = i;
    }
    const int joined = outside[best];
    network.Connect(nearest[best], joined, false);
    outside.erase(outside.begin() + static_cast<std::ptrdiff_t>(best));
    nearest.erase(nearest.begin() + static_cast<std::ptrdiff_t>(best));
    for (std::size_t i = 0; i < outside.size(); ++i) {
      const double length = network.Distance(outside[i], joined);
      if (length < network.Distance(outside[i], nearest[i])) nearest[i] = joined;
    }
  }
}

void ConnectNations(Network& network, const Members& members) {
  for (std::size_t a = 0; a < kNationCount; ++a) {
    for (std::size_t b = a + 1; b < kNationCount; ++b) {
      if (members[a].empty() || members[b].empty()) continue;
      std::pair<int, int> closest = {members[a][0], members[b][0]};
      for (const int from : members[a]) {
        const int to = network.Nearest(from, members[b]);
        if (network.Distance(from, to) < network.Distance(closest.first, closest.second)) {
          closest = {from, to};
        }
      }
      network.Connect(closest.first, closest.second, false);
    }
  }
}

void ConnectBorder(Network& network, const Members& members) {
  std::vector<int> connected;
  for (std::size_t nation = 0; nation < kNationCount; ++nation) {
    connected.insert(connected.end(), members[nation].begin(), members[nation].end());
  }
  int count = 0;
  for (const int system : members[kBorderWorlds]) {
    const int nearest = network.Nearest(system, connected);
    if (nearest >= 0) {
      network.Connect(nearest, system, true);
      if (count % 3 == 0) network.Connect(nearest, system, false);
    }
    connected.push_back(system);
    ++count;
  }
}

void AddShortcuts(Network& network, int count) {
  Random random(SeedOf("shortcuts"));
  for (int system = 0; system < count; ++system) {
    if (!random.Chance(30)) continue;
    for (int other = 0; other < system; ++other) {
      if (network.Distance(system, other) > kShortcutReach || network.AreLinked(system, other))
        continue;
      network.Connect(system, other, true);
      break;
    }
  }
}

}  // namespace

std::vector<Connection> ConnectSystems(const std::vector<PlacedCell>& cells) {
  Network network(cells);
  const Members members = MembersOf(cells);
  for (std::size_t nation = 0; nation < kNationCount; ++nation) {
    ConnectNation(network, members[nation]);
  }
  ConnectNations(network, members);
  ConnectBorder(network, members);
  AddShortcuts(network, static_cast<int>(cells.size()));
  return std::move(network).Connections();
}

}  // namespace orrerix::demo
