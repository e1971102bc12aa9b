// SPDX-License-Identifier: MIT
#include "forms/workbench/workbench.h"

#include <QLabel>
#include <QTest>

#include "../form_fixture.h"
#include "db/engine/engine.h"
#include "demo/demo_game.h"
#include "fake_workbench_host.h"
#include "forms/program_style.h"
#include "forms/workbench/check_page.h"
#include "forms/workbench/differences_page.h"
#include "forms/workbench/game_page.h"
#include "forms/workbench/log_page.h"
#include "import/log_entry.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

class WorkbenchTest : public FormFixture {
 protected:
  FakeWorkbenchHost host{log, folder.Path()};
  QSettings settings{QString::fromStdString((folder.Path() / "t.ini").string()),
                     QSettings::IniFormat};
};

TEST_F(WorkbenchTest, ComesBackWithThePageItWasClosedWith) {
  {
    Workbench first(settings, choice);
    first.Add(std::make_unique<GamePage>(host, settings, choice));
    first.Add(std::make_unique<LogPage>(host, choice, nullptr));
    first.Open(TextId::LogPage);
    first.close();
  }
  Workbench again(settings, choice);
  again.Add(std::make_unique<GamePage>(host, settings, choice));
  again.Add(std::make_unique<LogPage>(host, choice, nullptr));
  again.Open();

  EXPECT_EQ(Find<QListWidget>(again, "PageList").currentRow(), 1);
  EXPECT_TRUE(Find(again, "LogTable").isVisible());
}

// A page that counts how often it came to the front and went to the back.
struct Counts {
  int Entered = 0;
  int Left = 0;
};
class CountingPage : public WorkbenchPage {
 public:
  CountingPage(TextId name, Counts& counts) : WorkbenchPage(name), counts_(counts) {}
  void Enter() override { ++counts_.Entered; }
  void Leave() override { ++counts_.Left; }

 private:
  Counts& counts_;
};

TEST_F(WorkbenchTest, APageIsLeftForAnotherWhenTheWindowClosesAndAtTheEnd) {
  Counts first;
  Counts second;
  {
    Workbench window(settings, choice);
    window.Add(std::make_unique<CountingPage>(TextId::TradesPage, first));
    window.Add(std::make_unique<CountingPage>(TextId::WayPage, second));
    window.Open(TextId::TradesPage);

    window.Open(TextId::WayPage);
    EXPECT_EQ(first.Left, 1);
    EXPECT_EQ(second.Left, 0);
    window.close();
    EXPECT_EQ(second.Left, 1);
    window.Open();
    EXPECT_EQ(second.Entered, 2);
  }
  EXPECT_EQ(first.Entered, 1);
  EXPECT_EQ(first.Left, 1);
  EXPECT_EQ(second.Left, 2);
}

TEST_F(WorkbenchTest, F1ListsTheKeysAndEscapeClosesTheWindow) {
  Workbench window(settings, choice);
  window.Add(std::make_unique<LogPage>(host, choice, nullptr));
  window.Open();

  QTest::keyClick(&window, Qt::Key_F1);
  EXPECT_TRUE(Find(window, "Keys").isVisible());
  Find(window, "Keys").close();
  QTest::keyClick(&window, Qt::Key_Escape);

  EXPECT_FALSE(window.isVisible());
}

TEST_F(WorkbenchTest, TheLogOfAnEarlierImportIsShownFromItsBeginning) {
  SaveLog(host.UniverseFile(), {"Cant find file: [/game\\a.ini]", "something else"});
  LogPage page(host, choice, nullptr);

  page.Enter();

  auto& table = Find<QTableView>(page, "LogTable");
  ASSERT_EQ(table.model()->rowCount(), 2);
  EXPECT_EQ(table.currentIndex().row(), 0);
  EXPECT_EQ(table.model()->index(0, LogModel::KindColumn).data(), "Missing file");
  EXPECT_EQ(table.model()->index(0, LogModel::FileColumn).data(), "/game/a.ini");
  Find<QLineEdit>(page, "Filter").setText("ELSE");
  EXPECT_EQ(table.model()->rowCount(), 1);
}

TEST_F(WorkbenchTest, TextsOfAModAreShownLiterally) {
  SaveLog(host.UniverseFile(), {"<b>bold</b>"});
  LogPage page(host, choice, nullptr);
  GamePage game(host, settings, choice);

  page.Enter();

  auto& table = Find<QTableView>(page, "LogTable");
  EXPECT_EQ(table.model()->index(0, LogModel::TextColumn).data(Qt::ToolTipRole),
            "<span>&lt;b&gt;bold&lt;/b&gt;</span>");
  for (const QWidget* shown : {static_cast<QWidget*>(&page), static_cast<QWidget*>(&game)}) {
    ASSERT_FALSE(shown->findChildren<QLabel*>().isEmpty());
    for (const QLabel* label : shown->findChildren<QLabel*>()) {
      EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
    }
  }
}

TEST_F(WorkbenchTest, AnEntryOfTheLogOpensItsFileAtItsLine) {
  const TempFolder game;
  game.Write("DATA/goods.ini", "[Good]\nnickname = gold\n[Good]\nnickname = gold\n");
  host.Game = game.Path().string();
  SaveLog(host.UniverseFile(), {"#--- Error in FL-MOD-File:\r\n" + host.Game +
                                "\\data\\goods.ini\r\nCant add to Database (cause of allready "
                                "exist):\r\n[Good]\r\nnickname = gold\r\n---."});
  std::vector<std::string> opened;
  LogPage page(host, choice, [&](const std::filesystem::path& file, int line) {
    opened.push_back(file.generic_string() + ":" + std::to_string(line));
  });

  page.Enter();
  Find<QPushButton>(page, "OpenFile").click();

  auto& table = Find<QTableView>(page, "LogTable");
  EXPECT_EQ(table.model()->index(0, LogModel::FileColumn).data(), "DATA/goods.ini");
  EXPECT_EQ(table.model()->index(0, LogModel::LineColumn).data(), 3);
  EXPECT_EQ(opened, std::vector<std::string>{game.Path().generic_string() + "/DATA/goods.ini:3"});
}

TEST_F(WorkbenchTest, LightPanelsAreChosenAndRemembered) {
  const QPalette usual = QApplication::palette();
  QApplication::setPalette(DarkPanels());
  Workbench first(settings, choice);
  auto page = std::make_unique<GamePage>(host, settings, choice);
  GamePage& game = *page;
  game.OnLightPanels = [&first](bool on) { first.UseLightPanels(on); };
  first.Add(std::move(page));
  first.Open();
  EXPECT_FALSE(IsLight(game.palette()));

  Find<QCheckBox>(game, "LightPanels").click();

  EXPECT_TRUE(IsLight(game.palette()));
  Workbench again(settings, choice);
  EXPECT_TRUE(IsLight(again.palette()));
  EXPECT_TRUE(Find<QCheckBox>(GamePage(host, settings, choice), "LightPanels").isChecked());
  first.UseLightPanels(false);
  EXPECT_FALSE(IsLight(game.palette()));
  QApplication::setPalette(usual);
}

TEST_F(WorkbenchTest, TheGamePageAsksForWhatItsButtonsSay) {
  GamePage page(host, settings, choice);
  page.Enter();
  host.Game = "/games/other";
  page.UniverseChanged();

  Find<QPushButton>(page, "ImportAgain").click();
  Find<QCheckBox>(page, "WatchGame").click();
  auto& recent = Find<QListWidget>(page, "RecentGames");
  ASSERT_EQ(recent.count(), 2);
  EXPECT_EQ(recent.item(0)->text(), "/games/other");
  emit recent.itemActivated((recent.setCurrentRow(1), recent.item(1)));

  EXPECT_EQ(host.Imports, 1);
  EXPECT_TRUE(host.Watches);
  EXPECT_EQ(host.Opened, std::vector<std::string>{"/games/none"});
}

class DifferencesPageTest : public WorkbenchTest {
 protected:
  // A universe file with one system at a cell.
  void WriteUniverse(const std::filesystem::path& file, const char* name, const char* pos) {
    FailTest mustWork;
    Database universe = DBEngine::CreateDatabase(mustWork, file, JetVersionOption::Version30);
    universe.CreateTable(mustWork,
                         {"Systems", {Field{"nickname"}, Field{"realname"}, Field{"pos"}}, {}});
    Recordset rows = universe.OpenTable(mustWork, "Systems");
    rows.AddNew();
    rows["nickname"] = "Li01";
    rows["realname"] = name;
    rows["pos"] = pos;
    rows.Update();
    universe.Close();
  }

  void Compare(const std::string& old) {
    Find<QLineEdit>(page, "OldUniverse").setText(QString::fromStdString(old));
    Find<QPushButton>(page, "Compare").click();
    ASSERT_TRUE(WaitUntil([&] { return !Find(page, "Cancel").isEnabled(); }));
  }

  DifferencesPage page{host, choice, {1, 0, 0}};
};

TEST_F(DifferencesPageTest, WhatChangedIsListedByTableAndItsSystemsAreMarked) {
  const auto old = folder.Path() / "old.fl";
  WriteUniverse(old, "New York", "7, 4");
  WriteUniverse(host.UniverseFile(), "Manhattan", "7, 4");

  Compare(old.string());

  auto& tables = Find<QListWidget>(page, "ChangedTables");
  ASSERT_EQ(tables.count(), 2);
  EXPECT_EQ(tables.item(1)->text(), "Systems (+0 -0 ~1)");
  const QString report = Find<QTextBrowser>(page, "Report").toPlainText();
  EXPECT_TRUE(report.contains("New York") && report.contains("Manhattan")) << report.toStdString();
  Find<QPushButton>(page, "MarkSystems").click();
  EXPECT_EQ(host.Marked, (std::vector<MapCell>{{7, 4}}));
  Find<QPushButton>(page, "MarkSystems").click();
  EXPECT_TRUE(host.Marked.empty());
}

TEST_F(DifferencesPageTest, AGameFolderIsImportedForTheComparison) {
  const std::string game = (folder.Path() / "old game").string();
  WriteDemoGame(game, 2);
  WriteUniverse(host.UniverseFile(), "Manhattan", "7, 4");

  Compare(game);

  EXPECT_GT(Find<QListWidget>(page, "ChangedTables").count(), 2);
}

TEST_F(DifferencesPageTest, AFileThatIsNoUniverseIsNamed) {
  folder.Write("old.fl", "no database at all, but long enough to be looked at as one");
  WriteUniverse(host.UniverseFile(), "Manhattan", "7, 4");

  Compare((folder.Path() / "old.fl").string());

  EXPECT_TRUE(Find<QLabel>(page, "State").text().contains("old.fl"));
  EXPECT_EQ(Find<QListWidget>(page, "ChangedTables").count(), 0);
}

class CheckPageTest : public WorkbenchTest {
 protected:
  CheckPageTest() {
    host.Game = *paths.Game;
    WriteDemoGame(host.Game, 2);
  }

  void Check() {
    page.Check();
    ASSERT_TRUE(WaitUntil([&] { return !Find(page, "Cancel").isEnabled(); }));
  }

  // Chooses the first finding whose place holds a text.
  void Choose(const QString& place) {
    auto& tree = Find<QTreeView>(page, "Findings");
    const QModelIndexList found =
        tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, place, 1,
                            Qt::MatchContains | Qt::MatchRecursive);
    ASSERT_EQ(found.size(), 1) << place.toStdString();
    tree.setCurrentIndex(found[0]);
  }

  std::vector<std::pair<std::string, int>> opened;
  CheckPage page{host, choice, [this](const std::filesystem::path& file, int line) {
                   opened.emplace_back(file.string(), line);
                 }};
};

TEST_F(CheckPageTest, AFindingIsOpenedAtItsLineExplainedAndCopied) {
  folder.Write("game/DATA/EQUIPMENT/broken.ini", "");
  std::ofstream(folder.Path() / "game" / "DATA" / "EQUIPMENT" / "misc_equip.ini", std::ios::app)
      << "\r\n[Commodity\r\n";
  Check();
  Find<QLineEdit>(page, "Filter").setText("bad-header");
  Choose("misc_equip.ini:");

  Find<QPushButton>(page, "OpenFile").click();

  ASSERT_EQ(opened.size(), 1u);
  EXPECT_TRUE(opened[0].first.ends_with("misc_equip.ini"));
  EXPECT_GT(opened[0].second, 1);
  EXPECT_TRUE(Find<QPlainTextEdit>(page, "Explanation").toPlainText().contains("bad-header"));
}

TEST_F(CheckPageTest, AFolderWithoutAGameIsNamed) {
  host.Game = "/games/none";

  Check();

  EXPECT_TRUE(Find<QLabel>(page, "State").text().contains("/games/none"));
}

TEST_F(CheckPageTest, TheSumsCountEachSeverity) {
  Check();

  EXPECT_TRUE(Find<QLabel>(page, "State").text().contains(" errors, "));
}

}  // namespace
}  // namespace orrerix
