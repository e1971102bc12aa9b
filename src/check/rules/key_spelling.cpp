// SPDX-License-Identifier: MIT
#include "check/rules/key_spelling.h"

#include <utility>

namespace orrerix::check {
namespace {

bool IsDigit(char32_t c) {
  return c >= U'0' && c <= U'9';
}

// Length of what two texts have in common at their start.
std::size_t CommonStart(std::u32string_view a, std::u32string_view b) {
  std::size_t length = 0;
  while (length < a.size() && length < b.size() && a[length] == b[length]) ++length;
  return length;
}

bool IsOneMore(std::u32string_view longer, std::u32string_view shorter) {
  const std::size_t at = CommonStart(longer, shorter);
  return longer.substr(at + 1) == shorter.substr(at) && !IsDigit(longer[at]);
}

}  // namespace

bool IsOneSlipFrom(std::u32string_view a, std::u32string_view b) {
  if (a.size() < b.size()) std::swap(a, b);
  if (a.size() == b.size() + 1) return IsOneMore(a, b);
  const std::size_t at = CommonStart(a, b);
  if (a.size() != b.size() || at == a.size()) return false;
  if (a.substr(at + 1) == b.substr(at + 1)) return !(IsDigit(a[at]) && IsDigit(b[at]));
  const bool isSwapped = at + 1 < a.size() && a[at] == b[at + 1] && a[at + 1] == b[at] &&
                         a.substr(at + 2) == b.substr(at + 2);
  return isSwapped && !(IsDigit(a[at]) && IsDigit(a[at + 1]));
}

}  // namespace orrerix::check
