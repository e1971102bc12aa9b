// SPDX-License-Identifier: MIT
#include "shell/game_files_watch.h"

#include <gmock/gmock.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using ::testing::ElementsAre;
using ::testing::Optional;

// Stirs when it is told to.
class FakeWatch : public FolderWatch {
 public:
  explicit FakeWatch(bool& stirs) : stirs_(stirs) {}
  bool HasStirred() override { return std::exchange(stirs_, false); }
  void Wait(milliseconds) override {}

 private:
  bool& stirs_;
};

class GameFiles : public ::testing::Test {
 protected:
  GameFiles() {
    ini = folder.Write("game/EXE/freelancer.ini", "x");
    ships = folder.Write("game/DATA/ships.ini", "x");
    watch = std::make_unique<GameFilesWatch>(std::make_unique<FakeWatch>(stirs),
                                             folder.Path() / "game");
  }

  void Write(const fs::path& file, std::string_view content) {
    folder.Write(fs::relative(file, folder.Path()).string(), content);
    stirs = true;
  }

  // What is told so long after the test began.
  std::optional<std::vector<fs::path>> At(int time) {
    return watch->TakeRound(start + milliseconds(time));
  }

  TempFolder folder;
  fs::path ini;
  fs::path ships;
  bool stirs = false;
  std::unique_ptr<GameFilesWatch> watch;
  GameFilesWatch::Time start{};
};

TEST_F(GameFiles, ThatStayAsTheyAreMakeNoRound) {
  EXPECT_FALSE(At(0));
  EXPECT_FALSE(At(10'000));
}

TEST_F(GameFiles, ThatChangeAreARoundOnceAllIsQuiet) {
  Write(ini, "xy");

  EXPECT_FALSE(At(0));
  EXPECT_FALSE(At(299));
  EXPECT_THAT(At(300), Optional(ElementsAre(ini)));
  EXPECT_FALSE(At(1000));
}

TEST_F(GameFiles, ThatChangeSoonAfterAnotherAreTheSameRound) {
  Write(ini, "xy");
  EXPECT_FALSE(At(0));
  Write(ships, "xy");
  EXPECT_FALSE(At(250));

  EXPECT_FALSE(At(500));
  EXPECT_THAT(At(550), Optional(ElementsAre(ships, ini)));
}

TEST_F(GameFiles, ThatChangeAreToldSoonerWithAShorterQuiet) {
  watch =
      std::make_unique<GameFilesWatch>(std::make_unique<FakeWatch>(stirs), folder.Path() / "game",
                                       std::vector<fs::path>(), GameFilesWatch::kShortQuiet);
  Write(ini, "xy");
  EXPECT_FALSE(At(0));
  EXPECT_FALSE(At(149));

  EXPECT_THAT(At(150), Optional(ElementsAre(ini)));
}

TEST_F(GameFiles, ThatChangeLaterAreAnotherRound) {
  Write(ini, "xy");
  At(0);
  EXPECT_THAT(At(300), Optional(ElementsAre(ini)));
  Write(ships, "xy");
  At(400);

  EXPECT_THAT(At(700), Optional(ElementsAre(ships)));
}

TEST_F(GameFiles, ThatComeAndGoWithinARoundAreNone) {
  Write(folder.Path() / "game/DATA/ships.ini~", "x");
  fs::remove(folder.Path() / "game/DATA/ships.ini~");
  At(0);

  EXPECT_FALSE(At(300));
}

TEST_F(GameFiles, BesideThoseTwoFoldersDoNotCount) {
  Write(folder.Path() / "game/readme.txt", "x");
  At(0);

  EXPECT_FALSE(At(300));
}

TEST_F(GameFiles, OfAFolderThatVanishedAreWaitedFor) {
  fs::rename(folder.Path() / "game/DATA", folder.Path() / "away");
  stirs = true;
  At(0);
  EXPECT_FALSE(At(300));

  fs::rename(folder.Path() / "away", folder.Path() / "game/data");
  Write(folder.Path() / "game/data/ships.ini", "xyz");
  At(1000);
  // All files stand in a folder of another spelling now.
  EXPECT_THAT(At(1300), Optional(ElementsAre(ships, folder.Path() / "game/data/ships.ini")));
}

TEST_F(GameFiles, ThatComeBackAsTheyWereMakeNoRound) {
  fs::rename(folder.Path() / "game", folder.Path() / "away");
  stirs = true;
  At(0);
  EXPECT_FALSE(At(300));
  fs::rename(folder.Path() / "away", folder.Path() / "game");
  stirs = true;
  At(1000);

  EXPECT_FALSE(At(1300));
}

}  // namespace
}  // namespace orrerix
