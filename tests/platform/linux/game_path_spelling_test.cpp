// SPDX-License-Identifier: MIT
// Names that differ in case only. Elsewhere the system itself takes them for one.
#include <filesystem>

#include "platform/game_path_fixture.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;

using GamePathSpelling = GamePathFixture;

TEST_F(GamePathSpelling, TriesTheExactSpellingFirst) {
  Put("data/A.INI");
  Put("data/a.ini");

  EXPECT_EQ(Found("\\data\\a.ini"), "data/a.ini");
  EXPECT_EQ(Found("\\data\\A.INI"), "data/A.INI");
}

TEST_F(GamePathSpelling, TriesOtherSpellingsInByteOrder) {
  Put("data/a.INI");
  Put("data/A.ini");

  EXPECT_EQ(Found("\\data\\a.ini"), "data/A.ini");  // "A" is less than "a"
}

TEST_F(GamePathSpelling, TriesEverySpellingOfAFolder) {
  Put("DATA/ships/a.ini");
  Put("Data/SHIPS/b.ini");
  Put("data/c.ini");

  EXPECT_EQ(Found("\\data\\ships\\a.ini"), "DATA/ships/a.ini");
  EXPECT_EQ(Found("\\data\\ships\\b.ini"), "Data/SHIPS/b.ini");
  EXPECT_EQ(Found("\\data\\c.ini"), "data/c.ini");
  EXPECT_EQ(Found("\\data\\ships\\c.ini"), "(none)");
}

TEST_F(GamePathSpelling, OfFilesThatComeLaterOnlyTheExactSpellingIsSeen) {
  Put("DATA/a.INI");
  EXPECT_EQ(Found("\\data\\a.ini"), "DATA/a.INI");

  Put("DATA/b.INI");

  EXPECT_EQ(Found("\\DATA\\b.INI"), "DATA/b.INI");
  EXPECT_EQ(Found("\\data\\b.ini"), "(none)");
}

TEST_F(GamePathSpelling, AnExactFolderWithoutTheFileDoesNotHideAnotherSpelling) {
  fs::create_directories(folder.Path() / "data" / "ships");
  Put("DATA/ships/a.ini");

  EXPECT_EQ(Found("\\data\\ships\\a.ini"), "DATA/ships/a.ini");
}

TEST_F(GamePathSpelling, AFolderNamedLikeTheFileDoesNotHideIt) {
  fs::create_directories(folder.Path() / "data" / "a.ini");
  Put("data/A.INI");

  EXPECT_EQ(Found("\\data\\a.ini"), "data/A.INI");
}

}  // namespace
}  // namespace orrerix
