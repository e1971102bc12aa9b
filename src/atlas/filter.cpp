// SPDX-License-Identifier: MIT
#include "atlas/filter.h"

#include <array>
#include <charconv>
#include <utility>

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

Filter BySize(Comparison how, double number) {
  return {{}, how, {}, number};
}

// One end of a range may be missing.
std::optional<std::vector<Filter>> ParseRange(std::string_view first, std::string_view last) {
  std::optional<double> least = NumberOf(first);
  std::optional<double> most = NumberOf(last);
  const bool isWrong = (!least && !first.empty()) || (!most && !last.empty());
  if (isWrong || (!least && !most)) return std::nullopt;
  if (least && most && *least > *most) std::swap(least, most);
  std::vector<Filter> filters;
  if (least) filters.push_back(BySize(Comparison::GreaterOrEqual, *least));
  if (most) filters.push_back(BySize(Comparison::LessOrEqual, *most));
  return filters;
}

std::optional<std::vector<Filter>> ParseNumbers(std::string_view text) {
  constexpr std::string_view kTo = "..";
  if (const std::size_t to = text.find(kTo); to != std::string_view::npos) {
    return ParseRange(Trim(text.substr(0, to)), Trim(text.substr(to + kTo.size())));
  }
  for (const Symbol& symbol : kSymbols) {
    if (!text.starts_with(symbol.Text)) continue;
    const std::string_view digits = Trim(text.substr(symbol.Text.size()));
    const auto number = NumberOf(digits);
    if (!number || symbol.How == Comparison::Holds || symbol.How == Comparison::HoldsNot) {
      return std::nullopt;
    }
    return std::vector{Filter{{}, symbol.How, std::string(digits), *number}};
  }
  const auto number = NumberOf(text);
  if (!number) return std::nullopt;
  return std::vector{Filter{{}, Comparison::Is, std::string(text), *number}};
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

std::optional<std::vector<Filter>> ParseColumnFilter(std::string_view text, bool holdsNumbers) {
  const std::string_view wanted = Trim(text);
  if (wanted.empty()) return std::vector<Filter>();
  if (holdsNumbers) return ParseNumbers(wanted);
  return std::vector{Filter{{}, Comparison::Holds, std::string(wanted), 0}};
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
