// SPDX-License-Identifier: MIT
#include "demo/plan/universe_plan.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstddef>
#include <utility>

#include <fmt/core.h>

#include "demo/plan/jump_network.h"
#include "demo/plan/system_layout.h"

namespace orrerix::demo {
namespace {

constexpr int kNumbersOfPrefix = 99;
constexpr double kRoomBetweenJumps = 0.055;  // share of a turn

// Two letters and two digits: vo01 to vo99, then vp01 and so on, for maps compare only the
// beginnings of nicknames.
std::string SystemNickname(const Nation& nation, int number) {
  const int round = (number - 1) / kNumbersOfPrefix;
  const auto second = static_cast<char>('a' + (nation.Prefix[1] - 'a' + round) % 26);
  return fmt::format("{}{}{:02}", nation.Prefix[0], second, (number - 1) % kNumbersOfPrefix + 1);
}

std::vector<PlannedSystem> NamedSystems(const std::vector<PlacedCell>& cells, Names& names) {
  std::vector<PlannedSystem> systems;
  std::vector<int> numbers(kNationCount + 1);
  for (const PlacedCell& cell : cells) {
    const Nation& nation = Nations()[static_cast<std::size_t>(cell.Nation)];
    const int number = ++numbers[static_cast<std::size_t>(cell.Nation)];
    PlannedSystem system;
    system.Nickname = SystemNickname(nation, number);
    Random random(SeedOf("system " + system.Nickname));
    system.Name = names.System(nation, number, random);
    system.Nation = cell.Nation;
    system.Place = cell.Place;
    system.Scale = 1 + 0.1 * random.Between(0, 8);
    systems.push_back(std::move(system));
  }
  return systems;
}

bool IsCrowded(const PlannedSystem& system, double turn) {
  for (const JumpPoint& jump : system.Jumps) {
    const double apart = std::abs(TurnOf(jump.Place) - turn);
    if (std::min(apart, 1 - apart) < kRoomBetweenJumps) return true;
  }
  return false;
}

// Jump points lie at the rim on the side of the system they lead to, next to each other where
// several lead the same way.
PlanePoint JumpPlace(const PlannedSystem& system, const PlannedSystem& target, bool hole) {
  Random random(SeedOf(fmt::format("jump {} {} {}", system.Nickname, target.Nickname, hole)));
  const PlanePoint direction = {static_cast<double>(target.Place.X - system.Place.X),
                                static_cast<double>(target.Place.Y - system.Place.Y)};
  double turn = system.Place == target.Place ? random.Share() : TurnOf(direction);
  for (int attempt = 0; attempt < 17 && IsCrowded(system, turn); ++attempt) {
    turn += kRoomBetweenJumps * 1.05;
    turn -= std::floor(turn);
  }
  const double share = hole ? random.Between(0.8, 0.9) : random.Between(0.88, 0.97);
  return OnCircle(turn, share * system.Rim());
}

void AddJump(std::vector<PlannedSystem>& systems, int from, int to, bool hole) {
  PlannedSystem& system = systems[static_cast<std::size_t>(from)];
  const PlannedSystem& target = systems[static_cast<std::size_t>(to)];
  const char* ending = hole ? "_hole" : "";
  JumpPoint jump;
  jump.Nickname = fmt::format("{}_to_{}{}", system.Nickname, target.Nickname, ending);
  jump.Target = to;
  jump.TargetNickname = fmt::format("{}_to_{}{}", target.Nickname, system.Nickname, ending);
  jump.Hole = hole;
  jump.Place = JumpPlace(system, target, hole);
  system.Jumps.push_back(std::move(jump));
}

std::vector<std::string> TargetNames(const UniversePlan& plan, const PlannedSystem& system) {
  std::vector<std::string> names;
  for (const JumpPoint& jump : system.Jumps) {
    names.push_back(plan.Systems[static_cast<std::size_t>(jump.Target)].Name);
  }
  return names;
}

// The first lane with room for it loses its third ring.
void PlantMissingRing(UniversePlan& plan) {
  for (PlannedSystem& system : plan.Systems) {
    if (system.Lanes.empty()) continue;
    system.Lanes[0].MissingRing = 3;
    return;
  }
}

}  // namespace

UniversePlan PlanUniverse(int systemCount) {
  assert(systemCount >= FewestSystems && systemCount <= MostSystems);
  const std::vector<PlacedCell> cells = PlaceCells(systemCount);
  Names names;
  UniversePlan plan;
  plan.Systems = NamedSystems(cells, names);
  for (const Connection& connection : ConnectSystems(cells)) {
    AddJump(plan.Systems, connection.A, connection.B, connection.Hole);
    AddJump(plan.Systems, connection.B, connection.A, connection.Hole);
  }
  int stationCount = 0;
  for (PlannedSystem& system : plan.Systems) {
    stationCount = LayOutSystem(system, names, stationCount);
    LayLanes(system, TargetNames(plan, system));
  }
  PlantMissingRing(plan);
  plan.StrayHoleSystem = systemCount - 1;
  return plan;
}

}  // namespace orrerix::demo
