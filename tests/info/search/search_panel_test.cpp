// SPDX-License-Identifier: MIT
#include "info/search/search_panel.h"

#include <gmock/gmock.h>

#include "support/universe_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class SearchPanelTest : public UniverseFixture {
 protected:
  SearchPanelTest() {
    db.CreateTable(mustWork, DockObjectsTable());
    drawing.Frame = {50, 50, 20000, 12000};
    drawing.Panel = PanelPlace::Right;
    drawing.PanelBox = {14000, 0, 6000, 12000};
  }

  void Places() {
    for (const char* name : {"Anvil", "Brook", "Cove"}) {
      Add("DockObjects", {{"nickname", name}, {"realname", name}});
    }
  }
  // Two pieces of equipment; only the first is sold, in two places.
  void Equipment() {
    Places();
    for (const char* name : {"beam", "lamp"}) {
      Add("Goods", {{"nickname", name},
                    {"realname", name},
                    {"category", "equipment"},
                    {"price", 5},
                    {"ids_info", 0}});
    }
    Add("BaseGoods", {{"Base", "cove"}, {"GoodNick", "beam"}});
    Add("BaseGoods", {{"Base", "anvil"}, {"GoodNick", "beam"}});
  }

  FixedLanguage english{Language::English};
  Wording words{english, {}};
  FixedTextMeasure measure;
  MapDrawing drawing;
  SearchScope scope{universe, words, measure, drawing};
  SearchPanel panel;
};

TEST_F(SearchPanelTest, ItOpensAtTheMapsRightWithEverythingListed) {
  Places();

  const SearchAnswer answer = panel.Open(scope, SearchType::Place);

  EXPECT_TRUE(panel.Visible());
  EXPECT_EQ(answer.Focus, SearchControl::Text);
  EXPECT_THAT(panel.List().Rows, SizeIs(3));
  EXPECT_EQ(panel.List().Selected, 0u);
  EXPECT_EQ(panel.Frame().Left + panel.Frame().Width, 19900);
  EXPECT_EQ(panel.Frame().Top, 200);
  EXPECT_EQ(panel.Frame().Height, 11700);
  EXPECT_EQ(panel.ListBox().Top, 600);
  EXPECT_EQ(panel.ListBox().Height, 11000);  // 11700 - 600 - 100
}

TEST_F(SearchPanelTest, ReopeningItClearsTheText) {
  Places();
  panel.Open(scope, SearchType::Place);
  panel.SetText(scope, "co");
  EXPECT_THAT(panel.List().Rows, SizeIs(1));
  panel.Close();

  panel.Open(scope, SearchType::Place);

  EXPECT_EQ(panel.Text(), "");
  EXPECT_THAT(panel.List().Rows, SizeIs(3));
}

TEST_F(SearchPanelTest, WithTwoListsTheUpperOneTakesHalfTheMap) {
  Equipment();
  panel.Open(scope, SearchType::Equipment);

  EXPECT_EQ(panel.SubSearchBox().Top, 600);
  EXPECT_EQ(panel.SubSearchBox().Height, 6000);
  EXPECT_EQ(panel.ListBox().Top, 6700);
  EXPECT_EQ(panel.ListBox().Height, 4900);  // 11700 - 6700 - 100
}

TEST_F(SearchPanelTest, TheFirstThingFoundIsShownWithItsSellers) {
  Equipment();

  const SearchAnswer answer = panel.Open(scope, SearchType::Equipment);

  EXPECT_THAT(panel.SubSearch().Rows, SizeIs(2));
  EXPECT_EQ(panel.SubSearch().Selected, 0u);
  ASSERT_THAT(panel.List().Rows, SizeIs(2));
  EXPECT_EQ(panel.List().Rows[0].Nickname, "Cove");
  EXPECT_EQ(panel.List().Selected, 0u);
  ASSERT_TRUE(answer.InfoBox);
  EXPECT_THAT(*answer.InfoBox, SizeIs(2));
}

TEST_F(SearchPanelTest, AGoodThatNobodySellsHasItsBoxAndAnEmptyList) {
  Equipment();
  panel.Open(scope, SearchType::Equipment);

  const SearchAnswer answer = panel.SelectSubSearch(scope, 1);

  ASSERT_TRUE(answer.InfoBox);
  EXPECT_THAT(*answer.InfoBox, SizeIs(2));
  EXPECT_THAT(panel.List().Rows, IsEmpty());
  EXPECT_EQ(panel.List().Selected, std::nullopt);
}

TEST_F(SearchPanelTest, ATextThatFindsNothingLeavesBoxAndSellersAsTheyWere) {
  Equipment();
  panel.Open(scope, SearchType::Equipment);

  const SearchAnswer answer = panel.SetText(scope, "zebra");

  EXPECT_THAT(panel.SubSearch().Rows, IsEmpty());
  EXPECT_THAT(panel.List().Rows, SizeIs(2));
  EXPECT_FALSE(answer.InfoBox);
}

TEST_F(SearchPanelTest, KeysMoveThroughThePlacesAndStopAtTheEnds) {
  Places();
  panel.Open(scope, SearchType::Place);

  panel.MoveSelection(scope, -1);
  EXPECT_EQ(panel.List().Selected, 0u);
  panel.MoveSelection(scope, 1);
  panel.MoveSelection(scope, 1);
  EXPECT_EQ(panel.List().Selected, 2u);
  panel.MoveSelection(scope, 1);
  EXPECT_EQ(panel.List().Selected, 2u);
}

TEST_F(SearchPanelTest, KeysMoveThroughTheUpperListAndShowWhatTheyReach) {
  Equipment();
  panel.Open(scope, SearchType::Equipment);

  EXPECT_TRUE(panel.MoveSelection(scope, 1).InfoBox);
  EXPECT_EQ(panel.SubSearch().Selected, 1u);
  EXPECT_FALSE(panel.MoveSelection(scope, 1).InfoBox);  // nothing new at the end
  EXPECT_EQ(panel.SubSearch().Selected, 1u);
}

TEST_F(SearchPanelTest, EnterTurnsThePanelIntoAListOfSellers) {
  Equipment();
  panel.Open(scope, SearchType::Equipment);
  const double bottom = panel.ListBox().Bottom();

  const SearchAnswer answer = panel.EnterInText();

  EXPECT_EQ(answer.Focus, SearchControl::List);
  EXPECT_FALSE(answer.Jump);
  EXPECT_FALSE(panel.SubSearchVisible());
  EXPECT_FALSE(panel.TextVisible());
  EXPECT_EQ(panel.ListBox().Top, panel.TextBox().Top);
  EXPECT_EQ(panel.ListBox().Bottom(), bottom);
}

TEST_F(SearchPanelTest, OpenedAnewThePanelIsWholeAgain) {
  Equipment();
  panel.Open(scope, SearchType::Equipment);
  panel.EnterInText();

  panel.Open(scope, SearchType::Equipment);

  EXPECT_TRUE(panel.SubSearchVisible());
  EXPECT_TRUE(panel.TextVisible());
  EXPECT_EQ(panel.ListBox().Top, 6700);
}

TEST_F(SearchPanelTest, EnterOnAPlaceClosesThePanelAndJumps) {
  Places();
  panel.Open(scope, SearchType::Place);
  panel.SelectList(1);

  const SearchAnswer answer = panel.EnterInText();

  EXPECT_EQ(answer.Jump, "Brook");
  EXPECT_FALSE(panel.Visible());
  ASSERT_TRUE(answer.InfoBox);
  EXPECT_THAT(*answer.InfoBox, IsEmpty());  // the box goes
}

TEST_F(SearchPanelTest, EnterInTheUpperListGoesOnToTheSellers) {
  Equipment();
  panel.Open(scope, SearchType::Equipment);
  EXPECT_EQ(panel.EnterInSubSearch().Focus, SearchControl::List);

  panel.SelectSubSearch(scope, 1);
  EXPECT_EQ(panel.EnterInSubSearch().Focus, SearchControl::None);
}

TEST_F(SearchPanelTest, EnterWithoutAnyPlaceDoesNothing) {
  Places();
  panel.Open(scope, SearchType::Place);
  panel.SetText(scope, "zebra");

  EXPECT_FALSE(panel.EnterInText().Jump);
  EXPECT_FALSE(panel.EnterInList().Jump);
  EXPECT_TRUE(panel.Visible());
}

TEST_F(SearchPanelTest, ClosingHidesPanelAndBox) {
  panel.Open(scope, SearchType::Place);

  const SearchAnswer answer = panel.Close();

  EXPECT_FALSE(panel.Visible());
  ASSERT_TRUE(answer.InfoBox);
  EXPECT_THAT(*answer.InfoBox, IsEmpty());
}

TEST_F(SearchPanelTest, OnATinyMapNothingHasANegativeSize) {
  drawing.Frame = {0, 0, 100, 100};

  panel.Open(scope, SearchType::Ship);

  EXPECT_EQ(panel.Frame().Height, 0);
  EXPECT_EQ(panel.ListBox().Height, 0);
}

class SearchColumns : public SearchPanelTest {
 protected:
  // Systems Alpha and beta; Anvil and Cove lie in beta, Brook in Alpha, Deep in none. A beam costs
  // 5 and is sold in Cove at twice and in Anvil at three times of that; in Brook it has no price.
  SearchColumns() {
    Add("Systems", {{"nickname", "a"}, {"realname", "Alpha"}, {"pos", "1, 2"}});
    Add("Systems", {{"nickname", "b"}, {"realname", "beta"}, {"pos", "3, 4"}});
    PlaceIn("Anvil", 3, 4);
    PlaceIn("Brook", 1, 2);
    PlaceIn("Cove", 3, 4);
    PlaceIn("Deep", 9, 9);
    Add("Goods", {{"nickname", "beam"},
                  {"realname", "Beam"},
                  {"category", "equipment"},
                  {"price", 5},
                  {"ids_info", 0}});
    for (const auto& [base, times] : {std::pair{"cove", 2}, {"anvil", 3}, {"brook", 0}}) {
      Add("BaseGoods", {{"Base", base}, {"GoodNick", "beam"}, {"val6", times}});
    }
  }

  void PlaceIn(const char* name, int x, int y) {
    Add("DockObjects", {{"nickname", name}, {"realname", name}, {"MapX", x}, {"MapY", y}});
  }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const SearchRow& row : panel.List().Rows) names.push_back(row.RealName);
    return names;
  }
  void Sort(SearchColumn column) { panel.Sort(scope, SearchControl::List, column); }
};

TEST_F(SearchColumns, PlacesHaveTheirSystemBeside) {
  panel.Open(scope, SearchType::Place);

  EXPECT_THAT(panel.List().Details,
              ElementsAre(SearchDetail{"beta", std::nullopt}, SearchDetail{"Alpha", std::nullopt},
                          SearchDetail{"beta", std::nullopt}, SearchDetail{"", std::nullopt}));
  EXPECT_THAT(panel.ColumnsOf(SearchControl::List),
              ElementsAre(SearchColumn::Name, SearchColumn::System));
}

TEST_F(SearchColumns, EquipmentHasItsPriceAndItsSellersHaveTheirs) {
  panel.Open(scope, SearchType::Equipment);

  EXPECT_THAT(panel.SubSearch().Details, ElementsAre(SearchDetail{"", 5}));
  EXPECT_THAT(panel.List().Details, ElementsAre(SearchDetail{"beta", 10}, SearchDetail{"beta", 15},
                                                SearchDetail{"Alpha", std::nullopt}));
}

TEST_F(SearchColumns, AShipHasItsPriceAndItsSellersHaveTheirs) {
  Add("Ships", {{"NickName", "arrow"},
                {"RealName", "Arrow"},
                {"packagename", "arrow_package"},
                {"price", 1000},
                {"ids_info", 0}});
  Add("BaseGoods", {{"Base", "cove"}, {"GoodNick", "arrow_package"}, {"val5", 0}, {"val6", 1.5}});

  panel.Open(scope, SearchType::Ship);

  EXPECT_THAT(panel.SubSearch().Details, ElementsAre(SearchDetail{"", 1000}));
  EXPECT_THAT(panel.List().Details, ElementsAre(SearchDetail{"beta", 1500}));
}

TEST_F(SearchColumns, ABribeHasItsPriceAtEachPlace) {
  Add("Groups", {{"NickName", "wardens"}, {"Name", "Wardens"}, {"ids_info", 0}});
  Add("GF_NPC", {{"BaseNick", "anvil"}, {"bribe", "wardens"}, {"bribe_2", 7000}});

  panel.Open(scope, SearchType::Bribe);

  EXPECT_THAT(panel.ColumnsOf(SearchControl::SubSearch), ElementsAre(SearchColumn::Name));
  EXPECT_THAT(panel.List().Details, ElementsAre(SearchDetail{"beta", 7000}));
}

TEST_F(SearchColumns, AHeadSortsUpDownAndAsFoundAgain) {
  panel.Open(scope, SearchType::Equipment);
  ASSERT_THAT(Names(), ElementsAre("Cove", "Anvil", "Brook"));

  Sort(SearchColumn::Name);
  EXPECT_THAT(Names(), ElementsAre("Anvil", "Brook", "Cove"));
  Sort(SearchColumn::Name);
  EXPECT_THAT(Names(), ElementsAre("Cove", "Brook", "Anvil"));
  Sort(SearchColumn::Name);
  EXPECT_THAT(Names(), ElementsAre("Cove", "Anvil", "Brook"));
}

TEST_F(SearchColumns, RowsWithoutAValueComeLastEitherWay) {
  panel.Open(scope, SearchType::Equipment);

  Sort(SearchColumn::Price);
  EXPECT_THAT(Names(), ElementsAre("Cove", "Anvil", "Brook"));
  Sort(SearchColumn::Price);
  EXPECT_THAT(Names(), ElementsAre("Anvil", "Cove", "Brook"));
}

TEST_F(SearchColumns, SystemsAreSortedWhateverTheirCase) {
  panel.Open(scope, SearchType::Place);

  Sort(SearchColumn::System);

  EXPECT_THAT(Names(), ElementsAre("Brook", "Anvil", "Cove", "Deep"));
  EXPECT_EQ(panel.List().Selected, 0u);
}

TEST_F(SearchColumns, WhatIsTypedAfterThatIsSortedTooUntilThePanelOpensAnew) {
  panel.Open(scope, SearchType::Place);
  Sort(SearchColumn::Name);
  Sort(SearchColumn::Name);

  panel.SetText(scope, "o");
  EXPECT_THAT(Names(), ElementsAre("Cove", "Brook"));

  panel.Open(scope, SearchType::Place);
  EXPECT_THAT(Names(), ElementsAre("Anvil", "Brook", "Cove", "Deep"));
}

}  // namespace
}  // namespace orrerix
