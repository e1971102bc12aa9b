// SPDX-License-Identifier: MIT
#include "shell/game_record.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

class GameRecordTest : public ::testing::Test {
 protected:
  TempFolder folder;
  std::filesystem::path file = folder.Path() / "Orrerix.fl";
};

TEST_F(GameRecordTest, ComesBackAsItWasKept) {
  ASSERT_TRUE(WriteGameRecord(file, {"/games/it's a mod\nhere", 18446744073709551615u}));

  const auto record = ReadGameRecord(file);

  ASSERT_TRUE(record);
  EXPECT_EQ(record->Game, "/games/it's a mod\nhere");
  EXPECT_EQ(record->Stamp, 18446744073709551615u);
}

TEST_F(GameRecordTest, OneThatIsMissingOrDamagedIsNone) {
  EXPECT_FALSE(ReadGameRecord(file));
  folder.Write("Orrerix.fl.game", "12x\n/games/a");
  EXPECT_FALSE(ReadGameRecord(file));
  folder.Write("Orrerix.fl.game", "12");
  EXPECT_FALSE(ReadGameRecord(file));
}

TEST_F(GameRecordTest, TheStampChangesWithTheFilesOfTheGameOnly) {
  folder.Write("game/DATA/a.ini", "x");
  folder.Write("game/EXE/freelancer.ini", "x");
  const auto game = folder.Path() / "game";
  const auto before = StampOfGame(game);

  folder.Write("game/readme.txt", "x");
  EXPECT_EQ(StampOfGame(game), before);
  folder.Write("game/DATA/a.ini", "longer");
  EXPECT_NE(StampOfGame(game), before);
}

TEST_F(GameRecordTest, TheUniverseOfAnotherGameKeepsItsFile) {
  folder.Write("one/x", "");
  folder.Write("two/x", "");
  const std::string one = (folder.Path() / "one").string();
  const std::string two = (folder.Path() / "two").string();

  EXPECT_EQ(SaveFolderOfGame(folder.Path(), one), folder.Path());
  WriteGameRecord(file, {one, 0});
  EXPECT_EQ(SaveFolderOfGame(folder.Path(), one + "/../one"), folder.Path());
  const auto other = SaveFolderOfGame(folder.Path(), two);
  EXPECT_NE(other, folder.Path());
  EXPECT_EQ(SaveFolderOfGame(folder.Path(), two), other);
  EXPECT_NE(SaveFolderOfGame(folder.Path(), one + "2"), other);
}

}  // namespace
}  // namespace orrerix
