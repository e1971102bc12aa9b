// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace orrerix {

// The system's memory as its 32-bit call reports it, in bytes. A figure of 2 GiB or more does not
// fit: what is in use is then counted against a total of 2 GiB.
struct MemoryStatus {
  std::uint32_t dwLength = 0;
  std::uint32_t dwMemoryLoad = 0;  // percent of the physical memory in use
  std::uint32_t dwTotalPhys = 0;
  std::uint32_t dwAvailPhys = 0;
  std::uint32_t dwTotalPageFile = 0;
  std::uint32_t dwAvailPageFile = 0;
  std::uint32_t dwTotalVirtual = 0;  // of this process
  std::uint32_t dwAvailVirtual = 0;
};

MemoryStatus GlobalMemoryStatus();

}  // namespace orrerix
