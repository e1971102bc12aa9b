// SPDX-License-Identifier: MIT
#include "space/find_book.h"

#include "space/space_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

FoundThing Thing(std::string name, std::string nickname = "x", std::string info = "") {
  FoundThing thing;
  thing.Name = std::move(name);
  thing.Nickname = std::move(nickname);
  thing.InfoText = std::move(info);
  return thing;
}

std::vector<std::string> Names(const FoundRows& found) {
  std::vector<std::string> names;
  for (const FoundRow& row : found.Rows) names.push_back(row.Thing->Name);
  return names;
}

TEST(FindBook, ShowsWhatFitsBestFirst) {
  const FindBook book({Thing("Rocks", "x", "made of gold"), Thing("Marigold"), Thing("Old gold"),
                       Thing("Goldmine"), Thing("GOLD"), Thing("Ring", "gold_ring"),
                       Thing("Silver")});

  EXPECT_THAT(Names(book.Find("gold", 9)),
              ElementsAre("GOLD", "Goldmine", "Old gold", "Marigold", "Ring", "Rocks"));
}

TEST(FindBook, CountsAllAndShowsTheFirstOnes) {
  const FindBook book({Thing("Ore B"), Thing("Ore A"), Thing("Ore C")});

  const FoundRows found = book.Find(" ore ", 2);

  EXPECT_EQ(found.Count, 3u);
  EXPECT_THAT(Names(found), ElementsAre("Ore A", "Ore B"));
}

TEST(FindBook, FindsLettersOfAnyCase) {
  EXPECT_EQ(FindBook({Thing("Änderung")}).Find("äND", 9).Count, 1u);
}

TEST(FindBook, FindsNothingForNothing) {
  EXPECT_EQ(FindBook({Thing("Ore")}).Find("  ", 9).Count, 0u);
}

// 30 bytes before and 60 from there on, without cutting a character.
TEST(FindBook, QuotesThePassageOfAnInfoText) {
  const std::string before(40, 'a');
  const FindBook book({Thing("Rocks", "x", before + "ü here gold ends")});

  const FoundRows found = book.Find("gold", 9);

  ASSERT_EQ(found.Count, 1u);
  EXPECT_EQ(found.Rows[0].Passage, "... " + std::string(22, 'a') + "ü here gold ends");
}

class FindBookOfAUniverse : public SpaceFixture {};

TEST_F(FindBookOfAUniverse, HoldsPlacesShipsGoodsFactionsAndTexts) {
  db.CreateTable(mustWork, DockObjectsTable());
  Add("Objects", {{"nickname", "fort"},
                  {"realname", "Fort Bush"},
                  {"dock_with", "fort_base"},
                  {"sys_nick", "Li01"},
                  {"pos", "0, 0, 0"},
                  {"ids_info", 7}});
  Add("ids_info", {{"ID", 7}, {"Info", "Built\r\nof granite"}, {"DLL", "x"}});
  Name(1, "The Navy");
  Name(2, "Patriot");
  Add("Groups", {{"NickName", "li_n"}, {"Name", "The Navy"}, {"ids_name", 1}});
  Add("Ships", {{"NickName", "li_fighter"}, {"RealName", "Patriot"}, {"ids_name", 2}});
  const AtlasSource source(mustWork, db);
  const FindBook book = ReadFindBook(source, Read(), [] { return false; });

  const FoundRows fort = book.Find("built of GRANITE", 9);
  ASSERT_EQ(fort.Count, 0u);  // two characters end a line
  const FoundRows granite = book.Find("granite", 9);
  ASSERT_EQ(granite.Count, 1u);
  EXPECT_EQ(granite.Rows[0].Thing->Name, "Fort Bush");
  EXPECT_EQ(granite.Rows[0].Thing->Where, "The Li01");
  EXPECT_EQ(granite.Rows[0].Thing->Cell, (MapCell{3, 4}));
  EXPECT_EQ(book.Find("navy", 9).Rows.at(0).Thing->Kind, FoundKind::Faction);
  EXPECT_EQ(book.Find("patriot", 9).Rows.at(0).Thing->AtlasTable, "ships");
  EXPECT_EQ(book.Find("the li01", 9).Rows.at(0).Thing->Kind, FoundKind::System);
}

}  // namespace
}  // namespace orrerix
