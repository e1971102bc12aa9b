// SPDX-License-Identifier: MIT
#include "platform/game_path.h"

#include <filesystem>
#include <string>

#include "game_path_fixture.h"
#include "platform/path_text.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;

using GamePath = GamePathFixture;

TEST_F(GamePath, IgnoresTheCaseOfEveryComponent) {
  Put("DATA/Ships/ShipArch.INI");

  EXPECT_EQ(Found("\\data\\ships\\shiparch.ini"), "DATA/Ships/ShipArch.INI");
  EXPECT_EQ(Found("\\DATA\\SHIPS\\SHIPARCH.INI"), "DATA/Ships/ShipArch.INI");
}

TEST_F(GamePath, TakesBothSlashesAlike) {
  Put("data/a.ini");

  EXPECT_EQ(Found("/data/a.ini"), "data/a.ini");
  EXPECT_EQ(Found("\\data/a.ini"), "data/a.ini");
  EXPECT_EQ(Found("\\\\data\\\\a.ini"), "data/a.ini");
  EXPECT_EQ(Found("data\\a.ini"), "data/a.ini");
}

TEST_F(GamePath, IgnoresBlanksTabsAndDotsAtTheEndOfAComponent) {
  Put("data/ships/a.ini");

  EXPECT_EQ(Found("\\data \\ships.\\a.ini \t"), "data/ships/a.ini");
  EXPECT_EQ(Found("\\data\\ships. .\\a.ini..."), "data/ships/a.ini");
  EXPECT_EQ(Found("\\data\\.\\ships\\a.ini"), "data/ships/a.ini");
  EXPECT_EQ(Found("\\data\\ ships\\a.ini"), "(none)");
}

TEST_F(GamePath, AFolderIsNoFile) {
  Put("data/ships/a.ini");

  EXPECT_EQ(Found("\\data\\ships"), "(none)");
  EXPECT_EQ(Found("\\data"), "(none)");
  EXPECT_EQ(Found(""), "(none)");
}

TEST_F(GamePath, APathOutsideTheGameIsNone) {
  Put("data/a.ini");

  EXPECT_FALSE(game.FindFile("\\data\\a.ini"));
  EXPECT_FALSE(game.FindFile("C:\\elsewhere\\data\\a.ini"));
}

TEST_F(GamePath, ACharacterOfCodeZeroIsInNoPath) {
  Put("data/a.ini");

  EXPECT_FALSE(game.FindFile(game.Text() + std::string("\\data\\a.ini\0x", 13)));
}

TEST_F(GamePath, BearsVeryLongPaths) {
  EXPECT_EQ(Found("\\data\\" + std::string(100'000, 'x')), "(none)");
  std::string deep;
  for (int i = 0; i < 5000; ++i) deep += "\\a";
  EXPECT_EQ(Found(deep), "(none)");
}

TEST_F(GamePath, HasCharactersOfEveryKind) {
  const GameFolder umlauts(TextOf(folder.Path() / PathOf("Spiele für €")));
  folder.Write(PathOf("Spiele für €/data/größe.ini"), "x");

  EXPECT_TRUE(umlauts.FindFile(umlauts.Text() + "\\data\\größe.ini"));
  EXPECT_FALSE(umlauts.FindFile(umlauts.Text() + "\\data\\grosse.ini"));
}

TEST_F(GamePath, FoldersAreFoundLikewise) {
  Put("My Games/FREELANCER/a");

  const auto found = FindFolder(folder.Path(), "\\my games\\freelancer");
  ASSERT_TRUE(found);
  EXPECT_TRUE(fs::equivalent(*found, folder.Path() / "My Games" / "FREELANCER"));
  EXPECT_EQ(FindFolder(folder.Path(), "\\my games\\freelancer\\a"), std::nullopt);
  EXPECT_EQ(FindFolder(folder.Path(), "\\other"), std::nullopt);
  EXPECT_EQ(FindFolder(folder.Path(), ""), folder.Path());
}

TEST_F(GamePath, AGameFolderThatIsNotThereHasNoFiles) {
  const GameFolder nowhere((folder.Path() / "none").string());

  EXPECT_FALSE(nowhere.FindFile(nowhere.Text() + "\\data\\a.ini"));
  EXPECT_FALSE(GameFolder("").FindFile("\\exe\\freelancer.ini"));
}

TEST_F(GamePath, NeverLeadsOutOfTheGameFolder) {
  Put("data/a.ini");
  const GameFolder inner((folder.Path() / "data").string());

  EXPECT_EQ(Found("\\data\\..\\data\\a.ini"), "data/a.ini");
  EXPECT_EQ(inner.FindFile(inner.Text() + "\\..\\data\\a.ini"), std::nullopt);
}

TEST_F(GamePath, AColonLeadsToNoOtherDiskAndToNoPartOfAFile) {
  Put("data/a.ini");

  for (const char* path :
       {"\\C:\\windows\\win.ini", "\\data\\a.ini:x", "\\data\\a.ini::$DATA", "\\data\\..\\C:\\a"}) {
    EXPECT_EQ(Found(path), "(none)") << path;
  }
}

// Windows takes such names for devices in every folder; a read from the console would wait for
// ever.
TEST_F(GamePath, ADeviceIsNoFile) {
  Put("data/a.ini");

  for (const char* path : {"\\data\\nul", "\\data\\CON", "\\con.ini", "\\data\\conin$",
                           "\\data\\aux .ini", "\\nul\\a.ini", "\\data\\com1.ini", "\\LPT9"}) {
    EXPECT_EQ(Found(path), "(none)") << path;
  }
}

TEST_F(GamePath, NamesThatOnlyBeginLikeADeviceAreFiles) {
  for (const char* name :
       {"data/cone.ini", "data/nullify.ini", "data/com.ini", "data/lptown.ini"}) {
    Put(name);
    EXPECT_EQ(Found(std::string("\\") + name), name);
  }
}

TEST_F(GamePath, BearsPathsThatGoUpAndDownForEver) {
  Put("data/a.ini");
  std::string path;
  for (int i = 0; i < 500000; ++i) path += "\\data\\..";

  EXPECT_EQ(Found(path + "\\data\\a.ini"), "(none)");
}

// Each of the 30 components could be any of two spellings: all ways together are 2^30.
TEST_F(GamePath, SearchesAPlaceOnceThatLinksLeadToOnManyWays) {
  if (kFileNamesIgnoreCase) GTEST_SKIP() << "There is one spelling only.";
  for (const char* name : {"loop", "LOOP"}) {
    fs::create_directory_symlink(".", folder.Path() / name);
  }
  std::string path;
  for (int i = 0; i < 30; ++i) path += "\\Loop";

  EXPECT_EQ(Found(path + "\\a.ini"), "(none)");
}

}  // namespace
}  // namespace orrerix
