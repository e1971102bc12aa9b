// SPDX-License-Identifier: MIT
#include "platform/file_time.h"

#include <chrono>
#include <cstdint>

#include <windows.h>

#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

// Windows counts from the start of 1601.
using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
constexpr Ticks kStartOf1970{116'444'736'000'000'000};

}  // namespace

fs::file_time_type LastChanged(const fs::path& path, std::error_code& error) {
  error.clear();
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (GetFileAttributesExW(SystemPath(path).c_str(), GetFileExInfoStandard, &data) == 0) {
    error.assign(static_cast<int>(GetLastError()), std::system_category());
    return fs::file_time_type::min();
  }
  const Ticks since1601((static_cast<std::int64_t>(data.ftLastWriteTime.dwHighDateTime) << 32) |
                        data.ftLastWriteTime.dwLowDateTime);
  using SystemTime = std::chrono::time_point<std::chrono::system_clock, std::chrono::nanoseconds>;
  return fs::file_time_type::clock::from_sys(SystemTime(since1601 - kStartOf1970));
}

}  // namespace orrerix
