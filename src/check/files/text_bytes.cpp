// SPDX-License-Identifier: MIT
#include "check/files/text_bytes.h"

#include <cstdint>
#include <cstring>

#include "db/values/text.h"

namespace orrerix::check {
namespace {

constexpr std::string_view kCheckWord = "check:";

unsigned char ByteAt(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]);
}

bool IsContinuation(std::string_view bytes, std::size_t at) {
  return at < bytes.size() && (ByteAt(bytes, at) & 0xC0) == 0x80;
}

// Bytes of the well-formed character at a place; 0 if there is none.
std::size_t Utf8Length(std::string_view bytes, std::size_t at) {
  const unsigned char first = ByteAt(bytes, at);
  if (first < 0x80) return 1;
  if (first < 0xC2 || first > 0xF4 || !IsContinuation(bytes, at + 1)) return 0;
  if (first < 0xE0) return 2;
  const unsigned char second = ByteAt(bytes, at + 1);
  if (!IsContinuation(bytes, at + 2)) return 0;
  if (first < 0xF0) {
    const bool isOverlong = first == 0xE0 && second < 0xA0;
    const bool isSurrogate = first == 0xED && second > 0x9F;
    return isOverlong || isSurrogate ? 0 : 3;
  }
  const bool isOverlong = first == 0xF0 && second < 0x90;
  const bool isBeyond = first == 0xF4 && second > 0x8F;
  return isOverlong || isBeyond || !IsContinuation(bytes, at + 3) ? 0 : 4;
}

}  // namespace

bool IsAscii(std::string_view bytes) {
  std::size_t at = 0;
  for (; at + 8 <= bytes.size(); at += 8) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, bytes.data() + at, 8);
    if ((eight & 0x8080808080808080ULL) != 0) return false;
  }
  for (; at < bytes.size(); ++at) {
    if (ByteAt(bytes, at) >= 0x80) return false;
  }
  return true;
}

bool IsUtf8(std::string_view bytes) {
  if (IsAscii(bytes)) return true;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t length = Utf8Length(bytes, at);
    if (length == 0) return false;
    at += length;
  }
  return true;
}

std::optional<std::size_t> BadUtf8Byte(std::string_view bytes) {
  const std::size_t nul = bytes.find('\0');
  const std::size_t replacement = bytes.find("\xEF\xBF\xBD");
  const std::size_t first = nul < replacement ? nul : replacement;
  return first == std::string_view::npos ? std::nullopt : std::optional(first);
}

std::optional<std::size_t> BadWindows1252Byte(std::string_view bytes) {
  const std::size_t first = bytes.find_first_of(std::string_view("\0\x81\x8D\x8F\x90\x9D", 6));
  return first == std::string_view::npos ? std::nullopt : std::optional(first);
}

int LineOfByte(std::string_view bytes, std::size_t at) {
  int line = 1;
  for (std::size_t i = 0; i < at; ++i) {
    if (bytes[i] == '\n' || (bytes[i] == '\r' && bytes.substr(i + 1, 1) != "\n")) ++line;
  }
  return line;
}

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

bool MayAddressCheck(std::string_view comment) {
  for (std::size_t colon = comment.find(':'); colon != std::string_view::npos;
       colon = comment.find(':', colon + 1)) {
    if (colon + 1 >= kCheckWord.size() &&
        EqualIgnoringCase(comment.substr(colon + 1 - kCheckWord.size(), kCheckWord.size()),
                          kCheckWord)) {
      return true;
    }
  }
  return false;
}

}  // namespace orrerix::check
