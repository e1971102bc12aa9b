// SPDX-License-Identifier: MIT
#include "demo/plan/random.h"

#include <array>
#include <cstddef>

#include <gtest/gtest.h>

namespace orrerix::demo {
namespace {

TEST(Random, GivesThePublishedNumbersOfSplitMix64) {
  Random random(1234567);

  EXPECT_EQ(random.Next(), 6457827717110365317u);
  EXPECT_EQ(random.Next(), 3203168211198807973u);
}

TEST(Random, BothLimitsOccurAndNothingBeyondThem) {
  Random random(1);
  std::array<int, 3> counts = {};

  for (int i = 0; i < 300; ++i) ++counts.at(static_cast<std::size_t>(random.Between(-1, 1) + 1));

  for (const int count : counts) EXPECT_GT(count, 60);
}

TEST(Random, AShareStaysBelowOne) {
  Random random(7);

  for (int i = 0; i < 1000; ++i) {
    const double share = random.Share();
    EXPECT_GE(share, 0);
    EXPECT_LT(share, 1);
  }
}

TEST(Random, TheSeedOfATextIsItsFnv1aHash) {
  EXPECT_EQ(SeedOf(""), 0xCBF29CE484222325u);
  EXPECT_EQ(SeedOf("a"), 0xAF63DC4C8601EC8Cu);
}

}  // namespace
}  // namespace orrerix::demo
