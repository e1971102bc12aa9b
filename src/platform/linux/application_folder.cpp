// SPDX-License-Identifier: MIT
#include "platform/application_folder.h"

#include <cstdlib>

#include <unistd.h>

namespace orrerix {
namespace fs = std::filesystem;

fs::path ExecutablePath() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error);
}

fs::path ApplicationFolder() {
  fs::path beside = ExecutablePath().parent_path();
  if (access(beside.c_str(), W_OK) == 0) return beside;
  const char* data = std::getenv("XDG_DATA_HOME");
  const char* home = std::getenv("HOME");
  fs::path folder = data != nullptr && *data != '\0'
                        ? fs::path(data)
                        : fs::path(home == nullptr ? "/tmp" : home) / ".local" / "share";
  folder /= "orrerix";
  std::error_code error;
  fs::create_directories(folder, error);
  return folder;
}

}  // namespace orrerix
