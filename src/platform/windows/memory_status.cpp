// SPDX-License-Identifier: MIT
#include "platform/memory_status.h"

#include <algorithm>

#include <windows.h>

namespace orrerix {
namespace {

constexpr DWORDLONG kMost = 0x7FFFFFFF;

struct Account {
  std::uint32_t Total = 0;
  std::uint32_t Available = 0;
};

Account Fitted(DWORDLONG total, DWORDLONG available) {
  const DWORDLONG used = total - std::min(available, total);
  const DWORDLONG shown = std::min(total, kMost);
  return {static_cast<std::uint32_t>(shown),
          static_cast<std::uint32_t>(shown - std::min(used, shown))};
}

}  // namespace

MemoryStatus GlobalMemoryStatus() {
  MEMORYSTATUSEX system{};
  system.dwLength = sizeof system;
  MemoryStatus status;
  status.dwLength = sizeof status;
  if (GlobalMemoryStatusEx(&system) == 0) return status;
  const Account physical = Fitted(system.ullTotalPhys, system.ullAvailPhys);
  const Account pageFile = Fitted(system.ullTotalPageFile, system.ullAvailPageFile);
  const Account addresses = Fitted(system.ullTotalVirtual, system.ullAvailVirtual);
  status.dwMemoryLoad = system.dwMemoryLoad;
  status.dwTotalPhys = physical.Total;
  status.dwAvailPhys = physical.Available;
  status.dwTotalPageFile = pageFile.Total;
  status.dwAvailPageFile = pageFile.Available;
  status.dwTotalVirtual = addresses.Total;
  status.dwAvailVirtual = addresses.Available;
  return status;
}

}  // namespace orrerix
