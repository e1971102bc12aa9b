// SPDX-License-Identifier: MIT
#include "map/bookmarks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

const Bookmark kFort{"Fort\tBush", "Cheap\nnanobots \\o/", "Li01_11", {8, 10, 8, 10}};
const Bookmark kWest{"The west", "", "", {0, 0, 4, 18}};

TEST(Bookmarks, ComeBackOutOfTheirText) {
  EXPECT_EQ(ReadBookmarks(BookmarksText({kFort, kWest})), (Bookmarks{kFort, kWest}));
}

TEST(Bookmarks, AreLinesWithTabs) {
  EXPECT_EQ(BookmarksText({kWest}), "Orrerix bookmarks 1\n0\t0\t4\t18\t\tThe west\t\n");
}

TEST(Bookmarks, MayHaveBeenEditedOnWindows) {
  EXPECT_EQ(ReadBookmarks("Orrerix bookmarks 1\r\n0\t0\t4\t18\t\tThe west\t\r\n"),
            (Bookmarks{kWest}));
}

TEST(Bookmarks, OffTheGridArePassedOver) {
  EXPECT_EQ(ReadBookmarks("Orrerix bookmarks 1\n0\t0\t99\t18\t\ta\t\nrubbish\nx\t0\t1\t1\t\ta\t\n"),
            Bookmarks{});
}

TEST(Bookmarks, OfAnotherKindOfFileAreNone) {
  EXPECT_EQ(ReadBookmarks(""), std::nullopt);
  EXPECT_EQ(ReadBookmarks("{}"), std::nullopt);
}

TEST(Bookmarks, AreKeptInAFile) {
  const TempFolder folder;
  const auto file = folder.Path() / "marks.txt";
  EXPECT_EQ(LoadBookmarks(file), std::nullopt);

  EXPECT_TRUE(SaveBookmarks(file, {kWest}));
  EXPECT_TRUE(SaveBookmarks(file, {kFort}));

  EXPECT_EQ(LoadBookmarks(file), (Bookmarks{kFort}));
  EXPECT_FALSE(SaveBookmarks(folder.Path() / "none" / "marks.txt", {kFort}));
}

TEST(Bookmarks, AreAddedOnce) {
  const MergedBookmarks merged = Merged({kFort}, {kFort, kWest});

  EXPECT_THAT(merged.All, ElementsAre(kFort, kWest));
  EXPECT_EQ(merged.Added, 1u);
}

}  // namespace
}  // namespace orrerix
