// SPDX-License-Identifier: MIT
#include "platform/folder_lock.h"

#include <fmt/format.h>
#include <fmt/xchar.h>
#include <windows.h>

#include "platform/windows/folder_identity.h"

namespace orrerix {

// Windows cannot lock a folder. An object of the system that is named for it stands in for the
// lock: it is gone with the last process that has it open.
std::optional<FolderLock> FolderLock::TryHold(const std::filesystem::path& folder) {
  const auto identity = IdentityOf(folder);
  if (!identity) return FolderLock();
  const std::wstring name =
      fmt::format(L"Global\\Orrerix-{:08x}-{:016x}", identity->Volume, identity->Number);
  const HANDLE handle = CreateEventW(nullptr, TRUE, FALSE, name.c_str());
  const DWORD error = GetLastError();
  if (handle == nullptr) {
    // One of another user, who does not share it.
    if (error == ERROR_ACCESS_DENIED) return std::nullopt;
    return FolderLock();
  }
  FolderLock lock(reinterpret_cast<std::intptr_t>(handle));
  if (error == ERROR_ALREADY_EXISTS) return std::nullopt;
  return lock;
}

FolderLock::~FolderLock() {
  if (handle_ != kNone) CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

}  // namespace orrerix
