// SPDX-License-Identifier: MIT
#include "forms/workbench/workbench.h"

#include <QTest>

#include "../form_fixture.h"
#include "demo/demo_game.h"
#include "forms/workbench/check_page.h"
#include "forms/workbench/game_page.h"
#include "forms/workbench/log_page.h"
#include "import/log_entry.h"

namespace orrerix {
namespace {

class FakeHost : public WorkbenchHost {
 public:
  FakeHost(ErrorLog& log, std::filesystem::path folder) : log_(log), folder_(std::move(folder)) {}

  std::string GameText() const override { return Game; }
  std::filesystem::path UniverseFile() const override { return folder_ / "Orrerix.fl"; }
  Universe OpenUniverse(Routine&) override { return {log_, none_}; }
  bool ShowOnMap(const std::string& nickname) override {
    Shown.push_back(nickname);
    return nickname != "nowhere";
  }
  void ImportAgain() override { ++Imports; }
  void OpenGame(const std::string& folder) override { Opened.push_back(folder); }
  void WatchGame(bool on) override { Watches = on; }
  void MarkCells(const std::vector<MapCell>& cells) override { Marked = cells; }

  std::string Game = "/games/none";
  std::vector<std::string> Shown;
  std::vector<std::string> Opened;
  int Imports = 0;
  bool Watches = false;
  std::vector<MapCell> Marked;

 private:
  ErrorLog& log_;
  Database none_;
  std::filesystem::path folder_;
};

class WorkbenchTest : public FormFixture {
 protected:
  FakeHost host{log, folder.Path()};
  QSettings settings{QString::fromStdString((folder.Path() / "t.ini").string()),
                     QSettings::IniFormat};
};

TEST_F(WorkbenchTest, ComesBackWithThePageItWasClosedWith) {
  {
    Workbench first(settings, choice);
    first.Add(std::make_unique<GamePage>(host, settings, choice));
    first.Add(std::make_unique<LogPage>(host, choice));
    first.Open(TextId::LogPage);
    first.close();
  }
  Workbench again(settings, choice);
  again.Add(std::make_unique<GamePage>(host, settings, choice));
  again.Add(std::make_unique<LogPage>(host, choice));
  again.Open();

  EXPECT_EQ(Find<QListWidget>(again, "PageList").currentRow(), 1);
  EXPECT_TRUE(Find(again, "LogTable").isVisible());
}

TEST_F(WorkbenchTest, F1ListsTheKeysAndEscapeClosesTheWindow) {
  Workbench window(settings, choice);
  window.Add(std::make_unique<LogPage>(host, choice));
  window.Open();

  QTest::keyClick(&window, Qt::Key_F1);
  EXPECT_TRUE(Find(window, "Keys").isVisible());
  Find(window, "Keys").close();
  QTest::keyClick(&window, Qt::Key_Escape);

  EXPECT_FALSE(window.isVisible());
}

TEST_F(WorkbenchTest, TheLogOfAnEarlierImportIsShownFromItsBeginning) {
  SaveLog(host.UniverseFile(), {"Cant find file: [/game\\a.ini]", "something else"});
  LogPage page(host, choice);

  page.Enter();

  auto& table = Find<QTableView>(page, "LogTable");
  ASSERT_EQ(table.model()->rowCount(), 2);
  EXPECT_EQ(table.currentIndex().row(), 0);
  EXPECT_EQ(table.model()->index(0, LogModel::KindColumn).data(), "Missing file");
  EXPECT_EQ(table.model()->index(0, LogModel::FileColumn).data(), "/game/a.ini");
  Find<QLineEdit>(page, "Filter").setText("ELSE");
  EXPECT_EQ(table.model()->rowCount(), 1);
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
