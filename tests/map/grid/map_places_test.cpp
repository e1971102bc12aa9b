// SPDX-License-Identifier: MIT
#include "map/grid/map_places.h"

#include "support/universe_fixture.h"

namespace orrerix {
namespace {

class MapPlacesTest : public UniverseFixture {
 protected:
  MapPlacesTest() {
    Add("Systems", {{"nickname", "li01"}, {"pos", "7, 4"}, {"navmapscale", "2"}});
    Object("Gate", "li01", "40000, 0, -20000");
  }
  void Object(std::string_view nickname, std::string_view system, std::string_view pos) {
    Add("Objects", {{"nickname", nickname}, {"sys_nick", system}, {"pos", pos}});
  }

  Routine routine{log, "Test"};
};

// Across (40000 x 3 / 4 x 2 + 100000) / 200000 = 0.8, down (-20000 x 3 / 4 x 2 + 100000) / 200000.
TEST_F(MapPlacesTest, AnObjectStandsInTheCellOfItsSystem) {
  MapPlaces places(routine, universe);

  const auto place = places.Find("gATE");

  ASSERT_TRUE(place.has_value());
  EXPECT_EQ(place->Cell, (MapCell{7, 4}));
  EXPECT_DOUBLE_EQ(place->Point.X, 0.8);
  EXPECT_DOUBLE_EQ(place->Point.Y, 0.35);
}

TEST_F(MapPlacesTest, WhatIsNotOnTheMapHasNoPlace) {
  Object("lost", "li99", "0, 0, 0");
  MapPlaces places(routine, universe);

  EXPECT_FALSE(places.Find("lost").has_value());
  EXPECT_FALSE(places.Find("nowhere").has_value());
}

TEST_F(MapPlacesTest, NamesTheSystemInACell) {
  MapPlaces places(routine, universe);

  EXPECT_EQ(places.SystemIn({7, 4}), "li01");
  EXPECT_EQ(places.SystemIn({1, 1}), "");
}

}  // namespace
}  // namespace orrerix
