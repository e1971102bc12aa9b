// SPDX-License-Identifier: MIT
#include "support.h"

#include <cstdlib>
#include <fstream>
#include <string>

namespace orrerix {
namespace fs = std::filesystem;
namespace {

class Folder {
 public:
  Folder() {
    std::string pattern = (fs::temp_directory_path() / "orrerix-fuzz-XXXXXX").string();
    path_ = mkdtemp(pattern.data());
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  const fs::path& Path() const { return path_; }

 private:
  fs::path path_;
};

}  // namespace

const fs::path& OwnFolder() {
  static const Folder folder;
  return folder.Path();
}

void WriteBytes(const fs::path& file, std::string_view bytes) {
  std::ofstream(file, std::ios::binary)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string_view InputText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

std::uint8_t Steering::Byte() {
  if (rest_.empty()) return 0;
  const auto byte = static_cast<std::uint8_t>(rest_.front());
  rest_.remove_prefix(1);
  return byte;
}

std::size_t Steering::Below(std::size_t count) {
  return Byte() % count;
}

std::int16_t Steering::Short() {
  const int low = Byte();
  return static_cast<std::int16_t>(low | Byte() << 8);
}

std::string_view Steering::Text() {
  const std::size_t length = Byte();
  const std::string_view text = rest_.substr(0, length);
  rest_.remove_prefix(text.size());
  return text;
}

}  // namespace orrerix
