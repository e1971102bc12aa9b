// SPDX-License-Identifier: MIT
#include "space/nearest.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

constexpr MapCell kNearCell{3, 4};

Space SpaceWithAPlace() {
  Space space;
  space.Systems = {{"Li01", "New York", kNearCell, 200000, std::nullopt}};
  space.Spots = {{"fort", "Fort Bush", SpotKind::Station, "", {}, kNearCell, {0.6, 0.3}}};
  space.Bodies = {{"sun", "", BodyKind::Sun, kNearCell, {0.5, 0.5}, 0.01}};
  return space;
}

// A tenth of 200,000 east of the middle, two tenths north of it.
TEST(NearestPoint, IsThePlaceInReach) {
  const NamedPoint point = NearestPoint(SpaceWithAPlace(), kNearCell, {0.605, 0.3}, 0.01);

  EXPECT_EQ(point.Nickname, "fort");
  EXPECT_EQ(CoordinatesText(point, "New York [X=D.4/Y=1.9]"),
            "Fort Bush, New York [X=D.4/Y=1.9] (20000, 0, -40000)");
}

TEST(NearestPoint, IsThePointItselfWhereNoPlaceIs) {
  const NamedPoint point = NearestPoint(SpaceWithAPlace(), kNearCell, {0.7, 0.5}, 0.01);

  EXPECT_EQ(CoordinatesText(point, "New York"), "New York (40000, 0, 0)");
}

TEST(NearestPoint, OfAPlaceWithoutANameHasItsNickname) {
  EXPECT_EQ(NearestPoint(SpaceWithAPlace(), kNearCell, {0.5, 0.5}, 0.01).Name, "sun");
}

}  // namespace
}  // namespace orrerix
