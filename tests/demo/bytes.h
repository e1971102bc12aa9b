// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace orrerix::demo {

// Little-endian numbers out of a file's bytes; a place past the end throws std::out_of_range.
inline std::uint32_t U8At(const std::string& bytes, std::size_t offset) {
  return static_cast<unsigned char>(bytes.at(offset));
}

inline std::uint32_t U16At(const std::string& bytes, std::size_t offset) {
  return U8At(bytes, offset) | U8At(bytes, offset + 1) << 8;
}

inline std::uint32_t U32At(const std::string& bytes, std::size_t offset) {
  return U16At(bytes, offset) | U16At(bytes, offset + 2) << 16;
}

}  // namespace orrerix::demo
