// SPDX-License-Identifier: MIT
#include "platform/file_time.h"

#include <chrono>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace orrerix {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::seconds;

// Moves the time at which a file was last changed.
void Shift(const fs::path& file, milliseconds by) {
#ifdef _WIN32
  const HANDLE handle = CreateFileW(file.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  FILETIME changed{};
  WIN32_FILE_ATTRIBUTE_DATA data{};
  GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &data);
  ULARGE_INTEGER ticks{};
  ticks.LowPart = data.ftLastWriteTime.dwLowDateTime;
  ticks.HighPart = data.ftLastWriteTime.dwHighDateTime;
  ticks.QuadPart += static_cast<ULONGLONG>(by.count()) * 10'000;
  changed.dwLowDateTime = ticks.LowPart;
  changed.dwHighDateTime = ticks.HighPart;
  SetFileTime(handle, nullptr, nullptr, &changed);
  CloseHandle(handle);
#else
  fs::last_write_time(file, fs::last_write_time(file) + by);
#endif
}

TEST(LastChanged, TellsChangesWithinASecondApart) {
  const TempFolder folder;
  folder.Write("a", "");
  const fs::path file = folder.Path() / "a";
  std::error_code error;
  const fs::file_time_type before = LastChanged(file, error);

  Shift(file, milliseconds(4));

  EXPECT_EQ(LastChanged(file, error) - before, milliseconds(4));
  EXPECT_FALSE(error);
}

TEST(LastChanged, IsTheTimeThatTheStandardLibraryCountsTheSecondsOf) {
  const TempFolder folder;
  folder.Write("a", "");
  std::error_code error;

  const auto apart =
      LastChanged(folder.Path() / "a", error) - fs::last_write_time(folder.Path() / "a");

  EXPECT_GE(apart, seconds(0));
  EXPECT_LT(apart, seconds(1));
}

TEST(LastChanged, OfAFileThatIsNotThereIsTheLowestTimeWithAReason) {
  const TempFolder folder;
  std::error_code error;

  EXPECT_EQ(LastChanged(folder.Path() / "none", error), fs::file_time_type::min());
  EXPECT_EQ(error, std::errc::no_such_file_or_directory);
}

TEST(LastChanged, ForgetsAnEarlierError) {
  const TempFolder folder;
  folder.Write("a", "");
  std::error_code error = std::make_error_code(std::errc::invalid_argument);

  LastChanged(folder.Path() / "a", error);

  EXPECT_FALSE(error);
}

}  // namespace
}  // namespace orrerix
