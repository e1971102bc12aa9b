// SPDX-License-Identifier: MIT
#include "import/ini/ini_text.h"

#include <algorithm>
#include <cstdint>
#include <optional>

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

}  // namespace

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
  std::optional<std::size_t> tight;
  for (std::size_t from = 0; from < upperText.size();) {
    const std::size_t found = FindText(upperText.substr(from), upperKey);
    if (found == std::string_view::npos) break;
    const std::size_t sign = from + found + upperKey.size();
    const std::string_view behind = upperText.substr(sign);
    if (behind.starts_with(" =")) {
      const std::size_t start = sign + 3;
      return start < text.size() ? UpToCarriageReturn(text.substr(start)) : std::string_view();
    }
    if (!tight && behind.starts_with("=")) tight = sign + 1;
    from += found + 1;
  }
  return tight ? UpToCarriageReturn(text.substr(*tight)) : std::string_view();
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
