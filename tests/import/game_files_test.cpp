// SPDX-License-Identifier: MIT
#include "import/game_files.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

// Read in the same way whether they are expected or not.
class GameFilesRead : public ::testing::TestWithParam<bool> {
 protected:
  void Expect(const std::vector<std::string>& below) {
    if (!GetParam()) return;
    std::vector<std::string> paths;
    for (const std::string& path : below) paths.push_back(Path(path));
    files.Expect(std::move(paths));
  }

  std::string Path(std::string_view below) const { return game.Text() + std::string(below); }

  std::string Text(std::string_view below) {
    const auto found = files.Read(Path(below), 10);
    if (!found) return "not there";
    return found->Whole ? std::string(found->Whole->Bytes()) : "not to be read";
  }

  TempFolder folder;
  GameFolder game{folder.Path().string()};
  GameFiles files{game};
};

INSTANTIATE_TEST_SUITE_P(Expected, GameFilesRead, ::testing::Bool());

TEST_P(GameFilesRead, HaveTheirBytes) {
  folder.Write("a.ini", "a");
  folder.Write("empty.ini", "");
  folder.Write("c.ini", "c");
  Expect({"\\a.ini", "\\empty.ini", "\\c.ini"});

  EXPECT_EQ(Text("\\a.ini"), "a");
  EXPECT_EQ(Text("\\empty.ini"), "");
  EXPECT_EQ(Text("\\c.ini"), "c");
}

TEST_P(GameFilesRead, MayBeReadInAnyOrderAndAgain) {
  folder.Write("a.ini", "a");
  folder.Write("b.ini", "b");
  folder.Write("other.ini", "other");
  Expect({"\\a.ini", "\\b.ini"});

  EXPECT_EQ(Text("\\b.ini"), "b");
  EXPECT_EQ(Text("\\other.ini"), "other");
  EXPECT_EQ(Text("\\a.ini"), "a");
  EXPECT_EQ(Text("\\b.ini"), "b");
}

TEST_P(GameFilesRead, AreNotThereIfNoFileHasThePath) {
  folder.Write("folder/a.ini", "a");
  Expect({"\\missing.ini", "\\folder"});

  EXPECT_EQ(Text("\\missing.ini"), "not there");
  EXPECT_EQ(Text("\\folder"), "not there");
}

TEST_P(GameFilesRead, AreNotToBeReadIfTheyAreLongerThanAllowed) {
  folder.Write("ten.ini", "1234567890");
  folder.Write("eleven.ini", "12345678901");
  Expect({"\\ten.ini", "\\eleven.ini"});

  EXPECT_EQ(Text("\\ten.ini"), "1234567890");
  EXPECT_EQ(Text("\\eleven.ini"), "not to be read");
}

TEST_P(GameFilesRead, AreThoseOfTheLastListOnly) {
  folder.Write("a.ini", "a");
  folder.Write("b.ini", "b");
  Expect({"\\a.ini"});
  Expect({"\\b.ini"});

  EXPECT_EQ(Text("\\a.ini"), "a");
  EXPECT_EQ(Text("\\b.ini"), "b");
}

}  // namespace
}  // namespace orrerix
