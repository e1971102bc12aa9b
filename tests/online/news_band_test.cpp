// SPDX-License-Identifier: MIT
#include "online/news_band.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(NewsBand, AllLabelsButTheFirstMoveUp) {
  std::vector<BandLabel> labels = {{500, 270}, {770, 270}, {1040, 270}};

  labels = ScrolledNews(std::move(labels), 2000);

  EXPECT_EQ(labels[0].Top, 500);
  EXPECT_EQ(labels[1].Top, 749);
  EXPECT_EQ(labels[2].Top, 1019);
}

TEST(NewsBand, ALabelThatHasLeftComesBackBelowTheLast) {
  std::vector<BandLabel> labels = {{0, 270}, {-250, 270}, {20, 270}, {290, 270}};

  labels = ScrolledNews(std::move(labels), 2000);

  // -271 is gone by more than its height; the last is at 269.
  EXPECT_EQ(labels[1].Top, 539);
  EXPECT_EQ(labels[2].Top, -1);
}

TEST(NewsBand, ALabelThatIsJustGoneStaysForOneMoreStep) {
  std::vector<BandLabel> labels = {{0, 270}, {-249, 270}, {20, 270}};

  labels = ScrolledNews(std::move(labels), 2000);

  EXPECT_EQ(labels[1].Top, -270);
}

TEST(NewsBand, OfTwoThatHaveLeftTheLastComesBack) {
  std::vector<BandLabel> labels = {{0, 10}, {-40, 10}, {-30, 10}, {100, 10}};

  labels = ScrolledNews(std::move(labels), 2000);

  EXPECT_EQ(labels[1].Top, -61);
  EXPECT_EQ(labels[2].Top, 89);  // 79 + 10
}

TEST(NewsBand, LabelsBelowTheBoxAreHidden) {
  std::vector<BandLabel> labels = {{0, 270}, {1020, 270}, {1021, 270}, {1022, 270}};

  labels = ScrolledNews(std::move(labels), 1000);

  EXPECT_TRUE(labels[1].Visible);   // 999
  EXPECT_FALSE(labels[2].Visible);  // 1000
  EXPECT_FALSE(labels[3].Visible);
  labels = ScrolledNews(std::move(labels), 1000);
  EXPECT_TRUE(labels[2].Visible);
}

TEST(NewsBand, ALabelSmallerThanAStepIsTreatedLikeAnyOther) {
  std::vector<BandLabel> labels = {{0, 5}, {10, 5}, {15, 5}};

  labels = ScrolledNews(std::move(labels), 1000);

  EXPECT_EQ(labels[1].Top, -11);
  EXPECT_EQ(labels[2].Top, 5);  // of -11 and -6, both gone, the last: 0 + 5
}

TEST(NewsBand, TheFirstLabelAloneStandsStill) {
  std::vector<BandLabel> labels = {{500, 270}};
  labels = ScrolledNews(std::move(labels), 100);
  EXPECT_EQ(labels[0].Top, 500);
  EXPECT_TRUE(labels[0].Visible);
}

}  // namespace
}  // namespace orrerix
