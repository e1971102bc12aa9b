// SPDX-License-Identifier: MIT
#include "platform/wide_registers.h"

#include <cstdint>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(WideRegisters, LoseTheirUpperHalvesOnly) {
#ifdef __x86_64__
  if (__builtin_cpu_supports("avx2") == 0) GTEST_SKIP() << "this processor has none";
  std::uint64_t lower = 0;
  std::uint64_t upper = 1;
  __asm__ volatile("vpcmpeqd %%ymm15, %%ymm15, %%ymm15" : : : "xmm15");

  ClearWideRegisters();

  __asm__ volatile(
      "vmovq %%xmm15, %0\n\t"
      "vextracti128 $1, %%ymm15, %%xmm15\n\t"
      "vmovq %%xmm15, %1"
      : "=r"(lower), "=r"(upper)
      :
      : "xmm15");
  EXPECT_EQ(upper, 0U);
  EXPECT_EQ(lower, ~std::uint64_t{0});
#else
  ClearWideRegisters();
#endif
}

}  // namespace
}  // namespace orrerix
