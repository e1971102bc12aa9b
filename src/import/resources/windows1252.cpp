// SPDX-License-Identifier: MIT
#include "import/resources/windows1252.h"

#include <algorithm>
#include <array>

#include "db/values/text.h"

namespace orrerix {
namespace {

// The characters of the bytes 80 to 9F (hex); all other bytes are their own code points.
constexpr std::array<char32_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

std::string FromWindows1252(std::string_view bytes) {
  Windows1252Reader reader;
  return std::string(reader.Utf8(bytes));
}

std::string_view Windows1252Reader::Utf8(std::string_view bytes) {
  const std::size_t ascii = AsciiLength(bytes);
  if (ascii == bytes.size()) return bytes;
  converted_ = bytes.substr(0, ascii);
  for (const char c : bytes.substr(ascii)) {
    const auto byte = static_cast<unsigned char>(c);
    AppendUtf8(converted_, byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80] : byte);
  }
  return converted_;
}

std::string ToWindows1252(std::string_view text) {
  std::string bytes;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t codePoint = NextCodePoint(text, at);
    const auto* control = std::find(kUpperControls.begin(), kUpperControls.end(), codePoint);
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint < 0x100)) {
      bytes += static_cast<char>(codePoint);
    } else if (control != kUpperControls.end()) {
      bytes += static_cast<char>(0x80 + (control - kUpperControls.begin()));
    } else {
      bytes += '?';
    }
  }
  return bytes;
}

bool IsInWindows1252(char32_t codePoint) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint < 0x100)) return true;
  return std::find(kUpperControls.begin(), kUpperControls.end(), codePoint) != kUpperControls.end();
}

}  // namespace orrerix
