// SPDX-License-Identifier: MIT
#include "platform/windows/known_folder.h"

#include <objbase.h>
#include <shlobj.h>

namespace orrerix {
namespace fs = std::filesystem;

fs::path KnownFolder(const KNOWNFOLDERID& identity) {
  PWSTR text = nullptr;
  const HRESULT result = SHGetKnownFolderPath(identity, KF_FLAG_DEFAULT, nullptr, &text);
  std::error_code error;
  fs::path folder = SUCCEEDED(result) ? fs::path(text) : fs::temp_directory_path(error);
  CoTaskMemFree(text);
  return folder;
}

}  // namespace orrerix
