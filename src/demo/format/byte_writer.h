// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orrerix::demo {

// Collects bytes in memory; all numbers are little-endian.
class ByteWriter {
 public:
  void U8(std::uint32_t value);
  void U16(std::uint32_t value);
  void U32(std::uint32_t value);
  void Text(std::string_view bytes);

  // Appends NUL bytes up to the next multiple of `boundary`; nothing if the size is one already.
  void Align(std::size_t boundary);
  void PadTo(std::size_t size);

  std::size_t Size() const { return bytes_.size(); }
  const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

}  // namespace orrerix::demo
