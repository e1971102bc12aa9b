// SPDX-License-Identifier: MIT
// The folder that the demo game is written to.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace orrerix::demo {

// Why a game cannot be written to a folder, as a message for the user.
class FolderRefused : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The folder that a demo game is written to. It carries a marker file, by which a later run knows
// that the folder is its own and may be overwritten; a folder of anything else is refused.
class GameFolder {
 public:
  // Makes the folder, or empties one that carries the marker. Throws FolderRefused where something
  // else is in the way, and std::filesystem::filesystem_error where the disk fails.
  explicit GameFolder(std::filesystem::path folder);

  // Writes one file, its folders with it. `path` is relative, with "/" between its parts.
  // Throws FolderRefused with the path if the disk does not take it.
  void Write(std::string_view path, std::string_view bytes) const;

 private:
  std::filesystem::path folder_;
};

}  // namespace orrerix::demo
