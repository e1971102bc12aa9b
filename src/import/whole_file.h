// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <fstream>
#include <limits>
#include <memory>
#include <optional>
#include <string_view>

namespace orrerix {

// The bytes of a file that was read as a whole, into memory that was not cleared first.
class WholeFile {
 public:
  // Nothing if the stream cannot be read, or its file is longer than so many bytes.
  static std::optional<WholeFile> Read(
      std::ifstream& stream, std::streamoff longest = std::numeric_limits<std::streamoff>::max());

  // They live as long as this.
  std::string_view Bytes() const { return {bytes_.get(), size_}; }

 private:
  explicit WholeFile(std::size_t size)
      : bytes_(std::make_unique_for_overwrite<char[]>(size)), size_(size) {}

  std::unique_ptr<char[]> bytes_;
  std::size_t size_;
};

}  // namespace orrerix
