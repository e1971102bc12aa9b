// SPDX-License-Identifier: MIT
#include "platform/long_names.h"

#include <string>

#include <windows.h>

namespace orrerix {

std::filesystem::path LongNames(const std::filesystem::path& path) {
  const DWORD room = GetLongPathNameW(path.c_str(), nullptr, 0);
  std::wstring name(room, L'\0');
  const DWORD size = room == 0 ? 0 : GetLongPathNameW(path.c_str(), name.data(), room);
  if (size == 0 || size >= room) return path;
  name.resize(size);
  return name;
}

}  // namespace orrerix
