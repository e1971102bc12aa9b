// SPDX-License-Identifier: MIT
#include "platform/shell_folders.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace orrerix {
namespace fs = std::filesystem;
namespace {

fs::path Environment(const char* name, const fs::path& otherwise) {
  const char* value = std::getenv(name);
  return value == nullptr || *value == '\0' ? otherwise : fs::path(value);
}

fs::path Home() {
  return Environment("HOME", "/");
}

// A folder out of the desktop's "user-dirs.dirs", whose lines read XDG_NAME_DIR="$HOME/name".
fs::path UserFolder(const std::string& name, const fs::path& otherwise) {
  std::ifstream file(Environment("XDG_CONFIG_HOME", Home() / ".config") / "user-dirs.dirs");
  const std::string start = name + "=\"";
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with(start)) continue;
    std::string value = line.substr(start.size());
    value = value.substr(0, value.find('"'));
    constexpr std::string_view home = "$HOME/";
    return value.starts_with(home) ? Home() / value.substr(home.size()) : fs::path(value);
  }
  return otherwise;
}

}  // namespace

std::string DefaultShellFolder(ShellFolder folder) {
  switch (folder) {
    case ShellFolder::Desktop:
      return UserFolder("XDG_DESKTOP_DIR", Home() / "Desktop").string();
    case ShellFolder::Personal:
      return UserFolder("XDG_DOCUMENTS_DIR", Home() / "Documents").string();
    case ShellFolder::Programs:
      break;
  }
  return (Environment("XDG_DATA_HOME", Home() / ".local" / "share") / "applications").string();
}

}  // namespace orrerix
