// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace orrerix {

// What makes a folder the same one, however it is spelled or reached.
struct FolderIdentity {
  std::uint32_t Volume = 0;
  std::uint64_t Number = 0;
  bool operator==(const FolderIdentity&) const = default;
};

// Nothing if there is no such folder, or the system does not number it.
std::optional<FolderIdentity> IdentityOf(const std::filesystem::path& folder);

}  // namespace orrerix
