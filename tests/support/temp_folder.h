// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace orrerix {

// A folder of a test's own; it goes with the test.
class TempFolder {
 public:
  TempFolder() {
    const std::filesystem::path base = std::filesystem::temp_directory_path();
    std::random_device random;
    do {
      path_ = base / ("orrerix-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& Path() const { return path_; }

  // Writes a file below the folder, with the folders on its way.
  std::filesystem::path Write(const std::filesystem::path& name, std::string_view content) const {
    const std::filesystem::path file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary)
        .write(content.data(), static_cast<std::streamsize>(content.size()));
    return file;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace orrerix
