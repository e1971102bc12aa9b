// SPDX-License-Identifier: MIT
// The files of a game folder and of the unmodified game beneath it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "check/finding.h"
#include "db/values/text.h"

namespace orrerix::check {

struct DiskFile {
  check::Layer Layer = check::Layer::Game;
  std::string Path;  // in its folder, as on disk, with "/"
  std::string Key;   // the path as it compares
};

// All files of both folders, listed once. Of equal paths the first in byte order counts, and one of
// the game hides those of the base. Folders that cannot be read are empty.
class FileTree {
 public:
  FileTree(std::filesystem::path game, std::optional<std::filesystem::path> base);

  // The file that counts for a path (see PathKey); null if there is none.
  const DiskFile* Find(std::string_view key) const;

  // Every file of both folders, the game's first, each folder's in byte order.
  const std::vector<DiskFile>& Files() const { return files_; }

  std::filesystem::path FullPath(const DiskFile& file) const;

  // The bytes of a file; nothing if it cannot be read.
  std::optional<std::string> ReadBytes(const DiskFile& file) const;

 private:
  std::filesystem::path game_;
  std::filesystem::path base_;
  std::vector<DiskFile> files_;
  std::unordered_map<std::string_view, const DiskFile*> byKey_;
};

// Whether two paths lead to the same folder.
bool IsSameFolder(const std::filesystem::path& a, const std::filesystem::path& b);

}  // namespace orrerix::check
