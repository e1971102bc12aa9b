// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_page.h"

#include <QClipboard>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QTest>

#include <gmock/gmock.h>

#include "atlas_page_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST_F(AtlasPageTest, ListsAllTablesAndShowsTheChosenOne) {
  Open(page);

  EXPECT_EQ(Find<QListWidget>(page, "AtlasTables").count(), 16);
  EXPECT_THAT(Nicknames(page), ElementsAre("shield_a", "shield_b", "shield_c"));
  EXPECT_EQ(State(page), "3 of 3 rows");
}

TEST_F(AtlasPageTest, AUniverseFileThatCannotBeReadIsNamed) {
  Remove();

  page.Enter();

  ASSERT_TRUE(WaitUntil([&] { return State(page).find("Orrerix.fl") != std::string::npos; }));
  EXPECT_EQ(Table(page).model()->columnCount(), 0);
  page.Leave();
}

TEST_F(AtlasPageTest, TypingFiltersAtOnce) {
  Open(page);

  Type(page, "Filter", "FIGHTER_1");
  EXPECT_THAT(Nicknames(page), ElementsAre("shield_a", "shield_c"));
  Type(page, "Conditions", "capacity>1000");
  EXPECT_THAT(Nicknames(page), ElementsAre("shield_c"));
  EXPECT_EQ(State(page), "1 of 3 rows");
}

TEST_F(AtlasPageTest, AWrongConditionIsNamedInTheStateLine) {
  Open(page);

  Type(page, "Conditions", "weight>3");

  EXPECT_EQ(State(page), "3 of 3 rows. This table has no column 'weight'");
}

TEST_F(AtlasPageTest, TheChosenRowStaysChosenWhileItIsShown) {
  Open(page);
  Table(page).selectRow(2);

  Type(page, "Filter", "fighter_1");

  EXPECT_EQ(Table(page).currentIndex().row(), 1);
  EXPECT_THAT(Find<QPlainTextEdit>(page, "AtlasText").toPlainText().toStdString(),
              HasSubstr("Regeneration per second: 40"));
}

TEST_F(AtlasPageTest, TheFirstRowIsChosenWhereTheChosenOneGoes) {
  Open(page);
  Table(page).selectRow(2);

  Type(page, "Filter", "nothing at all");
  EXPECT_FALSE(Table(page).currentIndex().isValid());
  EXPECT_EQ(Find<QPlainTextEdit>(page, "AtlasText").toPlainText(), "");
  Type(page, "Filter", "fighter_1");

  EXPECT_EQ(Table(page).currentIndex().row(), 0);
  EXPECT_THAT(Find<QPlainTextEdit>(page, "AtlasText").toPlainText().toStdString(),
              HasSubstr("Regeneration per second: 10"));
}

TEST_F(AtlasPageTest, OnlyWhatFitsTheShipIsShown) {
  Open(page);
  auto& ships = Find<QComboBox>(page, "FitsShip");
  ASSERT_EQ(ships.count(), 2);
  EXPECT_EQ(ships.itemText(1), "Patriot (li_fighter)");

  ships.setCurrentIndex(1);

  EXPECT_THAT(Nicknames(page), ElementsAre("shield_a", "shield_c"));
  ChooseTable(page, "Bases");
  EXPECT_FALSE(ships.isEnabled());
  EXPECT_EQ(State(page), "1 of 1 rows");
}

TEST_F(AtlasPageTest, AClickOnAHeadSorts) {
  Open(page);

  Table(page).horizontalHeader()->setSortIndicator(kCapacity, Qt::DescendingOrder);

  EXPECT_THAT(Nicknames(page), ElementsAre("shield_b", "shield_c", "shield_a"));
}

TEST_F(AtlasPageTest, TheMenuHidesColumnsButNotTheFirst) {
  Open(page);
  auto& menu = Find<QMenu>(page, "ColumnMenu");
  emit menu.aboutToShow();

  for (QAction* action : menu.actions()) {
    EXPECT_NE(action->text(), "Name");
    if (action->text() == "Nickname") action->setChecked(false);
  }

  EXPECT_TRUE(Table(page).isColumnHidden(kNickname));
  emit menu.aboutToShow();
  menu.actions().front()->trigger();
  EXPECT_FALSE(Table(page).isColumnHidden(kNickname));
}

TEST_F(AtlasPageTest, ChosenRowsAreCopiedWithTabsBetweenTheirShownCells) {
  Open(page);
  for (int column = 2; column < Table(page).model()->columnCount(); ++column) {
    Table(page).setColumnHidden(column, column != kCapacity);
  }
  Table(page).selectAll();

  Find<QPushButton>(page, "CopyRows").click();

  EXPECT_EQ(QApplication::clipboard()->text(),
            "\tshield_a\t1000\n\tshield_b\t3000\n\tshield_c\t2000");
}

TEST_F(AtlasPageTest, ShownRowsAndColumnsAreExportedAsCsv) {
  Open(page);
  Type(page, "Conditions", "capacity>=2000");
  for (int column = 2; column < Table(page).model()->columnCount(); ++column) {
    Table(page).setColumnHidden(column, column != kCapacity);
  }
  const QString name = QString::fromStdString((folder.Path() / "shields.csv").string());

  ASSERT_TRUE(page.Output().SaveTo(name));

  QFile file(name);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(),
            "Name,Nickname,Capacity (points)\r\n,shield_b,3000\r\n,shield_c,2000\r\n");
  EXPECT_FALSE(page.Output().SaveTo("/nowhere/at/all.csv"));
}

TEST_F(AtlasPageTest, TableColumnsWidthsSortingAndFiltersComeBack) {
  Open(page);
  Type(page, "Conditions", "capacity>=2000");
  Type(page, "Filter", "shield");
  Table(page).setColumnHidden(0, false);
  Table(page).setColumnHidden(3, true);
  Table(page).setColumnWidth(kNickname, 333);
  Table(page).horizontalHeader()->setSortIndicator(kCapacity, Qt::AscendingOrder);
  page.Leave();

  AtlasPage again(host, choice, settings);
  again.Enter();
  ASSERT_TRUE(WaitUntil([&] { return Table(again).model()->columnCount() > 0; }));

  EXPECT_THAT(Nicknames(again), ElementsAre("shield_c", "shield_b"));
  EXPECT_EQ(Find<QLineEdit>(again, "Filter").text(), "shield");
  EXPECT_EQ(Find<QLineEdit>(again, "Conditions").text(), "capacity>=2000");
  EXPECT_TRUE(Table(again).isColumnHidden(3));
  EXPECT_EQ(Table(again).columnWidth(kNickname), 333);
  EXPECT_EQ(Table(again).horizontalHeader()->sortIndicatorSection(), kCapacity);
}

TEST_F(AtlasPageTest, EachTableHasFiltersOfItsOwn) {
  Open(page);
  Type(page, "Filter", "shield_b");

  ChooseTable(page, "Bases");
  EXPECT_EQ(Find<QLineEdit>(page, "Filter").text(), "");
  ChooseTable(page, "Shields");

  EXPECT_THAT(Nicknames(page), ElementsAre("shield_b"));
}

TEST_F(AtlasPageTest, TheDetailsHaveTheGamesTextAndThePlacesThatSell) {
  Open(page);

  EXPECT_THAT(Find<QPlainTextEdit>(page, "AtlasText").toPlainText().toStdString(),
              HasSubstr("Regeneration per second: 10"));
  auto& places = Find<QListWidget>(page, "AtlasPlaces");
  ASSERT_EQ(places.count(), 1);
  EXPECT_EQ(places.item(0)->text(), "Anvil (Liberty)");
  Find<QPushButton>(page, "ShowOnMap").click();
  EXPECT_THAT(host.Shown, ElementsAre("anvil_dock"));
  emit places.itemActivated(places.item(0));
  EXPECT_EQ(host.Shown.size(), 2u);
}

TEST_F(AtlasPageTest, WithoutATextOfTheGameTheDetailsAreTheFieldsOfTheRow) {
  Open(page);

  ChooseTable(page, "Systems");

  EXPECT_THAT(Find<QPlainTextEdit>(page, "AtlasText").toPlainText().toStdString(),
              ::testing::StartsWith("Name: Liberty\nNickname: li01\n"));
}

TEST_F(AtlasPageTest, WhatNobodySellsHasNoPlace) {
  Open(page);

  Table(page).selectRow(1);

  EXPECT_EQ(Find<QListWidget>(page, "AtlasPlaces").count(), 0);
  EXPECT_FALSE(Find(page, "ShowOnMap").isEnabled());
}

TEST_F(AtlasPageTest, ChosenRowsArePinnedBelowTheTable) {
  Open(page);
  auto& pinned = Find<QTableView>(page, "AtlasPinned");
  EXPECT_FALSE(pinned.isVisibleTo(&page));
  Table(page).selectAll();

  Find<QPushButton>(page, "Pin").click();

  ASSERT_EQ(pinned.model()->rowCount(), 3);
  EXPECT_TRUE(pinned.isVisibleTo(&page));
  EXPECT_EQ(pinned.model()->index(1, kCapacity).data(), QString::fromUtf8("\u2605 \u2260 3000"));
  for (int i = 0; i < 3; ++i) Find<QPushButton>(page, "Unpin").click();
  EXPECT_FALSE(pinned.isVisibleTo(&page));
}

TEST_F(AtlasPageTest, PinnedRowsHaveTheColumnsOfTheTable) {
  Open(page);
  Find<QPushButton>(page, "Pin").click();

  Table(page).setColumnHidden(3, true);
  Table(page).setColumnWidth(kNickname, 321);

  EXPECT_TRUE(Find<QTableView>(page, "AtlasPinned").isColumnHidden(3));
  EXPECT_EQ(Find<QTableView>(page, "AtlasPinned").columnWidth(kNickname), 321);
}

TEST_F(AtlasPageTest, AClickOnAPointOfTheChartChoosesItsRow) {
  Open(page);
  page.resize(1200, 700);
  page.show();
  Find<QPushButton>(page, "ShowChart").click();
  auto& chart = static_cast<AtlasChart&>(Find(page, "AtlasChart"));
  ASSERT_EQ(chart.Points().size(), 3u);
  EXPECT_EQ(chart.Points()[1].X, 2000);
  EXPECT_EQ(chart.Points()[1].Y, 40);

  QTest::mouseClick(&chart, Qt::LeftButton, {}, chart.PlaceOf(chart.Points()[1]).toPoint());
  EXPECT_EQ(Table(page).currentIndex().row(), 2);
  QTest::keyClick(&chart, Qt::Key_Right);
  EXPECT_EQ(Table(page).currentIndex().row(), 1);
}

TEST_F(AtlasPageTest, TheChartHasThePointsOfTheShownRowsAndOfOtherColumns) {
  Open(page);
  page.show();
  Find<QPushButton>(page, "ShowChart").click();
  auto& chart = static_cast<AtlasChart&>(Find(page, "AtlasChart"));

  Type(page, "Filter", "fighter_1");
  EXPECT_EQ(chart.Points().size(), 2u);
  auto& across = Find<QComboBox>(page, "AtlasAxisX");
  across.setCurrentIndex(across.findText("Price (credits)"));

  ASSERT_EQ(chart.Points().size(), 1u);
  EXPECT_EQ(chart.Points()[0].X, 500);
}

TEST_F(AtlasPageTest, AnotherUniverseHasNoneOfTheOldRows) {
  Open(page);
  Find<QPushButton>(page, "Pin").click();

  page.UniverseChanged();

  EXPECT_EQ(Table(page).model()->rowCount(), 0);
  EXPECT_EQ(Find<QTableView>(page, "AtlasPinned").model()->rowCount(), 0);
  EXPECT_TRUE(Find<QPlainTextEdit>(page, "AtlasText").toPlainText().isEmpty());
}

TEST_F(AtlasPageTest, WhatIsUsedByKeyboardHasANameForReaders) {
  for (const QWidget* widget : page.findChildren<QWidget*>()) {
    const bool isFixed = widget->objectName().startsWith("qt_") || widget->objectName().isEmpty();
    if (isFixed || widget->focusPolicy() == Qt::NoFocus) continue;
    if (qobject_cast<const QPushButton*>(widget) != nullptr) continue;
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
  }
}

}  // namespace
}  // namespace orrerix
