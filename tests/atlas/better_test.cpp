// SPDX-License-Identifier: MIT
#include "atlas/better.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(BetterValues, AreLowerPricesAndHigherDamage) {
  EXPECT_EQ(BetterOf("price"), Better::Lower);
  EXPECT_EQ(BetterOf("offline_time"), Better::Lower);
  EXPECT_EQ(BetterOf("hull_damage_second"), Better::Higher);
  EXPECT_EQ(BetterOf("class"), Better::Neither);
}

}  // namespace
}  // namespace orrerix
