// SPDX-License-Identifier: MIT
// Whether this process gives freed memory back to the system.
#pragma once

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <vector>

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#define ORRERIX_HAS_FREED_MEMORY_PROBE
#endif

namespace orrerix {

#ifdef ORRERIX_HAS_FREED_MEMORY_PROBE
// Memory that is freed, but that the C library keeps: a block after it is in use.
class FreedMemoryProbe {
 public:
  FreedMemoryProbe() {
    std::vector<void*> blocks;
    for (int i = 0; i < kBlocks; ++i) {
      blocks.push_back(std::malloc(kBlock));
      std::memset(blocks.back(), 1, kBlock);
    }
    last_ = std::malloc(kBlock);
    for (void* block : blocks) std::free(block);
    before_ = Resident();
  }
  ~FreedMemoryProbe() { std::free(last_); }
  FreedMemoryProbe(const FreedMemoryProbe&) = delete;
  FreedMemoryProbe& operator=(const FreedMemoryProbe&) = delete;

  // Whether half of it has gone back since.
  bool HasGoneBack() const { return Resident() < before_ - kBlocks / 2 * (kBlock / kPage); }

 private:
  static constexpr int kBlocks = 8192;
  static constexpr int kBlock = 8192;
  static constexpr int kPage = 4096;

  // In pages.
  static long Resident() {
    long total = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident;
  }

  void* last_ = nullptr;
  long before_ = 0;
};
#endif

}  // namespace orrerix
