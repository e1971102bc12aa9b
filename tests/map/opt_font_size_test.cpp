// SPDX-License-Identifier: MIT
#include "map/opt_font_size.h"

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

}  // namespace
}  // namespace orrerix
