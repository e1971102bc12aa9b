// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <system_error>

namespace orrerix {

// When a file or folder was last changed, to the fraction of a second that its disk keeps: the
// standard library counts whole seconds on Windows, and so would miss the second of two changes.
// The lowest time, with the reason in `error`, if it cannot be told.
std::filesystem::file_time_type LastChanged(const std::filesystem::path& path,
                                            std::error_code& error);

}  // namespace orrerix
