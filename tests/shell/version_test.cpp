// SPDX-License-Identifier: MIT
#include "shell/version.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(AppVersion, StampsMajorAndMinorWithNothingBetween) {
  EXPECT_EQ((AppVersion{1, 7, 0}).Stamp(), "17");
  EXPECT_EQ((AppVersion{1, 7, 5}).Stamp(), "17");
  EXPECT_EQ((AppVersion{1, 10, 0}).Stamp(), "110");
  EXPECT_EQ((AppVersion{11, 0, 0}).Stamp(), "110");
}

TEST(AppVersion, IsWrittenWithPoints) {
  EXPECT_EQ((AppVersion{1, 7, 12}).Text(), "1.7.12");
}

TEST(CurrentVersion, IsSet) {
  EXPECT_GE(CurrentVersion().Major, 1);
}

}  // namespace
}  // namespace orrerix
