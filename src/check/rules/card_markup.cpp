// SPDX-License-Identifier: MIT
#include "check/rules/card_markup.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace orrerix::check {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::array<std::string_view, 5> kEntities = {"amp", "lt", "gt", "quot", "apos"};

bool IsControl(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return (byte < 0x20 && kBlanks.find(c) == std::string_view::npos) || byte == 0x7F;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsHexDigit(char c) {
  return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool IsNameStart(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' || byte >= 0x80;
}

bool IsNameCharacter(char c) {
  return IsNameStart(c) || IsDigit(c) || c == '-' || c == '.';
}

// What stands between "&" and ";".
bool IsEntity(std::string_view name) {
  if (!name.starts_with('#')) {
    return std::find(kEntities.begin(), kEntities.end(), name) != kEntities.end();
  }
  name.remove_prefix(1);
  const bool isHex = name.starts_with('x');
  if (isHex) name.remove_prefix(1);
  return !name.empty() && std::all_of(name.begin(), name.end(), isHex ? IsHexDigit : IsDigit);
}

// Takes markup off the front of a text.
class CardParser {
 public:
  explicit CardParser(std::string_view rest) : rest_(rest) {}

  bool IsOneElement() {
    if (!rest_.starts_with('<') || !TakeTag()) return false;
    while (!open_.empty()) {
      if (rest_.empty()) return false;
      if (!(rest_.starts_with('<') ? TakeTag() : TakeText("<"))) return false;
    }
    return rest_.empty();
  }

 private:
  // Text or the value of an attribute, up to one of the characters.
  bool TakeText(std::string_view ends) {
    while (!rest_.empty() && ends.find(rest_.front()) == std::string_view::npos) {
      if (rest_.front() == '&') {
        const std::size_t end = rest_.find(';');
        if (end == std::string_view::npos || !IsEntity(rest_.substr(1, end - 1))) return false;
        rest_.remove_prefix(end);
      }
      rest_.remove_prefix(1);
    }
    return true;
  }

  bool TakeTag() {
    rest_.remove_prefix(1);
    if (TakeCharacter('/')) {
      const std::string_view name = TakeName();
      SkipBlanks();
      if (name.empty() || open_.empty() || open_.back() != name) return false;
      open_.pop_back();
      return TakeCharacter('>');
    }
    const std::string_view name = TakeName();
    if (name.empty()) return false;
    while (true) {
      const bool isParted = SkipBlanks();
      if (TakeCharacter('/')) return TakeCharacter('>');
      if (TakeCharacter('>')) {
        open_.push_back(name);
        return true;
      }
      if (!isParted || !TakeAttribute()) return false;
    }
  }

  bool TakeAttribute() {
    if (TakeName().empty()) return false;
    SkipBlanks();
    if (!TakeCharacter('=')) return false;
    SkipBlanks();
    for (const char quote : {'"', '\''}) {
      if (!TakeCharacter(quote)) continue;
      return TakeText(quote == '"' ? "\"<" : "'<") && TakeCharacter(quote);
    }
    return false;
  }

  std::string_view TakeName() {
    if (rest_.empty() || !IsNameStart(rest_.front())) return {};
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), IsNameCharacter);
    const std::string_view name = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
    rest_.remove_prefix(name.size());
    return name;
  }

  bool TakeCharacter(char wanted) {
    if (!rest_.starts_with(wanted)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  bool SkipBlanks() {
    const std::size_t end = std::min(rest_.find_first_not_of(kBlanks), rest_.size());
    rest_.remove_prefix(end);
    return end > 0;
  }

  std::string_view rest_;
  std::vector<std::string_view> open_;
};

}  // namespace

bool IsWellFormedCard(std::string_view text) {
  if (text.starts_with(kMark)) text.remove_prefix(kMark.size());
  while (!text.empty() && static_cast<unsigned char>(text.back()) <= 0x20) text.remove_suffix(1);
  if (text.starts_with("<?xml")) {
    const std::size_t end = text.find("?>");
    if (end == std::string_view::npos) return false;
    text.remove_prefix(end + 2);
  }
  if (std::any_of(text.begin(), text.end(), IsControl)) return false;
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return CardParser(text).IsOneElement();
}

}  // namespace orrerix::check
