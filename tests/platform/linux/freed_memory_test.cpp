// SPDX-License-Identifier: MIT
#include "platform/freed_memory.h"

#include <gtest/gtest.h>

#include "support/freed_memory_probe.h"

namespace orrerix {
namespace {

#ifdef ORRERIX_HAS_FREED_MEMORY_PROBE
TEST(FreedMemory, GoesBackToTheSystemWhenAsked) {
  const FreedMemoryProbe probe;
  EXPECT_FALSE(probe.HasGoneBack());

  ReturnFreedMemory();

  EXPECT_TRUE(probe.HasGoneBack());
}
#endif

}  // namespace
}  // namespace orrerix
