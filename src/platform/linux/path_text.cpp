// SPDX-License-Identifier: MIT
#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;

fs::path PathOf(std::string_view text) {
  return text;
}

std::string TextOf(const fs::path& path) {
  return path.string();
}

fs::path SystemPath(const fs::path& path) {
  return path;
}

}  // namespace orrerix
