// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_page.h"

#include <QClipboard>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QTest>

#include <gmock/gmock.h>

#include "../../form_fixture.h"
#include "../fake_workbench_host.h"
#include "db/engine/engine.h"
#include "db/schema.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

// A main form that opens the universe file that the page reads.
class AtlasHost : public FakeWorkbenchHost {
 public:
  using FakeWorkbenchHost::FakeWorkbenchHost;
  Universe OpenUniverse(Routine& routine) override {
    file_ = DBEngine::OpenDatabase(routine, UniverseFile());
    return {universeLog_, file_};
  }

 private:
  FakeMessageBoxes boxes_;
  ErrorLog universeLog_{boxes_, {1, 0, 0}};
  Database file_;
};

// Three shields, of which dock anvil_dock sells the first, and a ship that takes two of them.
class AtlasPageTest : public FormFixture {
 protected:
  using Fields = std::initializer_list<std::pair<std::string_view, Value>>;

  AtlasPageTest() {
    file_ = DBEngine::CreateDatabase(mustWork_, UniverseFile(), JetVersionOption::Version30);
    for (const TableDef& table : FixedTables()) file_.CreateTable(mustWork_, table);
    file_.CreateTable(mustWork_, DockObjectsTable());
    TableDef shields{"shieldgenerator", {}, {}};
    for (const char* field : {"nickname", "hp_type", "max_capacity", "regeneration_rate"}) {
      shields.Fields.push_back({field, FieldType::Memo});
    }
    file_.CreateTable(mustWork_, shields);
    Shield("shield_a", "hp_fighter_1", "1000", "10");
    Shield("shield_b", "hp_fighter_2", "3000", "20");
    Shield("shield_c", "hp_fighter_1", "2000", "40");
    Add("Goods", {{"nickname", "shield_a"},
                  {"equipment", "shield_a"},
                  {"category", "equipment"},
                  {"price", 500}});
    Add("Systems", {{"nickname", "li01"}, {"realname", "Liberty"}, {"pos", "3, 4"}});
    Add("Objects", {{"nickname", "anvil_dock"},
                    {"realname", "Anvil"},
                    {"dock_with", "anvil"},
                    {"sys_nick", "li01"}});
    Add("DockObjects", {{"nickname", "anvil_dock"}, {"PosX", 0.5}, {"PosY", 0.5}});
    Add("BaseGoods", {{"Base", "anvil"}, {"GoodNick", "shield_a"}, {"val5", 0}, {"val6", 1.0}});
    Add("Ships", {{"NickName", "li_fighter"}, {"RealName", "Patriot"}});
    Add("Ships_Hardpoints",
        {{"NickName", "li_fighter"}, {"EquipType", "hp_fighter_1"}, {"HardPoints", "HpShield01"}});
  }
  void Add(std::string_view table, Fields fields) {
    Recordset rows = file_.OpenTable(mustWork_, table);
    rows.AddNew();
    for (const auto& [name, value] : fields) rows[name] = value;
    rows.Update();
  }
  void Shield(const char* nickname, const char* type, const char* capacity, const char* rate) {
    Add("shieldgenerator", {{"nickname", nickname},
                            {"hp_type", type},
                            {"max_capacity", capacity},
                            {"regeneration_rate", rate}});
  }

  // Writes the file, and shows the table of shields.
  void Open(AtlasPage& shown) {
    file_.Close();
    shown.Enter();
    ASSERT_TRUE(WaitUntil([&] { return Table(shown).model()->columnCount() > 0; }));
    ChooseTable(shown, "Shields");
  }
  void Remove() {
    file_.Close();
    std::filesystem::remove(UniverseFile());
  }
  static void ChooseTable(AtlasPage& shown, const char* title) {
    auto& list = Find<QListWidget>(shown, "AtlasTables");
    list.setCurrentItem(list.findItems(title, Qt::MatchExactly).front());
  }
  static QTableView& Table(const AtlasPage& shown) { return Find<QTableView>(shown, "AtlasTable"); }
  std::vector<std::string> Nicknames(const AtlasPage& shown) {
    std::vector<std::string> names;
    const auto* model = Table(shown).model();
    for (int row = 0; row < model->rowCount(); ++row) {
      names.push_back(model->index(row, kNickname).data().toString().toStdString());
    }
    return names;
  }
  static std::string State(const AtlasPage& shown) {
    return Find<QLabel>(shown, "State").text().toStdString();
  }
  static void Type(AtlasPage& shown, const char* edit, const char* text) {
    Find<QLineEdit>(shown, edit).setText(text);
  }

  static constexpr int kNickname = 1;
  static constexpr int kCapacity = 4;
  AtlasHost host{log, folder.Path()};
  QSettings settings{QString::fromStdString((folder.Path() / "tools.ini").string()),
                     QSettings::IniFormat};
  AtlasPage page{host, choice, settings};

 private:
  FailTest mustWork_;
  Database file_;
};

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

  ASSERT_TRUE(page.SaveTo(name));

  QFile file(name);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(),
            "Name,Nickname,Capacity (points)\r\n,shield_b,3000\r\n,shield_c,2000\r\n");
  EXPECT_FALSE(page.SaveTo("/nowhere/at/all.csv"));
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
