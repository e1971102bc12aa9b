// SPDX-License-Identifier: MIT
#include "forms/workbench/relations/relations_page.h"

#include <QHeaderView>
#include <QTest>
#include <set>

#include <gmock/gmock.h>

#include "../../form_fixture.h"
#include "../fake_workbench_host.h"
#include "db/engine/engine.h"
#include "db/schema.h"
#include "forms/workbench/relations/attitude_look.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

// Navy and Police like each other; Rogues hate the Navy and say nothing of the Police.
class RelationsPageTest : public FormFixture {
 protected:
  RelationsPageTest() {
    host.Game = folder.Path().string();
    folder.Write("DATA/initialworld.ini",
                 "[Group]\nnickname = rogues\nrep = -0.65, navy\nrep = 0.91, rogues\n"
                 "[Group]\nnickname = navy\nrep = -0.3, rogues\nrep = 0.65, police\n"
                 "[Group]\nnickname = police\nrep = 0.9, navy\nrep = 0, rogues\n");
    FailTest mustWork;
    Database file = DBEngine::CreateDatabase(mustWork, UniverseFile(), JetVersionOption::Version30);
    for (const TableDef& table : FixedTables()) file.CreateTable(mustWork, table);
    Recordset groups = file.OpenTable(mustWork, "Groups");
    for (const auto& [nickname, name] : {std::pair("rogues", "Rogues"), std::pair("navy", "Navy"),
                                         std::pair("police", "Police")}) {
      groups.AddNew();
      groups["NickName"] = nickname;
      groups["Name"] = name;
      groups.Update();
    }
  }
  QAbstractItemModel& Model() { return *Matrix().model(); }
  QTableView& Matrix() { return Find<QTableView>(page, "Relations"); }
  void Open() {
    page.Enter();
    ASSERT_TRUE(WaitUntil([&] { return Model().columnCount() > 0; }));
  }
  std::vector<std::string> Heads(Qt::Orientation orientation) {
    const int count = orientation == Qt::Horizontal ? Model().columnCount() : Model().rowCount();
    std::vector<std::string> heads;
    for (int i = 0; i < count; ++i) {
      heads.push_back(Model().headerData(i, orientation).toString().toStdString());
    }
    return heads;
  }
  std::string State() { return Find<QLabel>(page, "State").text().toStdString(); }

  FakeWorkbenchHost host{log, folder.Path()};
  RelationsPage page{host, choice};
};

TEST_F(RelationsPageTest, RowsAndColumnsAreTheFactionsByName) {
  Open();

  EXPECT_THAT(Heads(Qt::Horizontal), ElementsAre("Navy", "Police", "Rogues"));
  EXPECT_THAT(Heads(Qt::Vertical), ElementsAre("Navy", "Police", "Rogues"));
  EXPECT_EQ(State(), "3 of 3 factions");
}

TEST_F(RelationsPageTest, ACellHasASymbolAndAColor) {
  Open();

  const QModelIndex hostile = Model().index(2, 0);
  EXPECT_EQ(hostile.data().toString(), QString::fromUtf8("\u2212\u2212"));
  EXPECT_EQ(hostile.data(Qt::BackgroundRole).value<QColor>(), QColor(0xFFD55E00));
  EXPECT_EQ(Model().index(1, 0).data().toString(), "++");
  EXPECT_EQ(Model().index(0, 1).data().toString(), "+");
  EXPECT_EQ(Model().index(1, 2).data().toString(), QString::fromUtf8("\u00B7"));
  EXPECT_FALSE(Model().index(2, 1).data().isValid());
}

TEST_F(RelationsPageTest, ToolTipAndStateNameBothWithTheNumbers) {
  Open();

  EXPECT_EQ(Model().index(2, 0).data(Qt::ToolTipRole).toString(),
            "<span>Rogues towards Navy: hostile (-0.65)<br>"
            "Navy towards Rogues: unfriendly (-0.3)</span>");
  Matrix().setCurrentIndex(Model().index(2, 1));
  EXPECT_EQ(State(), "Rogues towards Police: not stated (-); Police towards Rogues: neutral (0)");
}

TEST_F(RelationsPageTest, AClickOnAHeadSortsByWhatIsThoughtOfIt) {
  Open();

  Matrix().horizontalHeader()->setSortIndicator(0, Qt::DescendingOrder);
  EXPECT_THAT(Heads(Qt::Vertical), ElementsAre("Police", "Rogues", "Navy"));
  Matrix().horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
  EXPECT_THAT(Heads(Qt::Vertical), ElementsAre("Rogues", "Police", "Navy"));
  Matrix().horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  EXPECT_THAT(Heads(Qt::Vertical), ElementsAre("Navy", "Police", "Rogues"));
}

TEST_F(RelationsPageTest, EnterOnACellSortsByItsColumn) {
  Open();
  Matrix().setCurrentIndex(Model().index(2, 0));

  QTest::keyClick(&Matrix(), Qt::Key_Return);

  EXPECT_THAT(Heads(Qt::Vertical), ElementsAre("Police", "Rogues", "Navy"));
  EXPECT_EQ(Matrix().currentIndex().row(), 1);
}

TEST_F(RelationsPageTest, TypingLeavesTheRowsThatHoldIt) {
  Open();

  Find<QLineEdit>(page, "Filter").setText("O");

  EXPECT_THAT(Heads(Qt::Vertical), ElementsAre("Police", "Rogues"));
  EXPECT_THAT(Heads(Qt::Horizontal), ElementsAre("Navy", "Police", "Rogues"));
  EXPECT_EQ(State(), "2 of 3 factions");
}

TEST_F(RelationsPageTest, AGameWithoutTheFileIsNamed) {
  host.Game = "/games/none";

  page.Enter();

  EXPECT_TRUE(WaitUntil([&] {
    return State() ==
           "The game folder has no relations of factions: initialworld.ini is missing "
           "or cannot be read";
  }));
}

TEST(AttitudeLooks, DifferBySymbolAndAreEasyToRead) {
  std::set<QString> symbols;
  for (const Attitude attitude : {Attitude::Hostile, Attitude::Unfriendly, Attitude::Neutral,
                                  Attitude::Friendly, Attitude::Allied}) {
    symbols.insert(LookOf(attitude).Symbol);
  }
  EXPECT_EQ(symbols.size(), kAttitudes);
}

}  // namespace
}  // namespace orrerix
