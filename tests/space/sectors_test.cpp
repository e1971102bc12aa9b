// SPDX-License-Identifier: MIT
#include "space/sectors.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

// 8 * 0.5 - 0.35 = 3.65: column D; 8 * 0.5 - 0.5 = 3.5: row 4.
TEST(Sectors, AreCalledAsInTexts) {
  EXPECT_EQ(SectorAt({0.5, 0.5}), "D4");
  EXPECT_EQ(SectorAt({0.1, 0.99}), "A8");
  EXPECT_EQ(SectorAt({0.01, 0.5}), "");
}

TEST(Sectors, BeginWhereTheirNamesDo) {
  EXPECT_DOUBLE_EQ(SectorLeft(3), 3.35 / 8);
  EXPECT_DOUBLE_EQ(SectorTop(3), 3.5 / 8);
  EXPECT_EQ(SectorAt({SectorLeft(3) + 1e-9, SectorTop(3) + 1e-9}), "D4");
  EXPECT_EQ(SectorAt({SectorLeft(3) - 1e-9, SectorTop(3) - 1e-9}), "C3");
}

// A fifth of 266,667 is 53,333: 50 km fit.
TEST(ScaleBars, AreRoundNumbers) {
  const ScaleBar bar = ScaleBarFor(266667, 0.2);

  EXPECT_EQ(bar.Units, 50000);
  EXPECT_EQ(bar.Text, "50 km");
  EXPECT_NEAR(bar.Length, 0.1875, 1e-6);
}

TEST(ScaleBars, MayBeShort) {
  EXPECT_EQ(ScaleBarFor(4000, 0.2).Text, "500 m");  // at most 800
  EXPECT_EQ(ScaleBarFor(1000, 1).Text, "1 km");
  EXPECT_EQ(ScaleBarFor(13000, 0.2).Text, "2 km");  // at most 2600
  EXPECT_EQ(ScaleBarFor(0, 0.2).Text, "");
}

}  // namespace
}  // namespace orrerix
