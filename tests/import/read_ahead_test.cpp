// SPDX-License-Identifier: MIT
#include "import/read_ahead.h"

#include <filesystem>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

class FilesReadAhead : public ::testing::Test {
 protected:
  std::string Path(std::string_view below) const { return game.Text() + std::string(below); }

  static std::string Text(const std::optional<WholeFile>& file) {
    return file ? std::string(file->Bytes()) : "none";
  }

  TempFolder folder;
  GameFolder game{folder.Path().string()};
};

TEST_F(FilesReadAhead, AreGivenInTheOrderOfTheList) {
  std::vector<std::string> paths;
  constexpr int count = 3 * static_cast<int>(ReadAhead::kMostFiles);
  for (int i = 0; i < count; ++i) {
    folder.Write(fmt::format("{}.ini", i), fmt::format("text {}", i));
    paths.push_back(Path(fmt::format("\\{}.ini", i)));
  }

  ReadAhead ahead(game, paths);

  for (int i = 0; i < count; ++i) {
    EXPECT_EQ(Text(ahead.Take(paths[static_cast<std::size_t>(i)])), fmt::format("text {}", i));
  }
}

TEST_F(FilesReadAhead, MayBePassedOver) {
  std::vector<std::string> paths;
  for (int i = 0; i < 100; ++i) {
    folder.Write(fmt::format("{}.ini", i), fmt::format("text {}", i));
    paths.push_back(Path(fmt::format("\\{}.ini", i)));
  }

  ReadAhead ahead(game, paths);

  EXPECT_EQ(Text(ahead.Take(paths[2])), "text 2");
  EXPECT_EQ(Text(ahead.Take(paths[1])), "none");
  EXPECT_EQ(Text(ahead.Take(paths[50])), "text 50");
  EXPECT_EQ(Text(ahead.Take(paths[51])), "text 51");
  EXPECT_EQ(Text(ahead.Take(paths[99])), "text 99");
}

TEST_F(FilesReadAhead, AreGivenAsOftenAsTheyAreListed) {
  folder.Write("a.ini", "a");
  folder.Write("b.ini", "b");

  ReadAhead ahead(game, {Path("\\a.ini"), Path("\\b.ini"), Path("\\a.ini")});

  EXPECT_EQ(Text(ahead.Take(Path("\\a.ini"))), "a");
  EXPECT_EQ(Text(ahead.Take(Path("\\a.ini"))), "a");
  EXPECT_EQ(Text(ahead.Take(Path("\\a.ini"))), "none");
}

TEST_F(FilesReadAhead, AreNotGivenIfTheListHasThemNot) {
  folder.Write("a.ini", "a");
  folder.Write("b.ini", "b");

  ReadAhead ahead(game, {Path("\\a.ini")});

  EXPECT_EQ(Text(ahead.Take(Path("\\b.ini"))), "none");
  EXPECT_EQ(Text(ahead.Take(Path("\\a.ini"))), "a");
}

TEST_F(FilesReadAhead, AreNotGivenIfTheyCannotBeRead) {
  folder.Write("folder/b.ini", "b");

  ReadAhead ahead(game, {Path("\\missing.ini"), Path("\\folder"), Path("\\folder\\b.ini")});

  EXPECT_EQ(Text(ahead.Take(Path("\\missing.ini"))), "none");
  EXPECT_EQ(Text(ahead.Take(Path("\\folder"))), "none");
  EXPECT_EQ(Text(ahead.Take(Path("\\folder\\b.ini"))), "b");
}

TEST_F(FilesReadAhead, AreNotGivenIfTheyAreTooLong) {
  std::filesystem::resize_file(folder.Write("longest.dll", ""), ReadAhead::kLongestFile);
  std::filesystem::resize_file(folder.Write("longer.dll", ""), ReadAhead::kLongestFile + 1);

  ReadAhead ahead(game, {Path("\\longest.dll"), Path("\\longer.dll")});

  EXPECT_EQ(Text(ahead.Take(Path("\\longest.dll"))).size(),
            static_cast<std::size_t>(ReadAhead::kLongestFile));
  EXPECT_EQ(Text(ahead.Take(Path("\\longer.dll"))), "none");
}

TEST_F(FilesReadAhead, AreNotReadTooFarAhead) {
  std::vector<std::string> paths;
  for (std::size_t i = 0; i <= ReadAhead::kMostFiles; ++i) {
    paths.push_back(Path(fmt::format("\\{}.ini", i)));
  }

  ReadAhead ahead(game, paths);
  ahead.Take(paths[0]);
  folder.Write(fmt::format("{}.ini", ReadAhead::kMostFiles), "written later");

  EXPECT_EQ(Text(ahead.Take(paths.back())), "written later");
}

TEST_F(FilesReadAhead, NeedNotBeTaken) {
  const std::vector<std::string> paths(1000, Path("\\a.ini"));
  folder.Write("a.ini", "a");

  const ReadAhead none(game, paths);
  ReadAhead one(game, paths);

  EXPECT_EQ(Text(one.Take(paths[0])), "a");
}

}  // namespace
}  // namespace orrerix
