// SPDX-License-Identifier: MIT
#include "atlas/row_places.h"

#include "atlas/atlas_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

class PlacesOfThings : public AtlasFixture {
 protected:
  PlacesOfThings() {
    System("Li01", "New York");
    Base("anvil");
    Base("brook", "Li01", "rogues");
  }
  // The nicknames of the bases of each row.
  std::vector<std::vector<std::string>> PlacesIn(std::string_view id) {
    const AtlasTable& table = *FindAtlasTable(id);
    const AtlasSource source(mustWork, db);
    std::vector<std::vector<std::string>> all;
    for (const Sellers& places : PlacesOfRows(table, ReadAtlasTable(table, source), source)) {
      auto& row = all.emplace_back();
      for (const std::size_t base : places) row.push_back(source.Bases.Bases()[base].Nickname);
    }
    return all;
  }
};

TEST_F(PlacesOfThings, AreTheBasesThatSellThem) {
  Section("shieldgenerator", {{"nickname", "shield_1"}, {"hp_type", "hp_shield"}});
  Good("shield_1", 100);
  Line("brook", "shield_1");
  Line("anvil", "shield_1", 1);

  EXPECT_THAT(PlacesIn("shields"), ElementsAre(ElementsAre("brook")));
}

TEST_F(PlacesOfThings, AreOfAShipTheBasesThatSellItsPackages) {
  Add("Ships", {{"NickName", "li_fighter"}, {"RealName", "Patriot"}, {"packagename", "pack"}});
  Line("anvil", "pack");

  EXPECT_THAT(PlacesIn("ships"), ElementsAre(ElementsAre("anvil")));
}

TEST_F(PlacesOfThings, AreOfSystemsAndFactionsTheirBasesAndOfABaseItself) {
  Add("Groups", {{"NickName", "rogues"}, {"Name", "Rogues"}});

  EXPECT_THAT(PlacesIn("systems"), ElementsAre(ElementsAre("anvil", "brook")));
  EXPECT_THAT(PlacesIn("factions"), ElementsAre(ElementsAre("brook")));
  EXPECT_THAT(PlacesIn("bases"), ElementsAre(ElementsAre("anvil"), ElementsAre("brook")));
}

}  // namespace
}  // namespace orrerix
