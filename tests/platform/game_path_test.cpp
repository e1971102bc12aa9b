// SPDX-License-Identifier: MIT
#include "platform/game_path.h"

#include <filesystem>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;

class GamePath : public ::testing::Test {
 protected:
  // The file found at a path of the game's kind, told by its place below the folder.
  std::string Found(std::string_view path) {
    const auto file = game.FindFile(game.Text() + std::string(path));
    return file ? fs::relative(*file, folder.Path()).string() : "(none)";
  }

  TempFolder folder;
  GameFolder game{folder.Path().string()};
};

TEST_F(GamePath, IgnoresTheCaseOfEveryComponent) {
  folder.Write("DATA/Ships/ShipArch.INI", "");

  EXPECT_EQ(Found("\\data\\ships\\shiparch.ini"), "DATA/Ships/ShipArch.INI");
  EXPECT_EQ(Found("\\DATA\\SHIPS\\SHIPARCH.INI"), "DATA/Ships/ShipArch.INI");
}

TEST_F(GamePath, TakesBothSlashesAlike) {
  folder.Write("data/a.ini", "");

  EXPECT_EQ(Found("/data/a.ini"), "data/a.ini");
  EXPECT_EQ(Found("\\data/a.ini"), "data/a.ini");
  EXPECT_EQ(Found("\\\\data\\\\a.ini"), "data/a.ini");
  EXPECT_EQ(Found("data\\a.ini"), "data/a.ini");
}

TEST_F(GamePath, TriesTheExactSpellingFirst) {
  folder.Write("data/A.INI", "");
  folder.Write("data/a.ini", "");

  EXPECT_EQ(Found("\\data\\a.ini"), "data/a.ini");
  EXPECT_EQ(Found("\\data\\A.INI"), "data/A.INI");
}

TEST_F(GamePath, TriesOtherSpellingsInByteOrder) {
  folder.Write("data/a.INI", "");
  folder.Write("data/A.ini", "");

  EXPECT_EQ(Found("\\data\\a.ini"), "data/A.ini");  // "A" is less than "a"
}

TEST_F(GamePath, TriesEverySpellingOfAFolder) {
  folder.Write("DATA/ships/a.ini", "");
  folder.Write("Data/SHIPS/b.ini", "");
  folder.Write("data/c.ini", "");

  EXPECT_EQ(Found("\\data\\ships\\a.ini"), "DATA/ships/a.ini");
  EXPECT_EQ(Found("\\data\\ships\\b.ini"), "Data/SHIPS/b.ini");
  EXPECT_EQ(Found("\\data\\c.ini"), "data/c.ini");
  EXPECT_EQ(Found("\\data\\ships\\c.ini"), "(none)");
}

TEST_F(GamePath, OfFilesThatComeLaterOnlyTheExactSpellingIsSeen) {
  folder.Write("DATA/a.INI", "");
  EXPECT_EQ(Found("\\data\\a.ini"), "DATA/a.INI");

  folder.Write("DATA/b.INI", "");

  EXPECT_EQ(Found("\\DATA\\b.INI"), "DATA/b.INI");
  EXPECT_EQ(Found("\\data\\b.ini"), "(none)");
}

TEST_F(GamePath, AnExactFolderWithoutTheFileDoesNotHideAnotherSpelling) {
  fs::create_directories(folder.Path() / "data" / "ships");
  folder.Write("DATA/ships/a.ini", "");

  EXPECT_EQ(Found("\\data\\ships\\a.ini"), "DATA/ships/a.ini");
}

TEST_F(GamePath, IgnoresBlanksTabsAndDotsAtTheEndOfAComponent) {
  folder.Write("data/ships/a.ini", "");

  EXPECT_EQ(Found("\\data \\ships.\\a.ini \t"), "data/ships/a.ini");
  EXPECT_EQ(Found("\\data\\ships. .\\a.ini..."), "data/ships/a.ini");
  EXPECT_EQ(Found("\\data\\.\\ships\\a.ini"), "data/ships/a.ini");
  EXPECT_EQ(Found("\\data\\ ships\\a.ini"), "(none)");
}

TEST_F(GamePath, AFolderIsNoFile) {
  folder.Write("data/ships/a.ini", "");

  EXPECT_EQ(Found("\\data\\ships"), "(none)");
  EXPECT_EQ(Found("\\data"), "(none)");
  EXPECT_EQ(Found(""), "(none)");
}

TEST_F(GamePath, AFolderNamedLikeTheFileDoesNotHideIt) {
  fs::create_directories(folder.Path() / "data" / "a.ini");
  folder.Write("data/A.INI", "");

  EXPECT_EQ(Found("\\data\\a.ini"), "data/A.INI");
}

TEST_F(GamePath, APathOutsideTheGameIsNone) {
  folder.Write("data/a.ini", "");

  EXPECT_FALSE(game.FindFile("\\data\\a.ini"));
  EXPECT_FALSE(game.FindFile("C:\\elsewhere\\data\\a.ini"));
}

TEST_F(GamePath, ACharacterOfCodeZeroIsInNoPath) {
  folder.Write("data/a.ini", "");

  EXPECT_FALSE(game.FindFile(game.Text() + std::string("\\data\\a.ini\0x", 13)));
}

TEST_F(GamePath, BearsVeryLongPaths) {
  EXPECT_EQ(Found("\\data\\" + std::string(100'000, 'x')), "(none)");
  std::string deep;
  for (int i = 0; i < 5000; ++i) deep += "\\a";
  EXPECT_EQ(Found(deep), "(none)");
}

TEST_F(GamePath, FoldersAreFoundLikewise) {
  folder.Write("My Games/FREELANCER/a", "");

  EXPECT_EQ(FindFolder(folder.Path(), "\\my games\\freelancer"),
            folder.Path() / "My Games" / "FREELANCER");
  EXPECT_EQ(FindFolder(folder.Path(), "\\my games\\freelancer\\a"), std::nullopt);
  EXPECT_EQ(FindFolder(folder.Path(), "\\other"), std::nullopt);
  EXPECT_EQ(FindFolder(folder.Path(), ""), folder.Path());
}

TEST_F(GamePath, AGameFolderThatIsNotThereHasNoFiles) {
  const GameFolder nowhere((folder.Path() / "none").string());

  EXPECT_FALSE(nowhere.FindFile(nowhere.Text() + "\\data\\a.ini"));
  EXPECT_FALSE(GameFolder("").FindFile("\\exe\\freelancer.ini"));
}

}  // namespace
}  // namespace orrerix
