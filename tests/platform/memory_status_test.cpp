// SPDX-License-Identifier: MIT
#include "platform/memory_status.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(GlobalMemoryStatus, HasFiguresThatFitTogether) {
  const MemoryStatus status = GlobalMemoryStatus();

  EXPECT_EQ(status.dwLength, 32u);
  EXPECT_LE(status.dwMemoryLoad, 100u);
  EXPECT_LE(status.dwAvailPhys, status.dwTotalPhys);
  EXPECT_LE(status.dwAvailPageFile, status.dwTotalPageFile);
  EXPECT_LE(status.dwAvailVirtual, status.dwTotalVirtual);
  EXPECT_LE(status.dwTotalPhys, 0x7FFFFFFFu);
  EXPECT_LE(status.dwTotalPageFile, 0x7FFFFFFFu);
  EXPECT_LE(status.dwTotalVirtual, 0x7FFFFFFFu);
}

}  // namespace
}  // namespace orrerix
