// SPDX-License-Identifier: MIT
#include "map/grid/zoom_steps.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

constexpr ZoomRectangle kWhole{};

// 18 columns become 12, 19 rows 12. The point is 9 of 18 columns in, half of them: 9 - 6 = 3.
// 10.5 of 19 rows in 12 are 6.63: 10.5 - 6.63 = 3.87, so row 4 is the first.
TEST(ZoomSteps, InwardsKeepThePointWhereItIs) {
  EXPECT_EQ(ZoomedIn(kWhole, {9, 10.5}), (ZoomRectangle{3, 4, 14, 15}));
}

TEST(ZoomSteps, InwardsEndAtTheCellOfThePoint) {
  ZoomRectangle shown = kWhole;
  for (int step = 0; step < 8; ++step) shown = ZoomedIn(shown, {8.9, 10.1});

  EXPECT_EQ(shown, (ZoomRectangle{8, 10, 8, 10}));
  EXPECT_EQ(ZoomedIn(shown, {8.9, 10.1}), shown);
}

TEST(ZoomSteps, InwardsStayInTheRectangle) {
  EXPECT_EQ(ZoomedIn({0, 0, 5, 5}, {0, 0}), (ZoomRectangle{0, 0, 3, 3}));
  EXPECT_EQ(ZoomedIn({0, 0, 5, 5}, {6, 6}), (ZoomRectangle{2, 2, 5, 5}));
}

// 4 become 6: 2 columns more. The point is in the middle, so one goes to each side.
TEST(ZoomSteps, OutwardsShowMoreAroundThePoint) {
  EXPECT_EQ(ZoomedOut({4, 4, 7, 7}, {6, 6}), (ZoomRectangle{3, 3, 8, 8}));
}

TEST(ZoomSteps, OutwardsEndAtTheWholeGrid) {
  ZoomRectangle shown{17, 18, 17, 18};
  for (int step = 0; step < 9; ++step) shown = ZoomedOut(shown, {17.5, 18.5});

  EXPECT_EQ(shown, kWhole);
}

TEST(ZoomSteps, OutwardsKeepWhatWasVisible) {
  const ZoomRectangle shown = ZoomedOut({10, 10, 12, 12}, {10, 13});

  EXPECT_TRUE(shown.Holds(10, 10));
  EXPECT_TRUE(shown.Holds(12, 12));
}

TEST(ZoomSteps, MovesStopAtTheEdgesOfTheGrid) {
  EXPECT_EQ(Moved({4, 4, 7, 7}, 2, -1), (ZoomRectangle{6, 3, 9, 6}));
  EXPECT_EQ(Moved({4, 4, 7, 7}, -9, 99), (ZoomRectangle{0, 15, 3, 18}));
  EXPECT_EQ(Moved(kWhole, 3, 3), kWhole);
}

}  // namespace
}  // namespace orrerix
