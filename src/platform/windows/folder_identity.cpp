// SPDX-License-Identifier: MIT
#include "platform/windows/folder_identity.h"

#include <windows.h>

#include "platform/path_text.h"

namespace orrerix {

std::optional<FolderIdentity> IdentityOf(const std::filesystem::path& folder) {
  constexpr DWORD everyone = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE handle = CreateFileW(SystemPath(folder).c_str(), FILE_READ_ATTRIBUTES, everyone,
                                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return std::nullopt;
  BY_HANDLE_FILE_INFORMATION information{};
  const bool isKnown = GetFileInformationByHandle(handle, &information) != 0;
  CloseHandle(handle);
  if (!isKnown || (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
    return std::nullopt;
  }
  const std::uint64_t number =
      (static_cast<std::uint64_t>(information.nFileIndexHigh) << 32) | information.nFileIndexLow;
  return FolderIdentity{information.dwVolumeSerialNumber, number};
}

}  // namespace orrerix
