// SPDX-License-Identifier: MIT
#include "platform/wide_registers.h"

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace orrerix {

#ifdef __x86_64__
namespace {

__attribute__((target("avx"))) void ClearUpperHalves() {
  _mm256_zeroupper();
}

}  // namespace

void ClearWideRegisters() {
  if (__builtin_cpu_supports("avx") != 0) ClearUpperHalves();
}
#else
void ClearWideRegisters() {}
#endif

}  // namespace orrerix
