// SPDX-License-Identifier: MIT
#include "db/values/text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "db/values/case_folding.h"

namespace orrerix {
namespace {

constexpr char32_t kHighestCodePoint = 0x10FFFF;

bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// Types, not functions: the compiler builds them into the loops over texts.
struct LowerAscii {
  char operator()(char c) const { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }
};

struct UpperAscii {
  char operator()(char c) const { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }
};

template <typename Ascii, typename Simple>
std::string MapCase(std::string_view text, Ascii ascii, Simple simple) {
  std::string mapped;
  if (AsciiLength(text) == text.size()) {
    mapped.resize(text.size());
    std::transform(text.begin(), text.end(), mapped.begin(), ascii);
    return mapped;
  }
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    const char32_t from = NextCodePoint(text, at);
    const char32_t to = simple(from);
    const bool noUtf8 = from >= 0x80 && at - start == 1;
    if (from == to || noUtf8) {
      mapped.append(text.substr(start, at - start));
    } else {
      AppendUtf8(mapped, to);
    }
  }
  return mapped;
}

}  // namespace

std::size_t AsciiLength(std::string_view text) {
  constexpr std::uint64_t highBits = 0x8080808080808080;
  std::size_t length = 0;
  for (std::uint64_t eight = 0; length + sizeof eight <= text.size(); length += sizeof eight) {
    std::memcpy(&eight, text.data() + length, sizeof eight);
    if ((eight & highBits) != 0) break;
  }
  while (length < text.size() && static_cast<unsigned char>(text[length]) < 0x80) ++length;
  return length;
}

std::string Ucase(std::string_view text) {
  return MapCase(text, UpperAscii(), SimpleUpperCase);
}

std::string Lcase(std::string_view text) {
  return MapCase(text, LowerAscii(), SimpleLowerCase);
}

std::string FoldAscii(std::string_view text) {
  std::string folded;
  AppendFolded(folded, text);
  return folded;
}

void AppendFolded(std::string& folded, std::string_view text) {
  const std::size_t begin = folded.size();
  folded.append(text);
  std::transform(folded.begin() + static_cast<std::ptrdiff_t>(begin), folded.end(),
                 folded.begin() + static_cast<std::ptrdiff_t>(begin), LowerAscii());
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return LowerAscii()(x) == LowerAscii()(y);
         });
}

std::size_t HashIgnoringCase(std::string_view text) {
  constexpr std::uint64_t caseBits = 0x2020202020202020;
  constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;
  std::uint64_t hash = text.size() * factor;
  for (std::string_view rest = text.substr(0, text.find('\0')); !rest.empty();) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, rest.data(), std::min(rest.size(), sizeof eight));
    hash = (hash ^ (eight | caseBits)) * factor;
    hash ^= hash >> 32;
    rest.remove_prefix(std::min(rest.size(), sizeof eight));
  }
  return static_cast<std::size_t>(hash);
}

int CompareIgnoringCase(std::string_view a, std::string_view b) {
  const std::size_t common = std::min(a.size(), b.size());
  const LowerAscii lower;
  for (std::size_t i = 0; i < common; ++i) {
    const auto x = static_cast<unsigned char>(lower(a[i]));
    const auto y = static_cast<unsigned char>(lower(b[i]));
    if (x != y) return int(x) - int(y);
    if (x == 0) break;
  }
  return int(a.size() > b.size()) - int(a.size() < b.size());
}

std::size_t Len(std::string_view text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return !IsContinuation(c); }));
}

std::string_view Left(std::string_view text, std::size_t count) {
  std::size_t at = 0;
  while (at < text.size() && (count > 0 || IsContinuation(text[at]))) {
    if (!IsContinuation(text[at])) --count;
    ++at;
  }
  return text.substr(0, at);
}

std::string_view Right(std::string_view text, std::size_t count) {
  std::size_t at = text.size();
  while (at > 0 && count > 0) {
    --at;
    if (!IsContinuation(text[at])) --count;
  }
  return text.substr(at);
}

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

void AppendUtf8(std::string& text, char32_t codePoint) {
  const auto add = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (codePoint > kHighestCodePoint || (codePoint >= 0xD800 && codePoint < 0xE000)) {
    add('?');
  } else if (codePoint < 0x80) {
    add(codePoint);
  } else if (codePoint < 0x800) {
    add(0xC0 | (codePoint >> 6));
    add(0x80 | (codePoint & 0x3F));
  } else if (codePoint < 0x10000) {
    add(0xE0 | (codePoint >> 12));
    add(0x80 | ((codePoint >> 6) & 0x3F));
    add(0x80 | (codePoint & 0x3F));
  } else {
    add(0xF0 | (codePoint >> 18));
    add(0x80 | ((codePoint >> 12) & 0x3F));
    add(0x80 | ((codePoint >> 6) & 0x3F));
    add(0x80 | (codePoint & 0x3F));
  }
}

char32_t NextCodePoint(std::string_view text, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(text[at++]);
  const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  if (more == 0 || text.size() - at < more) return lead;
  char32_t codePoint = lead & (0x3F >> more);
  for (std::size_t i = 0; i < more; ++i) {
    if (!IsContinuation(text[at + i])) return lead;
    codePoint = (codePoint << 6) | (static_cast<unsigned char>(text[at + i]) & 0x3F);
  }
  at += more;
  return codePoint;
}

}  // namespace orrerix
