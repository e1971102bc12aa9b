// SPDX-License-Identifier: MIT
#include "routes/travel_times.h"

#include <gmock/gmock.h>

#include "routes/travel_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

class TravelTimesTest : public TravelFixture {};

TEST_F(TravelTimesTest, RowsAndColumnsAreTheDocksByNickname) {
  Dock("quay", "li01", "600, 0, 0");
  Dock("Pier", "li01", "0, 0, 0");
  Dock("lost", "li09", "0, 0, 0");
  const TravelLimits limits = Limits();

  const TravelTimes times(Graph(), model, limits);

  ASSERT_EQ(times.Docks().size(), 3u);
  EXPECT_EQ(Nickname(times.Docks()[1]), "Pier");
  EXPECT_THAT(times.RowFrom(1), ElementsAre(kUnreachable, 0, 17000));  // 5 + 2 + 10
}

TEST_F(TravelTimesTest, AgreesWithTheFastestWayThroughSeveralSystems) {
  Dock("pier", "li01", "0, 0, 0");
  Dock("quay", "li03", "0, 900, 0");
  Lane("li01", {{"r1", 0}, {"r2", 45000}, {"r3", 90000}});
  Jump("a_out", "li01", "45000, 300, 0", "li02, a_in");
  Jump("a_in", "li02", "0, 0, 0", "li01, a_out");
  Jump("b_out", "li02", "7000, 0, 0", "li03, b_in", true);
  Jump("b_in", "li03", "0, 0, 0", "li02, b_out", true);
  const TravelLimits limits = Limits();

  const TravelTimes times(Graph(), model, limits);

  // 5 + lane (10 + 45000 / 2250 = 30) + 1 + 20 + 7000 / 300 (23.3333) + 15 + 3 + 10; the pier
  // stands in the lane's first ring, which is reached in no time.
  EXPECT_EQ(times.RowFrom(0)[1], 107334);
  EXPECT_EQ(WayBetween("pier", "quay")->Time(), 107334);
  EXPECT_EQ(times.RowFrom(1)[0], WayBetween("quay", "pier")->Time());
}

TEST_F(TravelTimesTest, ADockThatLetsNobodyInHasAnEmptyColumn) {
  Dock("pier", "li01", "0, 0, 0", "li_grp");
  Dock("quay", "li01", "600, 0, 0");
  wishes.AvoidFactions = {"li_grp"};
  const TravelLimits limits = Limits();

  const TravelTimes times(Graph(), model, limits);

  EXPECT_THAT(times.RowFrom(0), ElementsAre(0, 17000));
  EXPECT_THAT(times.RowFrom(1), ElementsAre(kUnreachable, 0));
}

TEST_F(TravelTimesTest, AreGivenUpWhenTheCallerSaysSo) {
  Dock("pier", "li01", "0, 0, 0");
  const TravelLimits limits = Limits();

  EXPECT_FALSE(TravelTimes(Graph(), model, limits, [] { return false; }).IsComplete());
  EXPECT_TRUE(TravelTimes(Graph(), model, limits).IsComplete());
}

}  // namespace
}  // namespace orrerix
