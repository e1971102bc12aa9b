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

// Most texts that do not end in a key differ from it in the last letter.
bool EndsIn(std::string_view text, std::string_view key) {
  if (key.empty()) return true;
  return text.size() >= key.size() && text.back() == key.back() &&
         text.substr(text.size() - key.size()) == key;
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

std::vector<std::size_t> FindSigns(std::string_view text) {
  std::vector<std::size_t> signs;
  for (std::size_t sign = text.find('='); sign != std::string_view::npos;
       sign = text.find('=', sign + 1)) {
    signs.push_back(sign);
  }
  return signs;
}

// Whoever looks for the keys themselves meets their first letters everywhere.
std::string_view FindINIValue(const KeyedText& text, std::string_view upperKey) {
  const auto valueFrom = [&text](std::size_t start) {
    return start < text.Text.size() ? UpToCarriageReturn(text.Text.substr(start))
                                    : std::string_view();
  };
  std::optional<std::size_t> tight;
  for (auto sign = std::lower_bound(text.Signs.begin(), text.Signs.end(), text.Begin);
       sign != text.Signs.end(); ++sign) {
    const std::string_view before = text.Upper.substr(text.Begin, *sign - text.Begin);
    const bool isSpaced = !before.empty() && before.back() == ' ';
    if (isSpaced && EndsIn(before.substr(0, before.size() - 1), upperKey)) {
      return valueFrom(*sign + 2);
    }
    if (!tight && EndsIn(before, upperKey)) tight = *sign + 1;
  }
  return tight ? valueFrom(*tight) : std::string_view();
}

std::string_view GetINIValue(std::string_view text, std::string_view key) {
  const std::string upper = UpperAscii(text);
  const std::vector<std::size_t> signs = FindSigns(text);
  return FindINIValue({text, upper, signs}, UpperAscii(key));
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
