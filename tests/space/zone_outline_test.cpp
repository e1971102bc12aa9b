// SPDX-License-Identifier: MIT
#include "space/zone_outline.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orrerix {
namespace {

using ::testing::DoubleNear;

struct Extent {
  double East = 0;
  double South = 0;
};

// How far a polygon reaches to the east and to the south.
Extent Reach(const Polygon& polygon) {
  Extent reach;
  for (const PlanePoint& point : polygon) {
    reach.East = std::max(reach.East, point.East);
    reach.South = std::max(reach.South, point.South);
  }
  return reach;
}

Polygon Only(const ZoneShape& zone) {
  const std::vector<Polygon> outlines = OutlinesFromAbove(zone);
  EXPECT_EQ(outlines.size(), 1u);
  return outlines.empty() ? Polygon() : outlines.front();
}

TEST(ZoneOutlines, ASphereIsACircle) {
  const Polygon circle = Only({"SPHERE", {100, 0, 0}, {30, 40, 50}});

  for (const PlanePoint& point : circle) {
    EXPECT_THAT(std::hypot(point.East, point.South), DoubleNear(100, 1e-9));
  }
}

TEST(ZoneOutlines, AnEllipsoidReachesAsFarAsItsRadii) {
  const Extent reach = Reach(Only({"ellipsoid", {300, 50, 100}, {}}));

  EXPECT_THAT(reach.East, DoubleNear(300, 1e-9));
  EXPECT_THAT(reach.South, DoubleNear(100, 1e-9));
}

TEST(ZoneOutlines, AQuarterTurnAboutTheUpAxisChangesEastAndSouth) {
  const Extent reach = Reach(Only({"ellipsoid", {300, 50, 100}, {0, 90, 0}}));

  EXPECT_THAT(reach.East, DoubleNear(100, 1e-9));
  EXPECT_THAT(reach.South, DoubleNear(300, 1e-9));
}

// The height of 50 comes to lie along the south axis.
TEST(ZoneOutlines, AQuarterTurnAboutTheEastAxisLaysTheHeightDown) {
  const Extent reach = Reach(Only({"ellipsoid", {300, 50, 100}, {90, 0, 0}}));

  EXPECT_THAT(reach.South, DoubleNear(50, 1e-9));
}

TEST(ZoneOutlines, ACylinderThatStandsIsACircle) {
  const Extent reach = Reach(Only({"CYLINDER", {70, 5000, 0}, {}}));

  EXPECT_THAT(reach.East, DoubleNear(70, 1e-9));
  EXPECT_THAT(reach.South, DoubleNear(70, 1e-9));
}

// A path of 1000 units that is laid down and turned by 30 degrees: its middle line ends at
// 500 sin 30 = 250 to the east and 500 cos 30 = 433.01 to the south. The edge there is 10 to the
// side, 10 cos 30 = 8.66 further east and 10 sin 30 = 5 further south.
TEST(ZoneOutlines, ACylinderThatLiesIsAPath) {
  const Extent reach = Reach(Only({"CYLINDER", {10, 1000, 0}, {-90, 30, 0}}));

  EXPECT_THAT(reach.East, DoubleNear(250 + 8.66, 0.01));
  EXPECT_THAT(reach.South, DoubleNear(433.01 + 5, 0.01));
}

TEST(ZoneOutlines, APathHasAMiddleLine) {
  const auto line = MiddleLineFromAbove({"CYLINDER", {10, 1000, 0}, {-90, 30, 0}});

  ASSERT_TRUE(line);
  EXPECT_THAT(std::abs(line->first.East - line->second.East), DoubleNear(500, 0.01));
  EXPECT_THAT(std::abs(line->first.South - line->second.South), DoubleNear(866.03, 0.01));
  EXPECT_FALSE(MiddleLineFromAbove({"CYLINDER", {10, 1000, 0}, {}}));
  EXPECT_FALSE(MiddleLineFromAbove({"SPHERE", {10, 0, 0}, {}}));
}

TEST(ZoneOutlines, ABoxHasItsEdges) {
  const Polygon box = Only({"BOX", {200, 10, 60}, {}});

  EXPECT_EQ(box.size(), 4u);
  EXPECT_THAT(AreaOf(box), DoubleNear(200 * 60, 1e-6));
}

TEST(ZoneOutlines, ARingHasAHole) {
  const std::vector<Polygon> ring = OutlinesFromAbove({"RING", {800, 500, 100}, {}});

  ASSERT_EQ(ring.size(), 2u);
  EXPECT_THAT(Reach(ring[0]).East, DoubleNear(800, 1e-9));
  EXPECT_THAT(Reach(ring[1]).East, DoubleNear(500, 1e-9));
}

TEST(ZoneOutlines, AreMissingWhereNothingIsKnown) {
  EXPECT_TRUE(OutlinesFromAbove({"blob", {1, 1, 1}, {}}).empty());
  EXPECT_TRUE(OutlinesFromAbove({"sphere", {}, {}}).empty());
  EXPECT_TRUE(OutlinesFromAbove({"box", {5, 0, 0}, {}}).empty());
}

TEST(ConvexHulls, LeaveOutWhatIsInside) {
  const Polygon hull = ConvexHull({{0, 0}, {4, 0}, {2, 1}, {4, 4}, {0, 4}, {2, 0}});

  EXPECT_EQ(hull, (Polygon{{0, 0}, {4, 0}, {4, 4}, {0, 4}}));
}

}  // namespace
}  // namespace orrerix
