// SPDX-License-Identifier: MIT
#include "space/pick.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orrerix {
namespace {

using ::testing::ElementsAre;

Outline Square(double left, double right) {
  return {{left, left}, {right, left}, {right, right}, {left, right}};
}

Zone ZoneWith(std::string nickname, std::vector<Outline> outlines) {
  Zone zone;
  zone.Nickname = std::move(nickname);
  zone.Kinds = {ZoneKind::Danger};
  zone.Cell = {1, 2};
  zone.Outlines = std::move(outlines);
  return zone;
}

LayerChoice Showing(Layer layer) {
  LayerChoice choice;
  choice.Set(layer, true);
  return choice;
}

std::vector<std::string> ZonesIn(const Space& space, CellFraction point, MapCell cell = {1, 2}) {
  std::vector<std::string> names;
  for (const Zone* zone : ZonesAt(space, Showing(Layer::Danger), cell, point)) {
    names.push_back(zone->Nickname);
  }
  return names;
}

TEST(Pick, FindsTheSmallestZoneFirst) {
  Space space;
  space.Zones = {ZoneWith("large", {Square(0, 1)}), ZoneWith("small", {Square(0.4, 0.6)})};

  EXPECT_THAT(ZonesIn(space, {0.5, 0.5}), ElementsAre("small", "large"));
  EXPECT_THAT(ZonesIn(space, {0.2, 0.5}), ElementsAre("large"));
  EXPECT_THAT(ZonesIn(space, {0.5, 0.5}, {2, 2}), ElementsAre());
}

TEST(Pick, LeavesOutTheHoleOfARing) {
  Space space;
  space.Zones = {ZoneWith("ring", {Square(0, 1), Square(0.4, 0.6)})};

  EXPECT_THAT(ZonesIn(space, {0.5, 0.5}), ElementsAre());
  EXPECT_THAT(ZonesIn(space, {0.3, 0.5}), ElementsAre("ring"));
}

TEST(Pick, FindsZonesOfShownLayersOnly) {
  Space space;
  space.Zones = {ZoneWith("a", {Square(0, 1)})};

  EXPECT_TRUE(ZonesAt(space, Showing(Layer::Nebulas), {1, 2}, {0.5, 0.5}).empty());
}

TEST(Pick, FindsTheNearestGateInReach) {
  Space space;
  Gate far;
  far.Nickname = "far";
  far.Cell = {1, 2};
  far.Place = {0.52, 0.5};
  Gate near = far;
  near.Nickname = "near";
  near.Place = {0.51, 0.5};
  space.Gates = {near, far};

  EXPECT_EQ(GateAt(space, {1, 2}, {0.5, 0.5}, 0.03)->Nickname, "near");
  EXPECT_EQ(GateAt(space, {1, 2}, {0.53, 0.5}, 0.03)->Nickname, "far");
  EXPECT_EQ(GateAt(space, {1, 2}, {0.3, 0.5}, 0.03), nullptr);
  EXPECT_EQ(GateAt(space, {1, 3}, {0.5, 0.5}, 0.03), nullptr);
}

TEST(Pick, FindsBodiesByTheirSize) {
  Space space;
  space.Bodies = {{"sun", "", BodyKind::Sun, {1, 2}, {0.5, 0.5}, 0.1},
                  {"moon", "", BodyKind::Planet, {1, 2}, {0.55, 0.5}, 0.001}};

  EXPECT_EQ(BodyAt(space, {1, 2}, {0.42, 0.5}, 0.01)->Nickname, "sun");
  EXPECT_EQ(BodyAt(space, {1, 2}, {0.555, 0.5}, 0.01)->Nickname, "moon");
  EXPECT_EQ(BodyAt(space, {1, 2}, {0.7, 0.5}, 0.01), nullptr);
}

TEST(Pick, FindsSpotsOfShownLayers) {
  Space space;
  space.Spots = {{"wreck", "", SpotKind::Wreck, "", {}, {1, 2}, {0.5, 0.5}}};

  EXPECT_EQ(SpotAt(space, Showing(Layer::Wrecks), {1, 2}, {0.5, 0.5}, 0.01)->Nickname, "wreck");
  EXPECT_EQ(SpotAt(space, Showing(Layer::Platforms), {1, 2}, {0.5, 0.5}, 0.01), nullptr);
}

}  // namespace
}  // namespace orrerix
