// SPDX-License-Identifier: MIT
#include "tables/value_order.h"

#include <algorithm>
#include <charconv>
#include <compare>
#include <optional>

#include "db/values/text.h"

namespace orrerix {
namespace {

bool IsNumber(const Value& value) {
  return value.Whole() != nullptr || value.Real() != nullptr;
}

// A whole number and a real one. Beyond 2^53 not every whole number is a real one.
std::partial_ordering CompareMixed(std::int64_t whole, double real) {
  constexpr double kBeyondWhole = 9223372036854775808.0;
  if (real >= kBeyondWhole) return std::partial_ordering::less;
  if (real < -kBeyondWhole) return std::partial_ordering::greater;
  if (real != real) return std::partial_ordering::unordered;
  const auto cut = static_cast<std::int64_t>(real);
  if (whole != cut) return whole <=> cut;
  return 0.0 <=> real - static_cast<double>(cut);
}

std::partial_ordering CompareNumbers(const Value& a, const Value& b) {
  if (a.Whole() && b.Whole()) return *a.Whole() <=> *b.Whole();
  if (a.Real() && b.Real()) return *a.Real() <=> *b.Real();
  if (a.Whole()) return CompareMixed(*a.Whole(), *b.Real());
  return 0 <=> CompareMixed(*b.Whole(), *a.Real());
}

unsigned char Folded(char c) {
  return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
}

bool IsTextBefore(std::string_view a, std::string_view b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [](char x, char y) { return Folded(x) < Folded(y); });
}

// Null, then numbers, then texts.
int RankOf(const Value& value) {
  if (value.IsNull()) return 0;
  return value.IsText() ? 2 : 1;
}

std::optional<double> NumberOf(std::string_view text) {
  double number = 0;
  const char* const end = text.data() + text.size();
  const auto [next, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || next != end) return std::nullopt;
  return number;
}

}  // namespace

bool IsSameValue(const Value& a, const Value& b) {
  if (a == b) return true;
  return IsNumber(a) && IsNumber(b) && CompareNumbers(a, b) == 0;
}

bool IsBefore(const Value& a, const Value& b) {
  if (RankOf(a) != RankOf(b)) return RankOf(a) < RankOf(b);
  if (a.IsText()) return IsTextBefore(*a.TextContent(), *b.TextContent());
  return !a.IsNull() && CompareNumbers(a, b) < 0;
}

bool Matches(const Value& value, std::string_view text) {
  if (value.IsText()) return EqualIgnoringCase(*value.TextContent(), text);
  if (value.IsNull() || text.empty()) return value.IsNull() && text.empty();
  if (EqualIgnoringCase(value.Text(), text)) return true;
  const auto number = NumberOf(text);
  return number && value.Number() == *number;
}

}  // namespace orrerix
