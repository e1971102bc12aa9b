// SPDX-License-Identifier: MIT
#include "platform/folder_lock.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace orrerix {

std::optional<FolderLock> FolderLock::TryHold(const std::filesystem::path& folder) {
  FolderLock lock(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (lock.handle_ != kNone && flock(static_cast<int>(lock.handle_), LOCK_EX | LOCK_NB) != 0 &&
      errno == EWOULDBLOCK) {
    return std::nullopt;
  }
  return lock;
}

FolderLock::~FolderLock() {
  if (handle_ != kNone) close(static_cast<int>(handle_));
}

}  // namespace orrerix
