// SPDX-License-Identifier: MIT
#include "map/grid/map_coords.h"

#include <limits>

#include <gmock/gmock.h>

#include "support/universe_fixture.h"

namespace orrerix {
namespace {

class MapCoords : public UniverseFixture {
 protected:
  void System(std::string_view pos, std::string_view realname) {
    Add("Systems", {{"nickname", "s"}, {"pos", pos}, {"realname", realname}});
  }
  std::string At(double x, double y) {
    CellNames names;
    names.Set({7, 4}, "Lantern");
    return CoordsToMapCoords(log, names, {7, 4}, {x, y});
  }

  FixedLanguage english{Language::English};
};

TEST_F(MapCoords, TheMiddleOfASystemIsInTheFourthSector) {
  // 4 - 0.35 = 3.65 and 4 - 0.5 = 3.5
  EXPECT_EQ(At(0.5, 0.5), "Lantern [X=D.6/Y=4.5]");
}

TEST_F(MapCoords, TheEdgeLiesBeforeTheFirstSector) {
  // -0.35: whole part -1, tenth 6; -0.5: whole part -1, tenth 5
  EXPECT_EQ(At(0, 0), "Lantern [X=@.6/Y=0.5]");
}

TEST_F(MapCoords, PointsBeyondTheSectorsGetTheCharactersThatFollow) {
  // 8 x 1.5 - 0.35 = 11.65; 8 x 1.5 - 0.5 = 11.5; code 49 + 11 is "<"
  EXPECT_EQ(At(1.5, 1.5), "Lantern [X=L.6/Y=<.5]");
}

TEST_F(MapCoords, APlaceWithoutACharacterIsAFailureAndGivesNoText) {
  EXPECT_EQ(At(100, 0.5), "");
  ASSERT_EQ(log.Failures().size(), 1u);
  EXPECT_EQ(log.Failures()[0].What.Number, 5);
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.CoordsToMapCoords");
}

TEST_F(MapCoords, ACellBeyondTheGridIsAFailure) {
  EXPECT_EQ(CoordsToMapCoords(log, CellNames(), {18, 0}, {}), "");
  EXPECT_EQ(log.Failures().front().What.Number, 9);
}

TEST_F(MapCoords, NamesAreFoundByTheTextOfTheCell) {
  System("7, 4", "Lantern");
  System("8,4", "Spelled Otherwise");

  const CellNames names = GetSystemNames(universe, english);

  EXPECT_EQ(names.Of({7, 4}), "Lantern");
  EXPECT_EQ(names.Of({8, 4}), "");
}

TEST_F(MapCoords, ASystemWithoutANameIsUnknownInTheLanguageInUse) {
  System("7, 4", "");
  FixedLanguage german{Language::German};

  EXPECT_EQ(GetSystemNames(universe, english).Of({7, 4}), "Unknown System");
  EXPECT_EQ(GetSystemNames(universe, german).Of({7, 4}), "Unbekanntes System");
}

TEST_F(MapCoords, TheSystemInTheFirstCellHasNoName) {
  System("0, 0", "Corner");

  EXPECT_EQ(GetSystemNames(universe, english).Of({0, 0}), "");
}

TEST_F(MapCoords, AnEndlessPlaceIsAFailureAndGivesNoText) {
  EXPECT_EQ(At(std::numeric_limits<double>::infinity(), 0.5), "");
  ASSERT_EQ(log.Failures().size(), 1u);
  EXPECT_EQ(log.Failures()[0].What.Number, 5);
}

}  // namespace
}  // namespace orrerix
