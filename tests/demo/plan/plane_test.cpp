// SPDX-License-Identifier: MIT
#include "demo/plan/plane.h"

#include <gtest/gtest.h>

namespace orrerix::demo {
namespace {

TEST(Plane, SineAndCosineAgreeWithKnownValues) {
  EXPECT_NEAR(SineOfTurn(1.0 / 12), 0.5, 1e-7);
  EXPECT_NEAR(SineOfTurn(0.25), 1, 1e-7);
  EXPECT_NEAR(SineOfTurn(0.75), -1, 1e-7);
  EXPECT_NEAR(SineOfTurn(-0.125), -0.70710678, 1e-7);
  EXPECT_NEAR(CosineOfTurn(1.0 / 6), 0.5, 1e-7);
}

TEST(Plane, TheDirectionOfAPointOnACircleIsTheTurnItWasMadeWith) {
  for (const double turn : {0.0, 0.1, 0.25, 0.4, 0.5, 0.6, 0.75, 0.99}) {
    EXPECT_NEAR(TurnOf(OnCircle(turn, 1000)), turn, 1e-6);
  }
}

TEST(Plane, DistancesFollowPythagoras) {
  EXPECT_DOUBLE_EQ(Distance({1, 2}, {4, 6}), 5);
  EXPECT_DOUBLE_EQ(DistanceFromMiddle({-10, 3}, {10, 3}), 3);
  EXPECT_DOUBLE_EQ(DistanceFromMiddle({3, 4}, {30, 40}),
                   5);  // the nearer end, not the line beyond it
}

}  // namespace
}  // namespace orrerix::demo
