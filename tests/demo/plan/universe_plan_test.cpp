// SPDX-License-Identifier: MIT
#include "demo/plan/universe_plan.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "demo/content/nations.h"
#include "demo/plan/jump_network.h"

namespace orrerix::demo {
namespace {

// The systems that can be reached from the first one.
std::set<int> Reached(const UniversePlan& plan, bool gatesOnly = false) {
  std::set<int> reached = {0};
  std::vector<int> open = {0};
  while (!open.empty()) {
    const int system = open.back();
    open.pop_back();
    for (const JumpPoint& jump : plan.Systems[static_cast<std::size_t>(system)].Jumps) {
      if (gatesOnly && jump.Hole) continue;
      if (reached.insert(jump.Target).second) open.push_back(jump.Target);
    }
  }
  return reached;
}

TEST(UniversePlan, HasAsManySystemsAsAskedFor) {
  for (const int count : {2, 5, 40, 47, 342, 500}) {
    EXPECT_EQ(PlanUniverse(count).Systems.size(), static_cast<std::size_t>(count));
  }
}

TEST(UniversePlan, EverySystemCanBeReached) {
  for (const int count : {2, 5, 40, 100, 500}) {
    EXPECT_EQ(Reached(PlanUniverse(count)).size(), static_cast<std::size_t>(count));
  }
}

TEST(UniversePlan, GatesAloneConnectTheNations) {
  const UniversePlan plan = PlanUniverse(40);
  const std::set<int> reached = Reached(plan, true);

  for (std::size_t i = 0; i < plan.Systems.size(); ++i) {
    if (plan.Systems[i].Nation == kBorderWorlds) continue;
    EXPECT_TRUE(reached.contains(static_cast<int>(i))) << plan.Systems[i].Nickname;
  }
}

TEST(UniversePlan, EveryJumpPointHasItsCounterpart) {
  const UniversePlan plan = PlanUniverse(100);
  std::set<std::string> nicknames;
  for (const PlannedSystem& system : plan.Systems) {
    for (const JumpPoint& jump : system.Jumps) EXPECT_TRUE(nicknames.insert(jump.Nickname).second);
  }

  for (const PlannedSystem& system : plan.Systems) {
    for (const JumpPoint& jump : system.Jumps) EXPECT_TRUE(nicknames.contains(jump.TargetNickname));
  }
}

TEST(UniversePlan, NicknamesAndNamesAreUnique) {
  const UniversePlan plan = PlanUniverse(700);
  std::set<std::string> nicknames;
  std::set<std::string> names;

  for (const PlannedSystem& system : plan.Systems) {
    EXPECT_EQ(system.Nickname.size(), 4u);
    EXPECT_TRUE(nicknames.insert(system.Nickname).second) << system.Nickname;
    EXPECT_TRUE(names.insert(system.Name).second) << system.Name;
  }
}

TEST(UniversePlan, EverythingLiesWithinTheCellOfItsSystem) {
  const UniversePlan plan = PlanUniverse(60);

  for (const PlannedSystem& system : plan.Systems) {
    const auto isInside = [&](PlanePoint place) {
      // Maps draw three quarters of a distance, times the scale, in a cell of 200000.
      const double reach = 0.75 * system.Scale * std::max(std::abs(place.X), std::abs(place.Y));
      return reach < 100000;
    };
    for (const PlannedBase& base : system.Bases) EXPECT_TRUE(isInside(base.Place)) << base.Nickname;
    for (const JumpPoint& jump : system.Jumps) EXPECT_TRUE(isInside(jump.Place)) << jump.Nickname;
    for (const Wreck& wreck : system.Wrecks) EXPECT_TRUE(isInside(wreck.Place)) << wreck.Nickname;
  }
}

TEST(UniversePlan, LanesHaveFourToTwelveRingsNumberedThroughTheSystem) {
  for (const PlannedSystem& system : PlanUniverse(60).Systems) {
    int next = 1;
    for (const TradeLane& lane : system.Lanes) {
      EXPECT_EQ(lane.FirstRing, next);
      EXPECT_GE(lane.Rings, 4);
      EXPECT_LE(lane.Rings, 12);
      next += lane.Rings;
    }
  }
}

TEST(MapCells, TheFirst47AreThePicturedOnesAndAllDiffer) {
  std::set<Cell> cells;
  for (const PlacedCell& cell : PlaceCells(47)) cells.insert(cell.Place);

  EXPECT_EQ(cells.size(), 47u);
  for (const Cell cell : {Cell{7, 4}, Cell{15, 0}, Cell{0, 10}, Cell{13, 14}}) {
    EXPECT_TRUE(cells.contains(cell));
  }
}

TEST(MapCells, AllCellsButTheNamelessOneAreUsedBeforeAnyIsUsedAgain) {
  std::set<Cell> cells;
  for (const PlacedCell& cell : PlaceCells(341)) cells.insert(cell.Place);  // 18 times 19, less one

  EXPECT_EQ(cells.size(), 341u);
  EXPECT_FALSE(cells.contains(Cell{-1, -2}));
  EXPECT_EQ(PlaceCells(342).back().Place, PlaceCells(1).back().Place);
}

TEST(MapCells, ASmallUniverseHasSomethingOfEachNation) {
  std::set<int> nations;
  for (const PlacedCell& cell : PlaceCells(5)) nations.insert(cell.Nation);

  EXPECT_EQ(nations.size(), 5u);
}

TEST(JumpNetwork, TwoSystemsOfANationAreConnectedByOneGate) {
  const auto connections = ConnectSystems({{{0, 0}, 0}, {{5, 0}, 0}});

  ASSERT_EQ(connections.size(), 1u);
  EXPECT_FALSE(connections[0].Hole);
}

TEST(JumpNetwork, TheFirstBorderWorldHasAHoleAndAGateTheSecondOnlyAHole) {
  const auto connections =
      ConnectSystems({{{0, 0}, 0}, {{5, 0}, kBorderWorlds}, {{0, 9}, kBorderWorlds}});

  ASSERT_EQ(connections.size(), 3u);
  EXPECT_TRUE(connections[0].Hole);
  EXPECT_FALSE(connections[1].Hole);
  EXPECT_TRUE(connections[2].Hole);
  EXPECT_EQ(connections[2].A, 0);
  EXPECT_EQ(connections[2].B, 2);
}

}  // namespace
}  // namespace orrerix::demo
