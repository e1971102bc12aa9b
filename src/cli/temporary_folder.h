// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace orrerix {

// A new folder among the system's temporary files; it goes with everything in it.
class TemporaryFolder {
 public:
  // Throws CouldNot if no folder can be made.
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace orrerix
