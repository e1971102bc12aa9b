// SPDX-License-Identifier: MIT
#include "platform/shortcut.h"

#include <fstream>
#include <string>

namespace orrerix {
namespace fs = std::filesystem;
namespace {

// Quotes a path for the key Exec, where a few characters must be escaped and "%" is doubled.
std::string ExecQuoted(const std::string& path) {
  std::string quoted = "\"";
  for (char c : path) {
    if (c == '"' || c == '`' || c == '$' || c == '\\') quoted += "\\\\";
    if (c == '%') quoted += '%';
    quoted += c;
  }
  return quoted + '"';
}

}  // namespace

bool WriteShortcut(const fs::path& target, const fs::path& link) {
  fs::path file = link;
  if (file.extension() == ".lnk") file.replace_extension();
  file += ".desktop";
  std::ofstream entry(file, std::ios::trunc);
  entry << "[Desktop Entry]\nType=Application\nName=" << link.stem().string()
        << "\nExec=" << ExecQuoted(target.string()) << "\nTerminal=false\nCategories=Game;\n";
  entry.close();
  if (!entry) return false;
  std::error_code error;
  fs::permissions(file, fs::perms::owner_exec, fs::perm_options::add, error);
  return true;
}

}  // namespace orrerix
