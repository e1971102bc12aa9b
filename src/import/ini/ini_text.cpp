// SPDX-License-Identifier: MIT
#include "import/ini/ini_text.h"

#include <algorithm>
#include <cstdint>

#include "db/values/text.h"

namespace orrerix {
namespace {

std::string_view UpToCarriageReturn(std::string_view text) {
  return Trim(text.substr(0, text.find('\r')));
}

// The next three functions never leave their loops early, so that the compiler can vectorise them.

// How many of the CR and LF between the first and the last character lack their partner.
std::size_t BrokenLineEnds(std::string_view text) {
  std::size_t broken = 0;
  for (std::size_t i = 1; i + 1 < text.size(); ++i) {
    broken += std::size_t(int(text[i] == '\n') & int(text[i - 1] != '\r'));
    broken += std::size_t(int(text[i] == '\r') & int(text[i + 1] != '\n'));
  }
  return broken;
}

// Whether there is none of them.
bool LineEndsAreWhole(std::string_view text) {
  std::uint8_t broken = 0;
  for (std::size_t i = 1; i + 1 < text.size(); ++i) {
    broken |= std::uint8_t(int(text[i] == '\n') & int(text[i - 1] != '\r'));
    broken |= std::uint8_t(int(text[i] == '\r') & int(text[i + 1] != '\n'));
  }
  return broken == 0;
}

// Whether two blanks stand before a "=" somewhere.
bool HasBlanksBeforeSigns(std::string_view text) {
  std::uint8_t found = 0;
  for (std::size_t i = 2; i < text.size(); ++i) {
    found |= std::uint8_t(int(text[i] == '=') & int(text[i - 1] == ' ') & int(text[i - 2] == ' '));
  }
  return found != 0;
}

// Line ends only; blanks before "=" come later.
std::string WithLineEnds(std::string_view text) {
  std::string fixed;
  fixed.reserve(text.size() + BrokenLineEnds(text));
  fixed.push_back(text.front());
  for (std::size_t i = 1; i + 1 < text.size(); ++i) {
    const char c = text[i];
    if (c == '\n' && fixed.back() != '\r') fixed.push_back('\r');
    fixed.push_back(c);
    if (c == '\r' && text[i + 1] != '\n') fixed.push_back('\n');
  }
  if (text.size() > 1) fixed.push_back(text.back());
  return fixed;
}

// Leaves one blank of each run before "=".
void ShrinkBlanksBeforeSigns(std::string& text) {
  auto end = text.begin();
  for (const char c : text) {
    if (c == '=') {
      while (end - text.begin() > 1 && *(end - 1) == ' ' && *(end - 2) == ' ') --end;
    }
    *end++ = c;
  }
  text.erase(end, text.end());
}

// Most texts of one length differ in their last letter already.
bool EndsWith(std::string_view text, std::string_view end) {
  if (end.empty()) return true;
  return text.size() >= end.size() && text.back() == end.back() && text.ends_with(end);
}

}  // namespace

bool INIValueSearch::EndsAt(std::size_t sign) {
  const std::string_view before = upperText_.substr(0, sign);
  if (before.ends_with(' ') && EndsWith(before.substr(0, sign - 1), upperKey_)) {
    const std::size_t start = sign + 2;
    value_ = start < text_.size() ? text_.substr(start) : std::string_view();
    return true;
  }
  if (!hasTight_ && EndsWith(before, upperKey_)) {
    hasTight_ = true;
    value_ = text_.substr(sign + 1);
  }
  return false;
}

std::string_view INIValueSearch::Value() const {
  return UpToCarriageReturn(value_);
}

std::string UpperAscii(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c);
  return upper;
}

std::size_t FindText(std::string_view text, std::string_view part) {
  return text.find(part);
}

std::string_view FindINIValue(std::string_view text, std::string_view upperText,
                              std::string_view upperKey) {
  INIValueSearch search(text, upperText, upperKey);
  std::size_t sign = upperText.find('=');
  while (sign != std::string_view::npos && !search.EndsAt(sign))
    sign = upperText.find('=', sign + 1);
  return search.Value();
}

std::string_view GetINIValue(std::string_view text, std::string_view key) {
  return FindINIValue(text, UpperAscii(text), UpperAscii(key));
}

std::string RemoveComments(std::string_view text) {
  std::string clean;
  clean.reserve(text.size());
  while (true) {
    const std::size_t comment = text.find(';');
    clean.append(text.substr(0, comment));
    if (comment == std::string_view::npos) return clean;
    const std::size_t lineEnd = text.find('\r', comment);
    if (lineEnd == std::string_view::npos) return clean;
    text.remove_prefix(lineEnd);
  }
}

std::string FixCrLf(std::string text) {
  if (!LineEndsAreWhole(text)) text = WithLineEnds(text);
  if (HasBlanksBeforeSigns(text)) ShrinkBlanksBeforeSigns(text);
  return text;
}

CleanBlock::CleanBlock(std::string_view block) : text_(block) {
  if (block.find(';') != std::string_view::npos) {
    copy_ = RemoveComments(block);
    text_ = copy_;
  }
  if (const std::size_t header = text_.find('['); header != std::string_view::npos) {
    text_.remove_prefix(header);
  }
  if (LineEndsAreWhole(text_) && !HasBlanksBeforeSigns(text_)) return;
  if (copy_.empty()) {
    copy_ = text_;
  } else {
    copy_.erase(0, copy_.size() - text_.size());
  }
  copy_ = FixCrLf(std::move(copy_));
  text_ = copy_;
}

}  // namespace orrerix
