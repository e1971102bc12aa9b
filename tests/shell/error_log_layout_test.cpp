// SPDX-License-Identifier: MIT
#include "shell/error_log_layout.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(ErrorLogLayout, TheDataLogFillsTheWindowAtFirst) {
  // Width 7455 - 2 * 120, height 6060 - 2 * 240 - 300.
  const ErrorLogLayout layout = LayOutErrorLog(7455, 6060, false);

  EXPECT_FALSE(layout.LowerHalfVisible);
  EXPECT_EQ(layout.DataLog, (WholeTwipRect{120, 240, 7215, 5280}));
  EXPECT_EQ(layout.DataHeading, (WholeTwipRect{120, 0, 7095, 255}));
}

TEST(ErrorLogLayout, BothLogsShareTheWindowFromTheFirstErrorOn) {
  // Heading at 6060 / 2, log below its 255, heights 3030 - 240 and 6060 - 300 - 3285.
  const ErrorLogLayout layout = LayOutErrorLog(7455, 6060, true);

  EXPECT_TRUE(layout.LowerHalfVisible);
  EXPECT_EQ(layout.DataLog, (WholeTwipRect{120, 240, 7215, 2790}));
  EXPECT_EQ(layout.ProgramHeading, (WholeTwipRect{120, 3030, 7095, 255}));
  EXPECT_EQ(layout.ProgramLog, (WholeTwipRect{120, 3285, 7215, 2475}));
}

TEST(ErrorLogLayout, NoSizeGoesBelowZero) {
  const ErrorLogLayout layout = LayOutErrorLog(100, 100, true);

  EXPECT_EQ(layout.DataLog.Width, 0);
  EXPECT_EQ(layout.DataLog.Height, 0);
  EXPECT_EQ(layout.ProgramLog.Width, 0);
  EXPECT_EQ(layout.ProgramLog.Height, 0);
}

}  // namespace
}  // namespace orrerix
