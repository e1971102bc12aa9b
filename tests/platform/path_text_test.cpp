// SPDX-License-Identifier: MIT
#include "platform/path_text.h"

#include <fstream>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;

TEST(PathText, KeepsCharactersOfEveryLanguage) {
  for (const char* text : {"größe €.ini", "карта", "星図", "plain"}) {
    EXPECT_EQ(TextOf(PathOf(text)), text);
  }
}

TEST(PathText, NamesTheFileThatTheSystemShows) {
  const TempFolder folder;
  std::ofstream(folder.Path() / PathOf("größe €")) << "x";

  const fs::directory_iterator only(folder.Path());

  EXPECT_EQ(TextOf(only->path().filename()), "größe €");
}

TEST(PathText, BearsBytesThatAreNoText) {
  EXPECT_FALSE(TextOf(PathOf("a\xFF\xC3")).empty());
}

TEST(SystemPath, ReachesFilesDeepBelowTheRoot) {
  const TempFolder folder;
  fs::path deep = folder.Path();
  for (int i = 0; i < 5; ++i) deep /= std::string(100, 'x');

  fs::create_directories(SystemPath(deep));
  std::ofstream(SystemPath(deep / "a.ini")) << "x";

  EXPECT_TRUE(fs::is_regular_file(SystemPath(deep / "a.ini")));
  fs::remove(SystemPath(deep / "a.ini"));
  for (; deep != folder.Path(); deep = deep.parent_path()) fs::remove(SystemPath(deep));
}

TEST(SystemPath, LeavesShortPathsAsTheyAre) {
  EXPECT_EQ(SystemPath("a/b.ini"), fs::path("a/b.ini"));
}

}  // namespace
}  // namespace orrerix
