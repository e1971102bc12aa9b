// SPDX-License-Identifier: MIT
#include "platform/path_text.h"

#include "platform/windows/wide_text.h"

namespace orrerix {
namespace fs = std::filesystem;

fs::path PathOf(std::string_view text) {
  return WideOf(text);
}

std::string TextOf(const fs::path& path) {
  return NarrowOf(path.native());
}

fs::path SystemPath(const fs::path& path) {
  // The most that every call takes without the prefix: a folder leaves room for a short file name.
  constexpr std::size_t longest = 247;
  if (path.native().size() <= longest || path.native().starts_with(L"\\\\?\\")) return path;
  std::error_code error;
  fs::path whole = fs::absolute(path, error).lexically_normal();
  if (error) return path;
  std::wstring text = whole.make_preferred().native();
  if (text.starts_with(L"\\\\")) return L"\\\\?\\UNC" + text.substr(1);
  return L"\\\\?\\" + text;
}

}  // namespace orrerix
