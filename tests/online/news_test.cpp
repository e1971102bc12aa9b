// SPDX-License-Identifier: MIT
#include "online/news.h"

#include <gmock/gmock.h>

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kHead = "1.5\r\nNewer!\r\nhttp://x.example/new\r\n";

TEST(NewsFile, ItBeginsWithANumberAboveZero) {
  EXPECT_TRUE(IsNewsFile("1.0\r\n"));
  EXPECT_TRUE(IsNewsFile("  2 and more"));
  EXPECT_FALSE(IsNewsFile(""));
  EXPECT_FALSE(IsNewsFile("0.0\r\n"));
  EXPECT_FALSE(IsNewsFile("<html>404</html>"));
}

TEST(NewsFile, TheFirstThreeLinesAreAboutTheLatestVersion) {
  const News news = ReadNews(kHead);

  EXPECT_EQ(news.LatestVersion, "1.5");
  EXPECT_EQ(news.UpdateToolTip, "Newer!");
  EXPECT_EQ(news.UpdateAddress, "http://x.example/new");
  EXPECT_THAT(news.Entries, IsEmpty());
}

TEST(NewsFile, ThreeLinesEachMakeAnEntry) {
  const News news =
      ReadNews(std::string(kHead) + "One\r\nFirst\r\nhttp://1\r\nTwo\r\nSecond\r\nhttp://2");

  EXPECT_THAT(news.Entries, ElementsAre(NewsEntry{"One", "First", "http://1"},
                                        NewsEntry{"Two", "Second", "http://2"}));
}

TEST(NewsFile, AnEntryWithAnEmptyLineIsDropped) {
  const News news =
      ReadNews(std::string(kHead) + "One\r\n\r\nhttp://1\r\nTwo\r\nSecond\r\nhttp://2\r\n");

  EXPECT_THAT(news.Entries, ElementsAre(NewsEntry{"Two", "Second", "http://2"}));
}

TEST(NewsFile, ALastEntryWithTwoLinesRepeatsTheAddressBeforeIt) {
  const News news = ReadNews(std::string(kHead) + "One\r\nFirst\r\nhttp://1\r\nTwo\r\nSecond\r\n");

  EXPECT_THAT(news.Entries, ElementsAre(NewsEntry{"One", "First", "http://1"},
                                        NewsEntry{"Two", "Second", "http://1"}));
}

TEST(NewsFile, AShortFileLeavesTheRestEmpty) {
  const News news = ReadNews("1.5");

  EXPECT_EQ(news.LatestVersion, "1.5");
  EXPECT_EQ(news.UpdateToolTip, "");
  EXPECT_EQ(ReadNews("").LatestVersion, "");
}

TEST(NewsFile, LinesWithoutCarriageReturnsAreOneLine) {
  EXPECT_THAT(ReadNews("1.5\nNewer!\nhttp://x\nOne\nTwo\nThree\n").Entries, IsEmpty());
}

TEST(UpdateNotice, ALaterVersionIsAnnounced) {
  EXPECT_TRUE(IsUpdateDue({1, 0, 0}, "1.1"));
  EXPECT_TRUE(IsUpdateDue({1, 10, 0}, "1.9"));  // as decimals
}

TEST(UpdateNotice, NoNewsTheSameAndAnEarlierVersionAreNot) {
  EXPECT_FALSE(IsUpdateDue({1, 0, 0}, ""));
  EXPECT_FALSE(IsUpdateDue({1, 1, 0}, "1.1"));
  EXPECT_FALSE(IsUpdateDue({1, 1, 0}, "1.10"));
  EXPECT_FALSE(IsUpdateDue({2, 0, 0}, "1.9"));
}

}  // namespace
}  // namespace orrerix
