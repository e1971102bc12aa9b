// SPDX-License-Identifier: MIT
// The files of folders as they are at one moment.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <vector>

namespace orrerix {

class FileSnapshot {
 public:
  FileSnapshot() = default;

  // Looks at all files in folders and the folders in those. Left out are files that are named like
  // one of `except`, with whatever follows, and stand in its folder, and what is in folders of such
  // names.
  FileSnapshot(const std::vector<std::filesystem::path>& folders,
               const std::vector<std::filesystem::path>& except);

  // The files that came, went or were written between an earlier snapshot and this one, in order.
  std::vector<std::filesystem::path> ChangedSince(const FileSnapshot& earlier) const;

  // A number that differs, but for a rare chance, from that of a snapshot with other files.
  std::uint64_t Digest() const;

 private:
  struct Stamp {
    std::uintmax_t Size = 0;
    std::filesystem::file_time_type Written;
    bool operator==(const Stamp&) const = default;
  };

  std::map<std::filesystem::path, Stamp> files_;
};

}  // namespace orrerix
