// SPDX-License-Identifier: MIT
#include "check/files/paths.h"

#include <vector>

#include "db/values/text.h"

namespace orrerix::check {

std::string ResolvePath(std::string_view path) {
  std::vector<std::string_view> kept;
  while (!path.empty()) {
    const std::size_t end = path.find_first_of("/\\");
    const std::string_view component = path.substr(0, end);
    path.remove_prefix(end == std::string_view::npos ? path.size() : end + 1);
    if (component.empty() || component == ".") continue;
    if (component == ".." && !kept.empty() && kept.back() != "..") {
      kept.pop_back();
    } else {
      kept.push_back(component);
    }
  }
  std::string resolved;
  for (const std::string_view component : kept) {
    if (!resolved.empty()) resolved += '/';
    resolved += component;
  }
  return resolved;
}

std::string JoinPath(std::string_view below, std::string_view path) {
  return ResolvePath(std::string(below) + '/' + std::string(path));
}

std::string PathKey(std::string_view resolved) {
  return FoldAscii(resolved);
}

}  // namespace orrerix::check
