// SPDX-License-Identifier: MIT
#include "map/grid/opt_font_size.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

// A text of ten characters is 120 twips a point wide.
int SizeFor(int start, int maxWidth) {
  return OptFontSize("0123456789", FixedTextMeasure(), start, maxWidth);
}

TEST(OptFontSize, ASizeThatFitsAndCannotGrowStays) {
  EXPECT_EQ(SizeFor(10, 1200), 10);
  EXPECT_EQ(SizeFor(10, 1319), 10);
}

TEST(OptFontSize, ATextWithRoomGrowsToTheLastSizeThatFits) {
  // 120 x 25 = 3000; 26 would be 3120.
  EXPECT_EQ(SizeFor(10, 3000), 25);
  EXPECT_EQ(SizeFor(1, 3000), 25);
}

TEST(OptFontSize, ATextThatIsTooWideShrinksToTheLargestSizeThatFits) {
  // From 9 down to 5, then up by ones to 8, which is too wide, and one back.
  EXPECT_EQ(SizeFor(9, 959), 7);
}

TEST(OptFontSize, ASearchThatStepsDownToOneEndsThere) {
  // From 20 down to 10, which is too wide, then to 1.
  EXPECT_EQ(SizeFor(20, 840), 1);
}

TEST(OptFontSize, ATextThatDoesNotFitAtOneGivesOne) {
  EXPECT_EQ(SizeFor(10, 50), 1);
}

TEST(OptFontSize, ATextWithoutWidthEndsToo) {
  EXPECT_GT(OptFontSize("", FixedTextMeasure(), 8, 100), 8);
}

// Within a height, too: a line is 24 twips a point high.
int SizeFor(int start, int maxWidth, int maxHeight) {
  return OptFontSize("0123456789", FixedTextMeasure(), start, maxWidth, maxHeight);
}

TEST(OptFontSizeInABox, TheNarrowerLimitCounts) {
  EXPECT_EQ(SizeFor(1, 3000, 5000), 25);  // 120 x 25
  EXPECT_EQ(SizeFor(1, 3000, 250), 10);   // 24 x 10 = 240
}

TEST(OptFontSizeInABox, ASizeThatFitsAndCannotGrowStays) {
  EXPECT_EQ(SizeFor(10, 1200, 250), 10);
}

TEST(OptFontSizeInABox, TheFirstStepIsHalfTheSizeToTheNearestEvenNumber) {
  // From 9 by 4 down to 5, then up by ones to 7, which is too wide, and one back. From 7 by 4 down
  // to 3 and up.
  EXPECT_EQ(SizeFor(9, 720, 5000), 6);
  EXPECT_EQ(SizeFor(7, 480, 5000), 4);
}

TEST(OptFontSizeInABox, ATextThatDoesNotFitAtOneGivesOne) {
  EXPECT_EQ(SizeFor(8, 50, 5000), 1);
  EXPECT_EQ(SizeFor(8, 5000, 10), 1);
}

}  // namespace
}  // namespace orrerix
