// SPDX-License-Identifier: MIT
#include "platform/memory_status.h"

#include <algorithm>
#include <fstream>
#include <string>

#include <unistd.h>

namespace orrerix {
namespace {

constexpr std::uint64_t kMost = 0x7FFFFFFF;

struct Account {
  std::uint64_t Total = 0;
  std::uint64_t Used = 0;
};

struct MemoryInfo {
  Account Physical;
  Account Swap;
};

MemoryInfo ReadMemoryInfo() {
  MemoryInfo info;
  std::uint64_t available = 0;
  std::uint64_t swapFree = 0;
  std::ifstream file("/proc/meminfo");
  std::string name;
  std::uint64_t kilobytes = 0;
  std::string unit;
  while (file >> name >> kilobytes) {
    std::getline(file, unit);
    const std::uint64_t bytes = kilobytes * 1024;
    if (name == "MemTotal:") info.Physical.Total = bytes;
    if (name == "MemAvailable:") available = bytes;
    if (name == "SwapTotal:") info.Swap.Total = bytes;
    if (name == "SwapFree:") swapFree = bytes;
  }
  info.Physical.Used = info.Physical.Total - std::min(available, info.Physical.Total);
  info.Swap.Used = info.Swap.Total - std::min(swapFree, info.Swap.Total);
  return info;
}

// Resident memory of this process; its address space is far larger than any 32-bit figure.
std::uint64_t ProcessMemory() {
  std::ifstream file("/proc/self/statm");
  std::uint64_t size = 0;
  std::uint64_t resident = 0;
  file >> size >> resident;
  return resident * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
}

void Store(const Account& account, std::uint32_t& total, std::uint32_t& available) {
  total = static_cast<std::uint32_t>(std::min(account.Total, kMost));
  available = static_cast<std::uint32_t>(total - std::min<std::uint64_t>(account.Used, total));
}

}  // namespace

MemoryStatus GlobalMemoryStatus() {
  const MemoryInfo info = ReadMemoryInfo();
  MemoryStatus status;
  status.dwLength = sizeof status;
  if (info.Physical.Total > 0) {
    status.dwMemoryLoad =
        static_cast<std::uint32_t>(info.Physical.Used * 100 / info.Physical.Total);
  }
  Store(info.Physical, status.dwTotalPhys, status.dwAvailPhys);
  // As on the system that the figures come from, the page file covers the physical memory too.
  Store({info.Physical.Total + info.Swap.Total, info.Physical.Used + info.Swap.Used},
        status.dwTotalPageFile, status.dwAvailPageFile);
  Store({kMost, ProcessMemory()}, status.dwTotalVirtual, status.dwAvailVirtual);
  return status;
}

}  // namespace orrerix
