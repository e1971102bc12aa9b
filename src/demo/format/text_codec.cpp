// SPDX-License-Identifier: MIT
#include "demo/format/text_codec.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace orrerix::demo {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

// What Windows-1252 holds at 0x80 to 0x9F; 0 at the five undefined bytes.
constexpr std::array<char32_t, 32> kUpperControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  if (lead >= 0xF0 && lead < 0xF5) return 4;
  return 0;
}

bool IsScalar(char32_t value, std::size_t length) {
  constexpr std::array<char32_t, 5> lowest = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = value >= 0xD800 && value < 0xE000;
  return value >= lowest[length] && value <= 0x10FFFF && !surrogate;
}

// Decodes the sequence at the start of `text`. `length` becomes the number of bytes used.
char32_t DecodeFirst(std::string_view text, std::size_t& length) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const std::size_t wanted = SequenceLength(lead);
  length = 1;
  if (wanted == 1) return lead;
  if (wanted == 0 || wanted > text.size()) return kReplacement;
  char32_t value = lead & (0x7Fu >> wanted);
  for (std::size_t i = 1; i < wanted; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    if ((next & 0xC0) != 0x80) return kReplacement;
    value = (value << 6) | (next & 0x3Fu);
  }
  if (!IsScalar(value, wanted)) return kReplacement;
  length = wanted;
  return value;
}

char Windows1252Byte(char32_t point) {
  if (point < 0x80 || (point >= 0xA0 && point <= 0xFF)) return static_cast<char>(point);
  const auto* found = std::find(kUpperControls.begin(), kUpperControls.end(), point);
  if (found == kUpperControls.end()) return '?';
  return static_cast<char>(0x80 + (found - kUpperControls.begin()));
}

}  // namespace

std::u32string CodePointsOf(std::string_view utf8) {
  std::u32string points;
  while (!utf8.empty()) {
    std::size_t length = 1;
    points.push_back(DecodeFirst(utf8, length));
    utf8.remove_prefix(length);
  }
  return points;
}

std::u16string Utf16FromUtf8(std::string_view utf8) {
  std::u16string units;
  for (const char32_t point : CodePointsOf(utf8)) {
    if (point < 0x10000) {
      units.push_back(static_cast<char16_t>(point));
    } else {
      units.push_back(static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10)));
      units.push_back(static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF)));
    }
  }
  return units;
}

std::string Windows1252FromUtf8(std::string_view utf8) {
  std::string bytes;
  for (const char32_t point : CodePointsOf(utf8)) bytes.push_back(Windows1252Byte(point));
  return bytes;
}

}  // namespace orrerix::demo
