// SPDX-License-Identifier: MIT
#include "demo/format/byte_writer.h"

#include <cassert>

namespace orrerix::demo {

void ByteWriter::U8(std::uint32_t value) {
  assert(value <= 0xFF);
  bytes_.push_back(static_cast<char>(value));
}

void ByteWriter::U16(std::uint32_t value) {
  assert(value <= 0xFFFF);
  U8(value & 0xFF);
  U8(value >> 8);
}

void ByteWriter::U32(std::uint32_t value) {
  U16(value & 0xFFFF);
  U16(value >> 16);
}

void ByteWriter::Text(std::string_view bytes) {
  bytes_.append(bytes);
}

void ByteWriter::Align(std::size_t boundary) {
  PadTo((bytes_.size() + boundary - 1) / boundary * boundary);
}

void ByteWriter::PadTo(std::size_t size) {
  assert(size >= bytes_.size());
  bytes_.resize(size, '\0');
}

}  // namespace orrerix::demo
