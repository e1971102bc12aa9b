// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/goods_page.h"

#include <QClipboard>

#include <gmock/gmock.h>

#include "travel_page_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

// Anvil sells gold for 100 that brook takes for 130, brook sells iron for 50 that anvil takes for
// 60. Either way lasts 30 seconds.
class GoodsPageTest : public TravelPageFixture {
 protected:
  QTableView& Goods() { return Find<QTableView>(page, "Commodities"); }
  QTableView& Places() { return Find<QTableView>(page, "Places"); }
  QTableView& Legs() { return Find<QTableView>(page, "Legs"); }
  int Count() { return Goods().model()->rowCount(); }

  // Brings the page up, which lists the goods by itself.
  void List() {
    Open(page);
    ASSERT_TRUE(WaitUntil([&] { return Count() > 0; }));
  }
  void Choose(int row) {
    Goods().selectRow(row);
    const QString head = Goods().model()->index(row, 0).data().toString() + ":";
    ASSERT_TRUE(WaitUntil([&] { return Find<QLabel>(page, "PlacesOf").text().startsWith(head); }));
  }

  GoodsPage page{travel};
};

TEST_F(GoodsPageTest, ListsWhatEachGoodBringsTheMostByTimeFirst) {
  List();

  ASSERT_EQ(Count(), 2);
  EXPECT_THAT(RowOf(Goods(), 0), ElementsAre("gold", "anvil, Liberty", "brook, Liberty", "100",
                                             "130", "30", "0", "0:30", "6,000"));
  EXPECT_THAT(RowOf(Goods(), 1), ElementsAre("iron", "brook, Liberty", "anvil, Liberty", "50", "60",
                                             "10", "0", "0:30", "2,000"));
  EXPECT_EQ(State(page), "2 commodities, 2 of them bring a profit");
}

TEST_F(GoodsPageTest, AtAStationOnlyWhatItSellsBringsAProfit) {
  List();
  Choose(0);

  page.ShowGoodsFrom("brook");

  ASSERT_TRUE(WaitUntil([&] { return State(page) == "2 commodities, 1 of them bring a profit"; }));
  EXPECT_EQ(RowOf(Goods(), 0).front(), "iron");
  EXPECT_EQ(Goods().currentIndex().row(), 0);
  EXPECT_THAT(RowOf(Goods(), 1), ElementsAre("gold", "", "", "", "", "", "", "", ""));
}

// Coast takes gold, too, 6000 units from anvil: 5 + 20 + 5 + 10 = 40 seconds.
TEST_F(GoodsPageTest, AllPlacesOfTheChosenGoodStandByPriceAndTime) {
  Dock("coast", "li01", "6000, 0, 0", "");
  Price("coast", "gold", 130, 2);
  host.Start = "anvil";
  List();

  Choose(0);

  ASSERT_EQ(Places().model()->rowCount(), 3);
  EXPECT_THAT(RowOf(Places(), 0),
              ElementsAre("brook", "Liberty", "takes", "130", "30", "0", "0:30"));
  EXPECT_THAT(RowOf(Places(), 1),
              ElementsAre("coast", "Liberty", "takes", "130", "30", "0", "0:40"));
  EXPECT_THAT(RowOf(Places(), 2),
              ElementsAre("anvil", "Liberty", "sells and takes", "100", "0", "0", "0:00"));
}

TEST_F(GoodsPageTest, WithoutAStartPlacesHaveNoTime) {
  List();

  Choose(1);

  EXPECT_THAT(RowOf(Places(), 0), ElementsAre("anvil", "Liberty", "takes", "60", "", "", ""));
  EXPECT_EQ(Legs().model()->rowCount(), 0);
  EXPECT_FALSE(Find(page, "ShowWay").isEnabled());
}

TEST_F(GoodsPageTest, TheWayToTheChosenPlaceIsShownAndItsCoordinatesAreCopied) {
  host.Start = "anvil";
  List();
  Choose(0);

  ASSERT_EQ(Legs().model()->rowCount(), 3);
  Find<QPushButton>(page, "ShowWay").click();
  Find<QPushButton>(page, "CopyCoordinates").click();

  ASSERT_EQ(host.Way.size(), 3u);
  EXPECT_EQ(host.Way[1].To, "brook");
  EXPECT_EQ(QApplication::clipboard()->text(), "brook, Liberty: 3000, 0, 0");
}

TEST_F(GoodsPageTest, AGoodIsFoundByAPartOfItsName) {
  List();

  page.FindGood("RO");

  ASSERT_EQ(Count(), 1);
  EXPECT_EQ(RowOf(Goods(), 0).front(), "iron");
  EXPECT_EQ(Goods().currentIndex().row(), 0);
  EXPECT_EQ(Find<QLineEdit>(page, "FindGood").text(), "RO");
  page.FindGood("copper");
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(Places().model()->rowCount(), 0);
}

TEST_F(GoodsPageTest, HoldAndMoneyCountForTheProfitByTime) {
  List();
  Find<QLineEdit>(page, "Hold").setText("10");
  Find<QLineEdit>(page, "Money").setText("250");

  Search(page);

  // Two units of gold for 250, five of iron: 60 and 50 in half a minute.
  EXPECT_EQ(RowOf(Goods(), 0).back(), "120");
  EXPECT_EQ(RowOf(Goods(), 1).back(), "100");
}

TEST_F(GoodsPageTest, APlaceThatIsNotThereIsNamed) {
  List();
  Find<QComboBox>(page, "From").setEditText("nowhere");

  Search(page);

  EXPECT_EQ(State(page), "There is no place 'nowhere'.");
  EXPECT_EQ(Count(), 0);
}

TEST_F(GoodsPageTest, AnotherUniverseHasNoneOfTheOldGoods) {
  List();

  page.UniverseChanged();

  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(Places().model()->rowCount(), 0);
  EXPECT_TRUE(State(page).empty());
}

TEST_F(GoodsPageTest, ThePagesOfTravelShareTheirFields) {
  List();
  Find<QLineEdit>(page, "Hold").setText("10");
  page.Leave();

  GoodsPage other(travel);
  Open(other);

  EXPECT_EQ(Find<QLineEdit>(other, "Hold").text(), "10");
  EXPECT_FALSE(Find(page, "To").isVisibleTo(&page));
}

}  // namespace
}  // namespace orrerix
