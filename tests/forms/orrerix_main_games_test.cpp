// SPDX-License-Identifier: MIT
// What the main form does when the game changes or another one is opened.
#include <QTest>
#include <filesystem>
#include <fstream>

#include "orrerix_main_fixture.h"
#include "support/folder_reports.h"

namespace orrerix {
namespace {

TEST_F(OrrerixMainTest, AnImportAgainReplacesTheUniverseWhileTheMapStays) {
  WriteGame();
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  const std::size_t systems = SystemLabels();
  std::filesystem::remove_all(*paths.Game);
  WriteDemoGame(*paths.Game, 16);

  QTest::keyClick(&*form, Qt::Key_F5);

  EXPECT_TRUE(ShowsMap());
  EXPECT_TRUE(WaitUntil([&] { return SystemLabels() > systems; }));
  EXPECT_FALSE(form->Importing());
  EXPECT_TRUE(messages.Shown.empty());
}

TEST_F(OrrerixMainTest, AWatchedGameIsShownAgainAsSoonAsItsFilesChange) {
  if (!ReportsFoldersBelow()) GTEST_SKIP() << "Wine reports nothing of the folders below";
  WriteGame();
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  const std::size_t systems = SystemLabels();
  const ZoomRectangle view{0, 0, 16, 18};
  form->Controller().PushZoomStack(view);
  form->WatchGame(true);

  std::ofstream(std::filesystem::path(*paths.Game) / "DATA" / "UNIVERSE" / "universe.ini",
                std::ios::app)
      << "\r\n[System]\r\nnickname = Xx99\r\nfile = none.ini\r\npos = 0, 0\r\n";

  EXPECT_TRUE(WaitUntil([&] { return SystemLabels() == systems + 1; }));
  EXPECT_EQ(form->Map().State().Zoom.Current(), view);
}

TEST_F(OrrerixMainTest, AnotherGameHasAUniverseFileOfItsOwnAndTheFirstComesBackWhereItWasLeft) {
  WriteGame();
  const std::string other = (folder.Path() / "other").string();
  WriteDemoGame(other, 16);
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  const auto first = form->UniverseFile();
  const ZoomRectangle view{4, 4, 7, 7};
  ASSERT_TRUE(form->Controller().PushZoomStack(view));

  form->OpenGame(other);
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap() && form->UniverseFile() != first; }));
  EXPECT_TRUE(std::filesystem::exists(first));
  form->OpenGame(*paths.Game);
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap() && form->UniverseFile() == first; }));

  EXPECT_EQ(form->Map().State().Zoom.Current(), view);
}

TEST_F(OrrerixMainTest, AFolderWithoutAGameIsNotOpened) {
  WriteGame();
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  form->OpenGame("/nowhere");

  EXPECT_EQ(form->GameText(), *paths.Game);
  EXPECT_TRUE(ShowsMap());
}

TEST_F(OrrerixMainTest, AStartWithAnotherGameDoesNotShowTheUniverseOfTheFirst) {
  WriteGame();
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  const auto first = form->UniverseFile();
  paths.Game = (folder.Path() / "other").string();
  WriteDemoGame(*paths.Game, 16);

  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  EXPECT_NE(form->UniverseFile(), first);
}

TEST_F(OrrerixMainTest, FilesThatHaveChangedSinceTheImportAreNoticedAtTheNextStart) {
  WriteGame();
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  folder.Write("game/DATA/new.ini", "x");

  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  EXPECT_TRUE(WaitUntil([&] { return Find(*form, "MapNotice").isVisible(); }));
}

}  // namespace
}  // namespace orrerix
