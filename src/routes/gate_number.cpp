// SPDX-License-Identifier: MIT
#include "routes/gate_number.h"

#include <array>

#include "db/values/text.h"
#include "import/resources/windows1252.h"

namespace orrerix {
namespace {

constexpr std::uint32_t kPolynomial = 0x28004000;

constexpr std::array<std::uint32_t, 256> MakeTable() {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t i = 0; i < table.size(); ++i) {
    std::uint32_t entry = i;
    for (int bit = 0; bit < 8; ++bit) entry = (entry & 1) ? (entry >> 1) ^ kPolynomial : entry >> 1;
    table[i] = entry;
  }
  return table;
}

constexpr std::array<std::uint32_t, 256> kTable = MakeTable();

constexpr std::uint32_t ReverseBytes(std::uint32_t number) {
  return (number << 24) | ((number & 0xFF00) << 8) | ((number >> 8) & 0xFF00) | (number >> 24);
}

}  // namespace

std::uint32_t NicknameNumber(std::string_view nickname) {
  std::uint32_t hash = 0;
  for (const char byte : ToWindows1252(Lcase(nickname))) {
    hash = (hash >> 8) ^ kTable[(hash ^ static_cast<unsigned char>(byte)) & 0xFF];
  }
  return (ReverseBytes(hash) >> 2) | 0x80000000;
}

}  // namespace orrerix
