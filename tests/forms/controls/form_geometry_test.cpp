// SPDX-License-Identifier: MIT
#include "forms/controls/form_geometry.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(OuterTwips, AFormCountsWithItsDecoration) {
  EXPECT_EQ(OuterTwips({800, 600}, {8, 30}), QSize(808 * 15, 630 * 15));
}

TEST(OuterTwips, ALargeDecorationCountsAsTheLargestThatIsAllowedFor) {
  EXPECT_EQ(OuterTwips({800, 600}, {12, 60}), QSize(810 * 15, 633 * 15));
  // A map frame 200 twips narrower and 550 lower than that, at 50, 50, ends within the inside.
  EXPECT_LE(50 + 810 * 15 - 200, 800 * 15);
  EXPECT_LE(50 + 633 * 15 - 550, 600 * 15);
}

constexpr QRect kScreen(0, 20, 1000, 700);
constexpr QMargins kDecoration(5, 60, 5, 5);

TEST(InsideWithin, AFormThatLiesOnTheScreenStays) {
  EXPECT_EQ(InsideWithin({100, 100, 500, 400}, kDecoration, kScreen), QRect(100, 100, 500, 400));
}

TEST(InsideWithin, AFormBeyondAnEdgeIsMoved) {
  // The title bar needs 60 pixels below row 20; at the right there are 5 left of column 1000.
  EXPECT_EQ(InsideWithin({-40, 30, 500, 400}, kDecoration, kScreen), QRect(5, 80, 500, 400));
  EXPECT_EQ(InsideWithin({800, 600, 500, 100}, kDecoration, kScreen), QRect(495, 600, 500, 100));
}

TEST(InsideWithin, AFormLargerThanTheScreenFillsIt) {
  EXPECT_EQ(InsideWithin({0, 20, 1000, 700}, kDecoration, kScreen), QRect(5, 80, 990, 635));
}

}  // namespace
}  // namespace orrerix
