// SPDX-License-Identifier: MIT
#include "map/grid/icon_steps.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

using Direction = StepDirection;

TEST(NextIcon, GoesToTheNearestPointAhead) {
  const std::vector<IconPoint> row = {{0, 0}, {30, 0}, {10, 0}};

  EXPECT_EQ(NextIcon(row, 0, Direction::Right), 2u);
  EXPECT_EQ(NextIcon(row, 2, Direction::Right), 1u);
  EXPECT_EQ(NextIcon(row, 1, Direction::Left), 2u);
}

TEST(NextIcon, UpIsTowardsTheTop) {
  const std::vector<IconPoint> column = {{0, 0}, {0, 10}};

  EXPECT_EQ(NextIcon(column, 1, Direction::Up), 0u);
  EXPECT_EQ(NextIcon(column, 0, Direction::Down), 1u);
}

// 20 ahead is nearer than 5 ahead and 10 aside, which count as 20: 5 + 20 = 25.
TEST(NextIcon, WhatLiesAsideCountsAsTwiceAsFar) {
  EXPECT_EQ(NextIcon({{0, 0}, {5, 10}, {20, 0}}, 0, Direction::Right), 2u);
  EXPECT_EQ(NextIcon({{0, 0}, {5, 5}, {20, 0}}, 0, Direction::Right), 1u);
}

TEST(NextIcon, AtTheEdgeThereIsNone) {
  EXPECT_EQ(NextIcon({{0, 0}, {10, 0}}, 0, Direction::Left), std::nullopt);
  EXPECT_EQ(NextIcon({{0, 0}, {10, 0}}, 0, Direction::Up), std::nullopt);
  EXPECT_EQ(NextIcon({{0, 0}}, 0, Direction::Right), std::nullopt);
}

// A planet and its docking ring.
TEST(NextIcon, PointsAtOnePlaceArePassedOneByOne) {
  const std::vector<IconPoint> points = {{0, 0}, {10, 0}, {10, 0}, {20, 0}};

  EXPECT_EQ(NextIcon(points, 0, Direction::Right), 1u);
  EXPECT_EQ(NextIcon(points, 1, Direction::Right), 2u);
  EXPECT_EQ(NextIcon(points, 2, Direction::Right), 3u);
  EXPECT_EQ(NextIcon(points, 3, Direction::Left), 2u);
  EXPECT_EQ(NextIcon(points, 2, Direction::Left), 1u);
  EXPECT_EQ(NextIcon(points, 1, Direction::Left), 0u);
}

TEST(FirstIcon, IsTheOneThatIsReadFirst) {
  EXPECT_EQ(FirstIcon({{5, 9}, {7, 1}, {2, 1}}), 2u);
  EXPECT_EQ(FirstIcon({}), std::nullopt);
}

}  // namespace
}  // namespace orrerix
