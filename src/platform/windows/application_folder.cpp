// SPDX-License-Identifier: MIT
#include "platform/application_folder.h"

#include <shlobj.h>
#include <windows.h>

#include "platform/windows/known_folder.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

// The rights of a folder say too little, as a file system may be read only.
bool CanWriteInto(const fs::path& folder) {
  const fs::path probe = folder / L"orrerix-can-write.tmp";
  const HANDLE file = CreateFileW(probe.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  CloseHandle(file);
  return true;
}

}  // namespace

fs::path ExecutablePath() {
  std::wstring name(MAX_PATH, L'\0');
  for (;;) {
    const DWORD size = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    if (size < name.size()) {
      name.resize(size);
      return name;
    }
    name.resize(name.size() * 2);
  }
}

fs::path ApplicationFolder() {
  fs::path beside = ExecutablePath().parent_path();
  if (CanWriteInto(beside)) return beside;
  const fs::path folder = KnownFolder(FOLDERID_RoamingAppData) / L"Orrerix";
  std::error_code error;
  fs::create_directories(folder, error);
  return folder;
}

}  // namespace orrerix
