// SPDX-License-Identifier: MIT
#include "import/ini/packed_ini.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace orrerix {
namespace {

constexpr std::string_view kMagic = "BINI";
constexpr std::size_t kHeader = 12;
constexpr std::uint32_t kVersion = 1;

// A text table may be named again and again; no real file comes near this size.
constexpr std::size_t kMostText = 64 << 20;

struct Damaged {};

// Takes little-endian numbers off the front of a file's bytes.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}

  bool Empty() const { return bytes_.empty(); }

  std::uint32_t Take(std::size_t size) {
    if (bytes_.size() < size) throw Damaged{};
    std::uint32_t number = 0;
    for (std::size_t i = size; i-- > 0;) {
      number = (number << 8) | static_cast<unsigned char>(bytes_[i]);
    }
    bytes_.remove_prefix(size);
    return number;
  }

 private:
  std::string_view bytes_;
};

// A text of the string table, up to its NUL. The last one may lack it.
std::string_view TextAt(std::string_view table, std::uint32_t offset) {
  if (offset >= table.size()) throw Damaged{};
  const std::string_view rest = table.substr(offset);
  return rest.substr(0, rest.find('\0'));
}

// The shortest digits that read back to the same float, written out without an exponent.
std::string RealText(float real) {
  if (!std::isfinite(real)) return "0";
  std::array<char, 32> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(real),
                                    std::chars_format::scientific);
  const std::string_view scientific(buffer.data(),
                                    static_cast<std::size_t>(result.ptr - buffer.data()));
  const std::size_t e = scientific.find('e');
  std::string digits(scientific.substr(0, e));
  std::erase(digits, '.');
  int exponent = 0;
  std::from_chars(scientific.data() + e + 2, scientific.data() + scientific.size(), exponent);
  // The point stands after `whole` digits.
  const int whole = (scientific[e + 1] == '-' ? -exponent : exponent) + 1;
  if (whole <= 0) {
    digits.insert(0, "0." + std::string(static_cast<std::size_t>(-whole), '0'));
  } else if (static_cast<std::size_t>(whole) >= digits.size()) {
    digits.resize(static_cast<std::size_t>(whole), '0');
  } else {
    digits.insert(static_cast<std::size_t>(whole), ".");
  }
  return std::signbit(real) ? "-" + digits : digits;
}

void AppendValue(std::string& text, std::uint32_t type, std::uint32_t data,
                 std::string_view table) {
  switch (type) {
    case 1:
      text += std::to_string(static_cast<std::int32_t>(data));
      return;
    case 2:
      text += RealText(std::bit_cast<float>(data));
      return;
    case 3:
      text += TextAt(table, data);
      return;
    default:
      throw Damaged{};
  }
}

void UnpackEntry(ByteReader& reader, std::string_view table, std::string& text) {
  text += TextAt(table, reader.Take(2));
  text += " = ";
  const std::uint32_t values = reader.Take(1);
  for (std::uint32_t i = 0; i < values; ++i) {
    if (i > 0) text += ", ";
    const std::uint32_t type = reader.Take(1);
    AppendValue(text, type, reader.Take(4), table);
  }
  text += "\r\n";
  if (text.size() > kMostText) throw Damaged{};
}

}  // namespace

bool IsPackedIni(std::string_view bytes) {
  return bytes.starts_with(kMagic);
}

std::optional<std::string> UnpackIni(std::string_view bytes) {
  try {
    ByteReader header(bytes.substr(0, kHeader));
    header.Take(kMagic.size());
    if (header.Take(4) != kVersion) return std::nullopt;
    const std::uint32_t tableStart = header.Take(4);
    if (tableStart < kHeader || tableStart > bytes.size()) return std::nullopt;
    const std::string_view table = bytes.substr(tableStart);
    ByteReader sections(bytes.substr(kHeader, tableStart - kHeader));
    std::string text;
    while (!sections.Empty()) {
      text += "[";
      text += TextAt(table, sections.Take(2));
      text += "]\r\n";
      const std::uint32_t entries = sections.Take(2);
      for (std::uint32_t i = 0; i < entries; ++i) UnpackEntry(sections, table, text);
      text += "\r\n";
      if (text.size() > kMostText) throw Damaged{};
    }
    return text;
  } catch (const Damaged&) {
    return std::nullopt;
  }
}

}  // namespace orrerix
