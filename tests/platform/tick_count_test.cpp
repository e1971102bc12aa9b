// SPDX-License-Identifier: MIT
#include "platform/tick_count.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(IsDue, AfterMoreThan750Milliseconds) {
  EXPECT_FALSE(IsDue(1000, 1000));
  EXPECT_FALSE(IsDue(1750, 1000));
  EXPECT_TRUE(IsDue(1751, 1000));
}

TEST(IsDue, WhenTheCountHasWrapped) {
  EXPECT_TRUE(IsDue(5, 4'294'967'290u));
  EXPECT_FALSE(IsDue(4'294'967'295u, 4'294'967'290u));
}

TEST(GetTickCount, DoesNotRunBackwards) {
  const std::uint32_t first = GetTickCount();

  EXPECT_LT(GetTickCount() - first, 60'000u);
}

}  // namespace
}  // namespace orrerix
