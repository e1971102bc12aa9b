// SPDX-License-Identifier: MIT
#include "map/grid/text_measure.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(FixedTextMeasure, ACharacterIsTwelveTwipsAPointWide) {
  EXPECT_EQ(FixedTextMeasure().TextWidth("abc", 10), 360);
  EXPECT_EQ(FixedTextMeasure().TextWidth("Größe", 1), 60);
}

TEST(FixedTextMeasure, ATabCountsAsEightCharacters) {
  EXPECT_EQ(FixedTextMeasure().TextWidth("a\tb", 1), 120);
}

TEST(FixedTextMeasure, ALineIsTwentyFourTwipsAPointHigh) {
  EXPECT_EQ(FixedTextMeasure().TextHeight("anything", 9), 216);
}

}  // namespace
}  // namespace orrerix
