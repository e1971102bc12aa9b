// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/trades_page.h"

#include <QClipboard>
#include <QListWidget>
#include <QSpinBox>

#include <gmock/gmock.h>

#include "travel_page_fixture.h"

namespace orrerix {
namespace {

using ::testing::_;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class TradesPageTest : public TravelPageFixture {
 protected:
  QTableView& Trades() { return Find<QTableView>(page, "Trades"); }
  QTableView& Legs() { return Find<QTableView>(page, "Legs"); }
  int Count() { return Trades().model()->rowCount(); }
  void Type(const char* field, const char* text) { Find<QLineEdit>(page, field).setText(text); }
  void ShowLegs() {
    ASSERT_TRUE(WaitUntil([&] { return Legs().model()->rowCount() > 0; }));
  }

  TradesPage page{travel};
};

// A hundred of gold: 3000 in 30 s, 6000 a minute, 30 of 100 spent; with 1000 for the iron that goes
// back 4000 in a minute.
TEST_F(TradesPageTest, ListsTradesByProfitPerMinute) {
  Open(page);

  Search(page);

  ASSERT_EQ(Count(), 2);
  EXPECT_THAT(RowOf(Trades(), 0),
              ElementsAre("anvil, Liberty", "brook, Liberty", "100 gold (100 → 130)", "3,000",
                          "6,000", "30%", _, "0:30", "4,000"));
  EXPECT_THAT(RowOf(Trades(), 1),
              ElementsAre("brook, Liberty", "anvil, Liberty", "100 iron (50 → 60)", "1,000",
                          "2,000", "20%", _, "0:30", "4,000"));
  EXPECT_EQ(State(page), "2 trades, the best 2 are shown");
}

TEST_F(TradesPageTest, TheTableIsSortedAndFiltered) {
  Open(page);
  Search(page);

  Trades().sortByColumn(TradeModel::ProfitColumn, Qt::AscendingOrder);
  EXPECT_EQ(RowOf(Trades(), 0)[TradeModel::ProfitColumn], "1,000");
  Type("Filter", "GOLD");

  ASSERT_EQ(Count(), 1);
  EXPECT_EQ(RowOf(Trades(), 0)[TradeModel::ProfitColumn], "3,000");
}

TEST_F(TradesPageTest, TheChosenTradeShowsItsLegsAndPutsThemOnTheMap) {
  Open(page);
  Search(page);
  ShowLegs();

  EXPECT_THAT(RowOf(Legs(), 0),
              ElementsAre("Launch", "Liberty", "anvil", "100 gold (100 → 130)", "0", "0", "0:05"));
  EXPECT_THAT(RowOf(Legs(), 1), ElementsAre("Free flight", "Liberty", "brook",
                                            "100 gold (100 → 130)", "0", "3,000", "0:15"));
  EXPECT_THAT(RowOf(Legs(), 2),
              ElementsAre("Dock", "Liberty", "brook", "100 gold (100 → 130)", "0", "0", "0:10"));
  Find<QPushButton>(page, "ShowWay").click();
  ASSERT_EQ(host.Way.size(), 3u);
  EXPECT_EQ(host.Way[1].Kind, LegKind::Fly);
  EXPECT_EQ(host.Way[1].From, "anvil");
  EXPECT_EQ(host.Way[1].To, "brook");
  Find<QPushButton>(page, "HideWay").click();
  EXPECT_TRUE(host.Way.empty());
}

TEST_F(TradesPageTest, CoordinatesOfALegsEndAreCopied) {
  Open(page);
  Search(page);
  ShowLegs();
  Legs().selectRow(1);

  Find<QPushButton>(page, "CopyCoordinates").click();

  EXPECT_EQ(QApplication::clipboard()->text(), "brook, Liberty: 3000, 0, 0");
}

TEST_F(TradesPageTest, ShowsTheTradesFromAPlace) {
  Open(page);

  page.ShowTradesFrom("brook");

  ASSERT_TRUE(WaitUntil([&] { return !Find(page, "Cancel").isEnabled(); }));
  ASSERT_EQ(Count(), 1);
  EXPECT_EQ(RowOf(Trades(), 0)[TradeModel::FromColumn], "brook, Liberty");
}

TEST_F(TradesPageTest, AWayThatTheMapDoesNotHaveIsNamed) {
  host.HasWayOnMap = false;
  Open(page);
  Search(page);
  ShowLegs();

  Find<QPushButton>(page, "ShowWay").click();

  EXPECT_EQ(State(page), "The map does not show these places.");
}

// 10 fit, 250 buy 2 of gold (60) and 5 of iron (50).
TEST_F(TradesPageTest, HoldAndMoneyLimitTheLoads) {
  Open(page);
  Type("Hold", "10");
  Type("Money", "250");

  Search(page);

  ASSERT_EQ(Count(), 2);
  EXPECT_EQ(RowOf(Trades(), 0)[TradeModel::GoodsColumn], "2 gold (100 → 130)");
  EXPECT_EQ(RowOf(Trades(), 0)[TradeModel::ProfitColumn], "60");
  EXPECT_EQ(RowOf(Trades(), 1)[TradeModel::GoodsColumn], "5 iron (50 → 60)");
}

// Brook is the only other place.
TEST_F(TradesPageTest, NoTradeStopsAtFactionsThatShoot) {
  Open(page);
  auto& factions = Find<QListWidget>(page, "EnemyFactions");
  ASSERT_EQ(factions.count(), 1);
  EXPECT_EQ(factions.item(0)->text(), "Rogues (rogues)");
  factions.item(0)->setCheckState(Qt::Checked);

  Search(page);

  EXPECT_EQ(State(page), "0 trades, the best 0 are shown");
  EXPECT_EQ(Count(), 0);
}

TEST_F(TradesPageTest, StartsWhereThePlayerIs) {
  host.Start = "brook";
  Open(page);

  Search(page);

  EXPECT_EQ(Find<QComboBox>(page, "From").currentText(), "brook, Liberty (brook)");
  ASSERT_EQ(Count(), 1);
  EXPECT_EQ(RowOf(Trades(), 0)[TradeModel::FromColumn], "brook, Liberty");
}

TEST_F(TradesPageTest, AStartThatWasTypedStays) {
  host.Start = "brook";
  Open(page);
  Find<QComboBox>(page, "From").setEditText("anvil");
  host.Start = "li01";

  page.Enter();

  EXPECT_EQ(Find<QComboBox>(page, "From").currentText(), "anvil");
}

// There and back: 3000 + 1000 in 60 s.
TEST_F(TradesPageTest, ALoopHasTwoLegsOrMoreAndNoOtherEnd) {
  Open(page);
  Find<QComboBox>(page, "To").setEditText("brook");
  Find<QCheckBox>(page, "Loop").click();

  Search(page);

  EXPECT_EQ(Find<QSpinBox>(page, "Hops").value(), 2);
  EXPECT_FALSE(Find(page, "To").isEnabled());
  ASSERT_EQ(Count(), 1);
  EXPECT_THAT(RowOf(Trades(), 0), ElementsAre("anvil, Liberty", "brook, Liberty → anvil, Liberty",
                                              "100 gold (100 → 130); 100 iron (50 → 60)", "4,000",
                                              "4,000", "27%", _, "1:00", ""));
}

TEST_F(TradesPageTest, APlaceThatIsNotThereIsNamed) {
  Open(page);
  Find<QComboBox>(page, "From").setEditText("nowhere");

  Search(page);

  EXPECT_EQ(State(page), "There is no place of trade 'nowhere'.");
  EXPECT_EQ(Count(), 0);
}

TEST_F(TradesPageTest, AUniverseFileThatIsNotThereIsNoCrash) {
  RemoveUniverseFile();
  page.Enter();

  Search(page);

  EXPECT_FALSE(State(page).empty());
  EXPECT_EQ(Count(), 0);
}

TEST_F(TradesPageTest, AnotherUniverseHasNoneOfTheOldTrades) {
  Open(page);
  Search(page);

  page.UniverseChanged();

  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(Legs().model()->rowCount(), 0);
  EXPECT_TRUE(State(page).empty());
}

// In another system, on the far side of a hole: sorted by jumps these trades come last.
TEST_F(TradesPageTest, TheJumpsOfEachTradeAreCounted) {
  Add("Systems", {{"nickname", "li02"}, {"realname", "Outback"}, {"pos", "5, 4"}});
  for (const auto& [hole, system, other] :
       {std::tuple("hole1", "li01", "li02, hole2"), std::tuple("hole2", "li02", "li01, hole1")}) {
    Add("Objects", {{"nickname", hole},
                    {"sys_nick", system},
                    {"pos", "0, 0, 3000"},
                    {"goto", other},
                    {"jump_effect", "jump_effect_hole"}});
  }
  Dock("cliff", "li02", "6000, 0, 0", "");
  Price("cliff", "gold", 900, 2);
  Open(page);

  Search(page);

  const auto jumps = [&](int row) { return RowOf(Trades(), row)[TradeModel::JumpsColumn]; };
  ASSERT_TRUE(WaitUntil([&] { return !jumps(0).empty(); }));
  Trades().sortByColumn(TradeModel::JumpsColumn, Qt::AscendingOrder);
  ASSERT_EQ(Count(), 3);
  EXPECT_EQ(jumps(0), "0");
  EXPECT_EQ(jumps(2), "1");
  EXPECT_EQ(RowOf(Trades(), 2)[TradeModel::ToColumn], "cliff, Outback");
}

// The fixture's objects have no text of the game.
TEST_F(TradesPageTest, AWaypointIsALineOfAMissionScript) {
  Open(page);
  Search(page);
  ShowLegs();
  Legs().selectRow(1);

  Find<QPushButton>(page, "CopyWaypoint").click();

  EXPECT_EQ(QApplication::clipboard()->text(), "type = navmarker, li01, 0, 0, 3000, 0, 0");
}

TEST_F(TradesPageTest, FieldsComeBackInTheNextRun) {
  Open(page);
  Find<QComboBox>(page, "From").setEditText("brook");
  Type("Hold", "30");
  Type("Money", "500");
  Type("KeepAway", "anvil, li02");
  Find<QCheckBox>(page, "NoHoles").click();
  Find<QListWidget>(page, "EnemyFactions").item(0)->setCheckState(Qt::Checked);
  Find<QCheckBox>(page, "Loop").click();
  Find<QSpinBox>(page, "Hops").setValue(4);
  Find<QComboBox>(page, "Sorting").setCurrentIndex(2);
  Trades().setColumnWidth(TradeModel::GoodsColumn, 234);
  page.Leave();

  TradesPage next(travel);
  Open(next);

  EXPECT_EQ(Find<QComboBox>(next, "From").currentText(), "brook, Liberty (brook)");
  EXPECT_EQ(Find<QLineEdit>(next, "Hold").text(), "30");
  EXPECT_EQ(Find<QLineEdit>(next, "Money").text(), "500");
  EXPECT_EQ(Find<QLineEdit>(next, "KeepAway").text(), "anvil, li02");
  EXPECT_TRUE(Find<QCheckBox>(next, "NoHoles").isChecked());
  EXPECT_FALSE(Find<QCheckBox>(next, "NoGates").isChecked());
  EXPECT_EQ(Find<QListWidget>(next, "EnemyFactions").item(0)->checkState(), Qt::Checked);
  EXPECT_TRUE(Find<QCheckBox>(next, "Loop").isChecked());
  EXPECT_EQ(Find<QSpinBox>(next, "Hops").value(), 4);
  EXPECT_EQ(Find<QComboBox>(next, "Sorting").currentIndex(), 2);
  EXPECT_EQ(Find<QTableView>(next, "Trades").columnWidth(TradeModel::GoodsColumn), 234);
}

TEST_F(TradesPageTest, AStartThatFollowsThePlayerIsNotRemembered) {
  host.Start = "brook";
  Open(page);
  page.Leave();
  host.Start = "anvil";

  TradesPage next(travel);
  Open(next);

  EXPECT_EQ(Find<QComboBox>(next, "From").currentText(), "anvil, Liberty (anvil)");
}

}  // namespace
}  // namespace orrerix
