// SPDX-License-Identifier: MIT
#include "map/grid/numeric.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(Numeric, ANegativeSizeCountsAsNothing) {
  EXPECT_EQ(NotBelowZero(-1), 0);
  EXPECT_EQ(NotBelowZero(1.5), 1.5);
}

TEST(Numeric, WholeTwipsAreRoundedTiesToEven) {
  EXPECT_EQ(WholeTwips(1.5), 2);
  EXPECT_EQ(WholeTwips(2.5), 2);
  EXPECT_EQ(WholeTwips(-0.5), 0);
  EXPECT_EQ(WholeTwips(40000.4), 40000);
}

}  // namespace
}  // namespace orrerix
