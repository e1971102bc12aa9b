// SPDX-License-Identifier: MIT
#include "picture/qt_text_measure.h"

#include <gtest/gtest.h>

#include "picture/form_font.h"

namespace orrerix {
namespace {

TEST(QtTextMeasure, LongerTextsAndLargerFontsAreWider) {
  const QtTextMeasure measure;

  EXPECT_GT(measure.TextWidth("New Tokyo", 10), measure.TextWidth("New", 10));
  EXPECT_GT(measure.TextWidth("New Tokyo", 10), measure.TextWidth("New Tokyo", 9));
  EXPECT_EQ(measure.TextWidth("", 10), 0);
}

TEST(QtTextMeasure, ALineOfTenPointsIsAtLeastAsHighAsItsThirteenPixels) {
  const QtTextMeasure measure;

  EXPECT_GE(measure.TextHeight("New Tokyo", 10), 13 * 15);
  EXPECT_LT(measure.TextHeight("New Tokyo", 10), 400);
}

TEST(QtTextMeasure, ASizeInPointsIsAThirdMoreInPixels) {
  EXPECT_EQ(FormFont(9).pixelSize(), 12);
  EXPECT_EQ(FormFont(10).pixelSize(), 13);
  EXPECT_EQ(FormFont(1).pixelSize(), 1);
}

TEST(QtTextMeasure, LettersBeyondAsciiCountOnce) {
  const QtTextMeasure measure;

  EXPECT_LT(measure.TextWidth("Systèmes", 10), measure.TextWidth("SystAAmes", 10));
}

TEST(QtTextMeasure, InAFaceOfOneWidthAllLettersAreAsWide) {
  const QtTextMeasure measure(FixedFont);

  EXPECT_EQ(measure.TextWidth("iiii", 9), measure.TextWidth("MMMM", 9));
}

}  // namespace
}  // namespace orrerix
