// SPDX-License-Identifier: MIT
#include "platform/folder_watch.h"

#include <fstream>

#include <gmock/gmock.h>

#include "support/folder_reports.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GameFolders : public ::testing::Test {
 protected:
  GameFolders() {
    folder.Write("game/EXE/freelancer.ini", "x");
    folder.Write("game/Data/ships/ships.ini", "x");
    folder.Write("game/saves/one.fl", "x");
  }

  fs::path Game() const { return folder.Path() / "game"; }

  TempFolder folder;
};

// The watch on the game's folder itself.
class WatchedFolder : public GameFolders {
 protected:
  // A change may be told a moment after the call that made it.
  bool Stirs() {
    for (int round = 0; round < 300; ++round) {
      if (watch->HasStirred()) return true;
      watch->Wait(std::chrono::milliseconds(100));
    }
    return false;
  }

  std::unique_ptr<FolderWatch> watch = WatchFolders(Game(), {"exe", "data"});
};

class WatchedFolders : public WatchedFolder {
 protected:
  void SetUp() override {
    if (!ReportsFoldersBelow()) GTEST_SKIP() << "Wine reports nothing of the folders below";
  }
};

TEST_F(WatchedFolder, StirsForOneOfItsNamesThatGoesAndComes) {
  fs::rename(Game() / "EXE", Game() / "away");
  EXPECT_TRUE(Stirs());

  fs::rename(Game() / "away", Game() / "EXE");
  EXPECT_TRUE(Stirs());
}

TEST_F(WatchedFolder, DoesNotStirForOtherNames) {
  folder.Write("game/readme.txt", "x");
  watch->Wait(std::chrono::milliseconds(200));

  EXPECT_FALSE(watch->HasStirred());
}

TEST_F(WatchedFolder, MayBeMissingAtFirst) {
  watch = WatchFolders(folder.Path() / "later", {"exe"});
  EXPECT_FALSE(watch->HasStirred());

  folder.Write("later/exe/a.ini", "x");
  EXPECT_TRUE(Stirs());
}

TEST_F(WatchedFolders, AreStillAtFirst) {
  EXPECT_FALSE(watch->HasStirred());
}

TEST_F(WatchedFolders, StirOnceForAFileThatIsWritten) {
  folder.Write("game/EXE/freelancer.ini", "xy");

  EXPECT_TRUE(Stirs());
  EXPECT_FALSE(watch->HasStirred());
}

TEST_F(WatchedFolders, StirForFilesInFoldersBelow) {
  folder.Write("game/Data/ships/new.ini", "x");
  EXPECT_TRUE(Stirs());

  fs::rename(Game() / "Data/ships/new.ini", Game() / "Data/ships/renamed.ini");
  EXPECT_TRUE(Stirs());

  fs::remove(Game() / "Data/ships/renamed.ini");
  EXPECT_TRUE(Stirs());
}

TEST_F(WatchedFolders, StirForFilesInFoldersThatAreMadeLater) {
  fs::create_directories(Game() / "Data/solar/deep");
  EXPECT_TRUE(Stirs());

  folder.Write("game/Data/solar/deep/x.ini", "x");
  EXPECT_TRUE(Stirs());
}

TEST_F(WatchedFolders, DoNotStirForOtherFolders) {
  folder.Write("game/saves/two.fl", "x");
  folder.Write("game/readme.txt", "x");
  fs::create_directory(Game() / "mods");

  EXPECT_FALSE(watch->HasStirred());
}

TEST_F(WatchedFolders, DoNotStirForReading) {
  std::ifstream(Game() / "EXE/freelancer.ini").get();

  EXPECT_FALSE(watch->HasStirred());
}

TEST_F(WatchedFolders, AreWaitedForIfTheyVanish) {
  fs::rename(Game(), folder.Path() / "away");
  EXPECT_TRUE(Stirs());
  EXPECT_FALSE(watch->HasStirred());

  fs::rename(folder.Path() / "away", Game());
  EXPECT_TRUE(Stirs());
  folder.Write("game/EXE/freelancer.ini", "xyz");
  EXPECT_TRUE(Stirs());
}

TEST_F(WatchedFolders, AreWaitedForIfAFolderAboveVanishes) {
  const TempFolder other;
  folder.Write("outer/game/exe/a.ini", "x");
  watch = WatchFolders(folder.Path() / "outer/game", {"exe"});
  fs::rename(folder.Path() / "outer", folder.Path() / "away");

  EXPECT_TRUE(Stirs());
}

TEST_F(WatchedFolders, EndAWait) {
  folder.Write("game/EXE/freelancer.ini", "xy");

  watch->Wait(std::chrono::hours(1));

  EXPECT_TRUE(watch->HasStirred());
}

TEST_F(GameFolders, AreFoundByNameWhateverTheirCase) {
  EXPECT_THAT(FoldersNamed(Game(), {"exe", "data"}), ElementsAre(Game() / "Data", Game() / "EXE"));
  EXPECT_THAT(FoldersNamed(folder.Path() / "nowhere", {"exe"}), IsEmpty());
  folder.Write("game/data", "a file");
  EXPECT_THAT(FoldersNamed(Game(), {"data"}), ElementsAre(Game() / "Data"));
}

// Links need rights on Windows that players do not have.
#ifndef _WIN32
TEST_F(GameFolders, AreEnteredThroughLinksButNotInCircles) {
  const fs::path outside = folder.Write("outside/inner/a.ini", "x").parent_path();
  fs::create_directory_symlink(outside.parent_path(), Game() / "EXE/linked");
  fs::create_directory_symlink(Game() / "EXE", outside / "circle");
  std::vector<fs::path> folders;

  ForEachFolder({Game() / "EXE"}, [&](const fs::path& each) { folders.push_back(each); });

  EXPECT_THAT(folders, ::testing::Contains(Game() / "EXE/linked/inner"));
  EXPECT_LT(folders.size(), 10u);
}
#endif

}  // namespace
}  // namespace orrerix
