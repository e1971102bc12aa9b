// SPDX-License-Identifier: MIT
#include "info/search/search.h"

#include <gmock/gmock.h>

#include "support/universe_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class SearchTest : public UniverseFixture {
 protected:
  SearchTest() { db.CreateTable(mustWork, DockObjectsTable()); }

  void Place(std::string_view nickname, std::string_view realname) {
    Add("DockObjects", {{"nickname", nickname}, {"realname", realname}});
  }
  void Ship(std::string_view nickname, std::string_view realname, const Value& package) {
    Add("Ships", {{"NickName", nickname}, {"RealName", realname}, {"packagename", package}});
  }
  void Good(std::string_view nickname, std::string_view realname,
            std::string_view category = "equipment") {
    Add("Goods", {{"nickname", nickname}, {"realname", realname}, {"category", category}});
  }
  void Market(std::string_view base, std::string_view good, double val5 = 0) {
    Add("BaseGoods", {{"Base", base}, {"GoodNick", good}, {"val5", val5}});
  }
  void Bribe(std::string_view base, std::string_view group) {
    Add("GF_NPC", {{"BaseNick", base}, {"bribe", group}});
  }

  std::vector<std::string> Found(SearchType type, std::string_view text) {
    return Nicknames(Search(universe, type, text));
  }
  std::vector<std::string> Sellers(SearchType type, const SearchRow& row) {
    return Nicknames(SellersOf(universe, type, row));
  }
  static std::vector<std::string> Nicknames(const std::vector<SearchRow>& rows) {
    std::vector<std::string> names;
    for (const SearchRow& row : rows) names.push_back(row.Nickname);
    return names;
  }
};

TEST_F(SearchTest, AnEmptyTextListsAllPlacesByName) {
  Place("p1", "Whisper");
  Place("p2", "anvil");
  Place("p3", "Brook");

  EXPECT_THAT(Search(universe, SearchType::Place, ""),
              ElementsAre(SearchRow{"p2", "anvil", ""}, SearchRow{"p3", "Brook", ""},
                          SearchRow{"p1", "Whisper", ""}));
}

TEST_F(SearchTest, APartOfTheNameIsEnoughWhateverItsCase) {
  Place("p1", "Whisper");
  Place("p2", "Anvil");

  EXPECT_THAT(Found(SearchType::Place, "hIs"), ElementsAre("p1"));
  EXPECT_THAT(Found(SearchType::Place, "zebra"), IsEmpty());
}

TEST_F(SearchTest, TypedWildcardsAreWildcards) {
  Place("p1", "Whisper");
  Place("p2", "Water");

  EXPECT_THAT(Found(SearchType::Place, "w*t"), ElementsAre("p2"));
  EXPECT_THAT(Found(SearchType::Place, "w?i"), ElementsAre("p1"));
}

TEST_F(SearchTest, ATypedQuoteIsAFailureAndFindsNothing) {
  Place("p1", "Whisper");

  EXPECT_THAT(Found(SearchType::Place, "'"), IsEmpty());
  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.StSearchText_Change");
  EXPECT_EQ(log.Failures()[0].Info, "");
  EXPECT_EQ(log.Failures()[0].What.Number, 3075);
}

TEST_F(SearchTest, ATypedBracketWithoutItsEndIsAFailure) {
  Good("g1", "Lamp");

  EXPECT_THAT(Found(SearchType::Equipment, "["), IsEmpty());
  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.StationSearch_Text");
  EXPECT_EQ(log.Failures()[0].What.Number, 93);
}

TEST_F(SearchTest, AShipWithoutAPackageIsNeverFound) {
  Ship("s1", "Arrow", "arrow_package");
  Ship("s2", "Bolt", "");
  Ship("s3", "Comet", Value());

  EXPECT_THAT(Search(universe, SearchType::Ship, ""),
              ElementsAre(SearchRow{"s1", "Arrow", "arrow_package"}));
}

TEST_F(SearchTest, EquipmentIsListedByNameIfItHasOne) {
  Good("g1", "Lamp");
  Good("g2", "0 - 0");
  Good("g3", "Beam", "EQUIPMENT");
  Good("g4", "Water", "commodity");

  EXPECT_THAT(Found(SearchType::Equipment, ""), ElementsAre("g3", "g1"));
}

TEST_F(SearchTest, FactionsComeInTheOrderOfTheTable) {
  Add("Groups", {{"NickName", "b_grp"}, {"Name", "Wardens"}});
  Add("Groups", {{"NickName", "a_grp"}, {"Name", "Keepers"}});

  EXPECT_THAT(Search(universe, SearchType::Bribe, "e"),
              ElementsAre(SearchRow{"b_grp", "Wardens", ""}, SearchRow{"a_grp", "Keepers", ""}));
}

TEST_F(SearchTest, AShipIsSoldWhereItsPackageStandsInTheMarket) {
  Place("anvil", "Anvil Station");
  Place("brook", "Brook Station");
  Market("anvil", "Arrow_Package");
  Market("brook", "arrow_package", 1);  // bought there only

  EXPECT_THAT(SellersOf(universe, SearchType::Ship, {"arrow", "Arrow", "ARROW_package"}),
              ElementsAre(SearchRow{"anvil", "Anvil Station", ""}));
}

TEST_F(SearchTest, EquipmentIsSoldWhereverAMarketListsIt) {
  Place("anvil", "Anvil Station");
  Place("brook", "Brook Station");
  Market("anvil", "lamp");
  Market("brook", "lamp", 1);

  EXPECT_THAT(Sellers(SearchType::Equipment, {"LAMP", "", ""}), ElementsAre("anvil", "brook"));
}

TEST_F(SearchTest, ABaseIsFoundUnderTheObjectThatItsNicknameExtends) {
  Place("Anvil", "Anvil Station");
  Market("anvil_base", "lamp");

  EXPECT_THAT(Sellers(SearchType::Equipment, {"lamp", "", ""}), ElementsAre("Anvil"));
}

TEST_F(SearchTest, APlanetIsFoundUnderItsDockingRing) {
  Place("ring_1", "Dockring: Whisper");
  Place("whisper", "Whisper");
  Add("Objects",
      {{"nickname", "Ring_1"}, {"dock_with", "Whisper_Base"}, {"archetype", "dock_ring"}});
  Market("whisper_base", "lamp");

  EXPECT_THAT(Sellers(SearchType::Equipment, {"lamp", "", ""}), ElementsAre("ring_1"));
}

TEST_F(SearchTest, AnObjectThatIsNoRingDoesNotStandForTheBase) {
  Place("mooring", "Mooring");
  Place("whisper", "Whisper");
  Add("Objects",
      {{"nickname", "mooring"}, {"dock_with", "whisper_base"}, {"archetype", "station"}});
  Market("whisper_base", "lamp");

  EXPECT_THAT(Sellers(SearchType::Equipment, {"lamp", "", ""}), ElementsAre("whisper"));
}

TEST_F(SearchTest, ABaseThatTheMapLacksIsDropped) {
  Market("nowhere_base", "lamp");

  EXPECT_THAT(Sellers(SearchType::Equipment, {"lamp", "", ""}), IsEmpty());
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(SearchTest, ABaseWithAShortNicknameIsAFailureAndDropped) {
  Place("anvil", "Anvil Station");
  Market("x", "lamp");
  Market("anvil", "lamp");

  EXPECT_THAT(Sellers(SearchType::Equipment, {"lamp", "", ""}), ElementsAre("anvil"));
  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.SubSearch_Click");
  EXPECT_EQ(log.Failures()[0].What.Number, 5);
}

TEST_F(SearchTest, ABaseWithSeveralPersonsTakesTheBribeOnce) {
  Place("anvil", "Anvil Station");
  Place("brook", "Brook Station");
  Bribe("brook_base", "lamp_grp");
  Bribe("anvil_base", "lamp_grp");
  Bribe("BROOK_base", "LAMP_grp");
  Bribe("anvil_base", "other_grp");

  EXPECT_THAT(Sellers(SearchType::Bribe, {"lamp_grp", "", ""}), ElementsAre("anvil", "brook"));
}

TEST_F(SearchTest, APlanetWithADockingRingTakesBribesUnderItsOwnName) {
  Place("ring_1", "Dockring: Whisper");
  Place("whisper", "Whisper");
  Add("Objects",
      {{"nickname", "Ring_1"}, {"dock_with", "Whisper_Base"}, {"archetype", "dock_ring"}});
  Bribe("whisper_base", "lamp_grp");

  EXPECT_THAT(Sellers(SearchType::Bribe, {"lamp_grp", "", ""}), ElementsAre("whisper"));
}

TEST_F(SearchTest, ABribeAtARingWhosePlanetTheMapLacksIsDropped) {
  Place("ring_1", "Dockring: Whisper");
  Add("Objects",
      {{"nickname", "Ring_1"}, {"dock_with", "Whisper_Base"}, {"archetype", "dock_ring"}});
  Bribe("whisper_base", "lamp_grp");

  EXPECT_THAT(Sellers(SearchType::Bribe, {"lamp_grp", "", ""}), IsEmpty());
}

TEST_F(SearchTest, PlacesHaveNeitherSellersNorAnInfoBox) {
  EXPECT_THAT(Sellers(SearchType::Place, {"anvil", "", ""}), IsEmpty());
  EXPECT_EQ(InfoTypeOf(SearchType::Place), std::nullopt);
  EXPECT_EQ(InfoTypeOf(SearchType::Bribe), InfoType::Group);
}

}  // namespace
}  // namespace orrerix
