// SPDX-License-Identifier: MIT
#include "routes/fastest_way.h"

#include <gmock/gmock.h>

#include "routes/travel_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FastestWayTest : public TravelFixture {};

TEST_F(FastestWayTest, LaunchesFliesAndDocks) {
  Dock("pier", "li01", "0, 0, 0");
  Dock("quay", "li01", "600, 0, 0");

  const auto way = WayBetween("pier", "quay");

  ASSERT_TRUE(way);
  EXPECT_THAT(LegsOf(*way), ElementsAre("launch pier", "fly quay", "dock quay"));
  EXPECT_EQ(way->Time(), 17000);  // 5 + 600 / 300 + 10
  EXPECT_EQ(way->Distance(), 600);
  EXPECT_EQ(way->Jumps(), 0);
}

TEST_F(FastestWayTest, ALaneIsEnteredAndLeftInItsMiddle) {
  // The lane passes the pier at its second ring and the quay at its fourth.
  Lane("li01", {{"r1", 0}, {"r2", 30000}, {"r3", 60000}, {"r4", 90000}, {"r5", 120000}});
  Dock("pier", "li01", "30000, 300, 0");
  Dock("quay", "li01", "90000, 300, 0");

  const auto way = WayBetween("pier", "quay");

  ASSERT_TRUE(way);
  EXPECT_THAT(LegsOf(*way),
              ElementsAre("launch pier", "fly r2", "lane r4", "fly quay", "dock quay"));
  // 5 + 1 + (10 + 60000 / 2250 = 36.6667, rounded up) + 1 + 10
  EXPECT_EQ(way->Time(), 53667);
}

TEST_F(FastestWayTest, ALaneIsRiddenPastARingThatIsAvoided) {
  Lane("li01", {{"r1", 0}, {"r2", 30000}, {"r3", 60000}});
  wishes.Avoid = {"r2"};

  EXPECT_THAT(LegsBetween("r1", "r3"), ElementsAre("lane r3"));
}

TEST_F(FastestWayTest, AHoleThatIsShorterIsTaken) {
  Dock("pier", "li01", "0, 0, 0");
  Dock("quay", "li02", "0, 0, 0");
  Jump("gate_a", "li01", "30000, 0, 0", "li02, gate_b");
  Jump("gate_b", "li02", "0, 300, 0", "li01, gate_a");
  Jump("hole_a", "li01", "3000, 0, 0", "li02, hole_b", true);
  Jump("hole_b", "li02", "3000, 0, 0", "li01, hole_a", true);

  const auto way = WayBetween("pier", "quay");

  ASSERT_TRUE(way);
  // By the hole 10 + 15 + 10, by the gate 100 + 20 + 1.
  EXPECT_THAT(LegsOf(*way),
              ElementsAre("launch pier", "fly hole_a", "hole hole_b", "fly quay", "dock quay"));
  EXPECT_EQ(way->Jumps(), 1);
  EXPECT_EQ(way->Time(), 50000);
}

TEST_F(FastestWayTest, ALockedGateIsAvoidedOnlyOnRequest) {
  Dock("pier", "li01", "0, 0, 0");
  Dock("quay", "li02", "0, 0, 0");
  Jump("Li03_to_Li01", "li01", "300, 0, 0", "li02, back");
  Jump("back", "li02", "300, 0, 0", "li01, Li03_to_Li01");
  locked = {2298368769u};

  EXPECT_THAT(LegsBetween("pier", "quay"), testing::SizeIs(5));
  wishes.NoLocked = true;
  EXPECT_THAT(LegsBetween("pier", "quay"), ElementsAre("no way"));
  EXPECT_THAT(LegsBetween("quay", "pier"), testing::SizeIs(5));  // one can arrive at it
}

TEST_F(FastestWayTest, BetweenTwoComponentsThereIsNoWay) {
  Dock("pier", "li01", "0, 0, 0");
  Dock("quay", "li02", "0, 0, 0");

  EXPECT_EQ(WayBetween("pier", "quay"), std::nullopt);
}

TEST_F(FastestWayTest, EqualWaysAreToldApartByTheirLegsAndThenByNicknames) {
  // Two gates at the same distance; that of the first nickname is taken.
  Dock("pier", "li01", "0, 0, 0");
  Dock("quay", "li02", "0, 0, 0");
  Jump("gate_b", "li01", "300, 0, 0", "li02, end_b");
  Jump("Gate_A", "li01", "0, 300, 0", "li02, end_a");
  Jump("end_a", "li02", "300, 0, 0", "li01, Gate_A");
  Jump("end_b", "li02", "0, 300, 0", "li01, gate_b");

  EXPECT_THAT(LegsBetween("pier", "quay"),
              ElementsAre("launch pier", "fly Gate_A", "gate end_a", "fly quay", "dock quay"));
}

TEST_F(FastestWayTest, NoFlightFollowsAFlight) {
  // Halves of half a millisecond each would round up to less if they were flown in one.
  model.ImpulseSpeed = 300;
  Object("wreck", "li01", "0, 0, 0");
  Lane("li01", {{"r1", 100}, {"r2", 200}});
  Object("rock", "li01", "300, 0, 0");

  EXPECT_THAT(LegsBetween("wreck", "rock"), ElementsAre("fly rock"));
}

TEST_F(FastestWayTest, APlaceThatBothShareIsTheWholeWay) {
  Dock("pier", "li01", "0, 0, 0");
  Dock("aft", "li01", "600, 0, 0");

  const auto way = WayBetween("li01", "li01");

  ASSERT_TRUE(way);
  EXPECT_THAT(way->Legs, IsEmpty());
  EXPECT_EQ(Nickname(way->From), "aft");
}

TEST_F(FastestWayTest, ASystemIsReachedWithoutDocking) {
  Dock("pier", "li01", "0, 0, 0");
  Jump("out", "li01", "300, 0, 0", "li02, in");
  Jump("in", "li02", "0, 0, 0", "li01, out");
  System("li02");

  EXPECT_THAT(LegsBetween("pier", "li02"), ElementsAre("launch pier", "fly out", "gate in"));
}

TEST_F(FastestWayTest, AHostileFactionLetsNobodyInButOut) {
  Dock("pier", "li01", "0, 0, 0", "li_grp");
  Dock("quay", "li01", "600, 0, 0");
  wishes.AvoidFactions = {"LI_GRP"};

  EXPECT_THAT(LegsBetween("pier", "quay"), testing::SizeIs(3));
  EXPECT_THAT(LegsBetween("quay", "pier"), ElementsAre("no way"));
}

TEST_F(FastestWayTest, OfSeveralDocksOfABaseTheNearestIsTaken) {
  Dock("pier", "li01", "0, 0, 0");
  Dock("ring_far", "li01", "9000, 0, 0", "", "city_base");
  Dock("ring_near", "li01", "3000, 0, 0", "", "city_base");

  EXPECT_THAT(LegsBetween("pier", "CITY_base"),
              ElementsAre("launch pier", "fly ring_near", "dock ring_near"));
}

TEST_F(FastestWayTest, JumpsAreCountedForManyTripsAtOnce) {
  Dock("pier", "li01", "0, 0, 0");
  Dock("quay", "li02", "0, 0, 0");
  Dock("rock", "li03", "0, 0, 0");
  Dock("isle", "li04", "0, 0, 0");
  Jump("a", "li01", "3000, 0, 0", "li02, b");
  Jump("b", "li02", "0, 300, 0", "li01, a");
  Jump("c", "li02", "3000, 0, 0", "li03, d", true);
  Jump("d", "li03", "0, 300, 0", "li02, c", true);
  const auto node = [&](std::string_view nickname) { return *Graph().FindObject(nickname); };
  const std::vector<DockTrip> trips = {{node("pier"), node("rock")},
                                       {node("quay"), node("rock")},
                                       {node("pier"), node("quay")},
                                       {node("pier"), node("isle")},
                                       {node("pier"), node("pier")}};

  EXPECT_THAT(JumpsOf(Graph(), model, Limits(), trips), ElementsAre(2, 1, 1, 0, 0));
}

}  // namespace
}  // namespace orrerix
