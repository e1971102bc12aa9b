// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <utility>

namespace orrerix {

// Holds a folder against everyone else who asks for it this way, in this process or another one.
// Nothing is written into the folder; a process that dies lets go.
class FolderLock {
 public:
  // Nothing if someone else holds the folder. One that the system cannot lock, or that is not
  // there, is held by nobody.
  static std::optional<FolderLock> TryHold(const std::filesystem::path& folder);

  // Holds nothing.
  FolderLock() = default;
  FolderLock(FolderLock&& other) noexcept : handle_(std::exchange(other.handle_, kNone)) {}
  FolderLock& operator=(FolderLock&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~FolderLock();

 private:
  static constexpr std::intptr_t kNone = -1;
  explicit FolderLock(std::intptr_t handle) : handle_(handle) {}

  std::intptr_t handle_ = kNone;  // the system's own
};

}  // namespace orrerix
