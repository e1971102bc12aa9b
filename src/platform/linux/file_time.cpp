// SPDX-License-Identifier: MIT
#include "platform/file_time.h"

namespace orrerix {
namespace fs = std::filesystem;

fs::file_time_type LastChanged(const fs::path& path, std::error_code& error) {
  return fs::last_write_time(path, error);
}

}  // namespace orrerix
