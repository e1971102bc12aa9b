// SPDX-License-Identifier: MIT
#include "map/numeric.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(Numeric, TheSmallerAndTheGreaterOfTwoNumbersAreFound) {
  EXPECT_EQ(MINI(3, 4), 3);
  EXPECT_EQ(MINI(4, 3), 3);
  EXPECT_EQ(MAXI(3, 4), 4);
  EXPECT_EQ(MAX(4, 3), 4);
}

TEST(Numeric, OfEqualNumbersMiniAndMaxiGiveTheFirstAndMaxTheSecond) {
  EXPECT_FALSE(std::signbit(MINI(0.0, -0.0)));
  EXPECT_FALSE(std::signbit(MAXI(0.0, -0.0)));
  EXPECT_TRUE(std::signbit(MAX(0.0, -0.0)));
}

TEST(Numeric, WholeTwipsAreRoundedTiesToEven) {
  EXPECT_EQ(WholeTwips(1.5), 2);
  EXPECT_EQ(WholeTwips(2.5), 2);
  EXPECT_EQ(WholeTwips(-0.5), 0);
  EXPECT_EQ(WholeTwips(40000.4), 40000);
}

}  // namespace
}  // namespace orrerix
