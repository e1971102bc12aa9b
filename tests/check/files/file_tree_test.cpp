// SPDX-License-Identifier: MIT
#include "check/files/file_tree.h"

#include <gmock/gmock.h>

#include "platform/path_text.h"
#include "support/temp_folder.h"

namespace orrerix::check {
namespace {

namespace fs = std::filesystem;

TEST(FileTree, FindsAFileWhateverItsCase) {
  TempFolder folder;
  folder.Write("DATA/Ships/Ship.ini", "text");
  const FileTree tree(folder.Path(), std::nullopt);

  const DiskFile* file = tree.Find("data/ships/ship.ini");

  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->Path, "DATA/Ships/Ship.ini");
  EXPECT_EQ(tree.ReadBytes(*file), "text");
  EXPECT_EQ(tree.Find("data/ships"), nullptr);
}

TEST(FileTree, TakesTheFirstInByteOrderOfEqualPaths) {
  if (kFileNamesIgnoreCase) GTEST_SKIP() << "there are no two such names here";
  TempFolder folder;
  folder.Write("data/a.ini", "small");
  folder.Write("DATA/a.ini", "large");
  const FileTree tree(folder.Path(), std::nullopt);

  EXPECT_EQ(tree.Find("data/a.ini")->Path, "DATA/a.ini");
  EXPECT_EQ(tree.Files().size(), 2u);
}

TEST(FileTree, LetsAFileOfTheGameHideThatOfTheBase) {
  TempFolder folder;
  folder.Write("game/data/a.ini", "mine");
  folder.Write("base/DATA/A.ini", "theirs");
  folder.Write("base/DATA/b.ini", "theirs");
  const FileTree tree(folder.Path() / "game", folder.Path() / "base");

  EXPECT_EQ(tree.Find("data/a.ini")->Layer, Layer::Game);
  EXPECT_EQ(tree.Find("data/b.ini")->Layer, Layer::Base);
  EXPECT_EQ(tree.ReadBytes(*tree.Find("data/b.ini")), "theirs");
}

TEST(FileTree, ListsAFolderThatIsGameAndBaseOnce) {
  TempFolder folder;
  folder.Write("a.ini", "");
  const FileTree tree(folder.Path(), folder.Path() / ".");

  ASSERT_EQ(tree.Files().size(), 1u);
  EXPECT_EQ(tree.Files().front().Layer, Layer::Game);
}

TEST(FileTree, FollowsALinkInACircleOnce) {
  TempFolder folder;
  folder.Write("data/a.ini", "");
  std::error_code error;
  fs::create_directory_symlink(folder.Path(), folder.Path() / "data/again", error);
  if (error) GTEST_SKIP() << "no links can be made here";
  const FileTree tree(folder.Path(), std::nullopt);

  EXPECT_EQ(tree.Files().size(), 2u);
}

TEST(FileTree, OfAFolderThatIsNotThereIsEmpty) {
  TempFolder folder;

  EXPECT_TRUE(FileTree(folder.Path() / "none", std::nullopt).Files().empty());
}

}  // namespace
}  // namespace orrerix::check
