// SPDX-License-Identifier: MIT
#include "derived/commodity_names.h"

#include "derived/universe_builders.h"

namespace orrerix {
namespace {

class CommodityNames : public DerivedFixture {};

TEST_F(CommodityNames, TheTableIsAskedFirstWhateverTheCase) {
  Add("commodity", {{"nickname", "commodity_water"}, {"realname", "Spring Water"}});

  EXPECT_EQ(RealComName(universe, "Commodity_WATER"), "Spring Water");
}

TEST_F(CommodityNames, TheGamesOwnCommoditiesHaveAStringByTheirPlace) {
  // Row 11 of the game's own order.
  Name(261608 + 11, "Water");

  EXPECT_EQ(RealComName(universe, "commodity_water"), "Water");
}

TEST_F(CommodityNames, AStringThatIsMissingGivesItsNumber) {
  EXPECT_EQ(RealComName(universe, "commodity_boron"), "(261608)");
}

TEST_F(CommodityNames, TheGamesOwnCommoditiesAreFoundInTheirSpellingOnly) {
  EXPECT_EQ(RealComName(universe, "commodity_h_fuel"), "");
  EXPECT_EQ(RealComName(universe, "commodity_H_fuel"), "(261625)");
}

TEST_F(CommodityNames, AnythingElseHasNoName) {
  EXPECT_EQ(RealComName(universe, "gun"), "");
}

}  // namespace
}  // namespace orrerix
