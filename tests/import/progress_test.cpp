// SPDX-License-Identifier: MIT
#include "import/progress.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(LayOutProgress, GrowsFromTheMiddleOfTheFrame) {
  // Centre 600, 350; half sizes 500, 300. One of five steps is 0.2, half of the next one 0.5:
  // 0.2 * 500 + 500 / 5 * 0.5 = 150 and 0.2 * 300 + 300 / 5 * 0.5 = 90; the inner one half of it.
  const ProgressPicture picture = LayOutProgress({100, 50, 1000, 600}, 100, 50, {5, 1});

  EXPECT_EQ(picture.Overall, (WholeTwipRect{450, 260, 300, 180}));
  EXPECT_EQ(picture.Inner, (WholeTwipRect{525, 305, 150, 90}));
}

TEST(LayOutProgress, RoundsHalvesToTheEvenNumber) {
  // Half of 601 is 300.5, which is 300; the centre 50 + 300.5 is 350; half of 603 is 302.
  const ProgressPicture picture = LayOutProgress({50, 50, 603, 601}, 1, 1, {1, 0});

  // Half width 302 about 50 + 301.5 = 351.5, which is 352.
  EXPECT_EQ(picture.Overall, (WholeTwipRect{50, 50, 604, 600}));
  EXPECT_EQ(picture.Inner, picture.Overall);
}

TEST(LayOutProgress, StartsAsAPointInTheMiddle) {
  const ProgressPicture picture = LayOutProgress({100, 50, 1000, 600}, 6, 0, {5, 0});

  EXPECT_EQ(picture.Overall, (WholeTwipRect{600, 350, 0, 0}));
  EXPECT_EQ(picture.Inner, (WholeTwipRect{600, 350, 0, 0}));
}

TEST(LayOutProgress, BearsAStepOfNothing) {
  EXPECT_EQ(LayOutProgress({0, 0, 100, 100}, 0, 0, {0, 0}).Overall, (WholeTwipRect{50, 50, 0, 0}));
}

struct TextCase {
  std::int32_t Maximum;
  std::int32_t Value;
  ImportProgress Progress;
  std::string_view Text;
};

class ProgressTextOf : public ::testing::TestWithParam<TextCase> {};

TEST_P(ProgressTextOf, AState) {
  EXPECT_EQ(ProgressText(GetParam().Maximum, GetParam().Value, GetParam().Progress),
            GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    States, ProgressTextOf,
    ::testing::Values(
        TextCase{1, 0, {5, 0}, "000.00% done."}, TextCase{100, 34, {100, 12}, "012.34% done."},
        // A finished step adds a whole percent, not its share of all steps.
        TextCase{10, 10, {5, 1}, "021.00% done."}, TextCase{6, 6, {20, 20}, "101.00% done."},
        // 1 of 3 is 33; 2 of 3 is 67, 1 of 200 is 0.5, which is 1.
        TextCase{3, 2, {3, 1}, "033.67% done."}, TextCase{200, 1, {200, 1}, "001.01% done."},
        TextCase{0, 0, {0, 0}, "000.00% done."}));

}  // namespace
}  // namespace orrerix
