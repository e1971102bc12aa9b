// SPDX-License-Identifier: MIT
#include "atlas/filter.h"

#include <array>
#include <charconv>

#include "db/values/text.h"
#include "tables/value_order.h"

namespace orrerix {
namespace {

struct Symbol {
  std::string_view Text;
  Comparison How;
};

// Longer ones first.
constexpr std::array kSymbols = {
    Symbol{"!=", Comparison::IsNot},       Symbol{"!~", Comparison::HoldsNot},
    Symbol{"<=", Comparison::LessOrEqual}, Symbol{">=", Comparison::GreaterOrEqual},
    Symbol{"=", Comparison::Is},           Symbol{"~", Comparison::Holds},
    Symbol{"<", Comparison::Less},         Symbol{">", Comparison::Greater}};

bool ComparesSizes(Comparison how) {
  return how >= Comparison::Less;
}

std::optional<double> NumberOf(std::string_view text) {
  double number = 0;
  const char* const end = text.data() + text.size();
  const auto [next, error] = std::from_chars(text.data(), end, number);
  const bool isNumber = error == std::errc() && next == end && number == number;
  return isNumber ? std::optional(number) : std::nullopt;
}

bool HoldsPart(const Value& value, std::string_view part) {
  return Contains(Ucase(value.Text()), Ucase(part));
}

}  // namespace

std::optional<Filter> ParseFilter(std::string_view text) {
  const std::size_t place = text.find_first_of("=!~<>");
  if (place == std::string_view::npos) return std::nullopt;
  for (const Symbol& symbol : kSymbols) {
    if (!text.substr(place).starts_with(symbol.Text)) continue;
    Filter filter;
    filter.Column = Trim(text.substr(0, place));
    filter.How = symbol.How;
    filter.Text = Trim(text.substr(place + symbol.Text.size()));
    if (filter.Column.empty()) return std::nullopt;
    if (!ComparesSizes(filter.How)) return filter;
    const auto number = NumberOf(filter.Text);
    if (!number) return std::nullopt;
    filter.Number = *number;
    return filter;
  }
  return std::nullopt;
}

bool Meets(const Value& value, const Filter& filter) {
  switch (filter.How) {
    case Comparison::Is:
      return Matches(value, filter.Text);
    case Comparison::IsNot:
      return !Matches(value, filter.Text);
    case Comparison::Holds:
      return HoldsPart(value, filter.Text);
    case Comparison::HoldsNot:
      return !HoldsPart(value, filter.Text);
    default:
      break;
  }
  if (value.IsNull() || value.IsText()) return false;
  const double number = value.Number();
  switch (filter.How) {
    case Comparison::Less:
      return number < filter.Number;
    case Comparison::LessOrEqual:
      return number <= filter.Number;
    case Comparison::Greater:
      return number > filter.Number;
    default:
      return number >= filter.Number;
  }
}

}  // namespace orrerix
