// SPDX-License-Identifier: MIT
#include "db/values/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>

#include <fmt/format.h>

namespace orrerix {
namespace {

constexpr int kSignificantDigits = 15;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// A positive number as its significant digits and the power of ten of the first one.
struct Decimal {
  std::string Digits;  // up to 15, without trailing zeros
  int Exponent = 0;    // value = 0.d1d2d3... * 10^Exponent
};

Decimal ToDecimal(double magnitude) {
  Decimal decimal;
  if (magnitude == 0 || !std::isfinite(magnitude)) return decimal;
  const std::string text = fmt::format("{:.{}e}", magnitude, kSignificantDigits - 1);
  const std::size_t e = text.find('e');
  for (char c : text.substr(0, e)) {
    if (IsDigit(c)) decimal.Digits.push_back(c);
  }
  decimal.Digits.erase(decimal.Digits.find_last_not_of('0') + 1);
  decimal.Exponent = std::stoi(text.substr(e + 1)) + 1;
  return decimal;
}

// Digits before the decimal point, "0" if there are none.
std::string WholeDigits(const Decimal& decimal) {
  if (decimal.Exponent <= 0) return "0";
  std::string whole = decimal.Digits.substr(0, static_cast<std::size_t>(decimal.Exponent));
  whole.resize(static_cast<std::size_t>(decimal.Exponent), '0');
  return whole;
}

// Digits after the decimal point.
std::string FractionDigits(const Decimal& decimal) {
  if (decimal.Digits.empty()) return {};
  if (decimal.Exponent < 0) {
    return std::string(static_cast<std::size_t>(-decimal.Exponent), '0') + decimal.Digits;
  }
  const auto whole = static_cast<std::size_t>(decimal.Exponent);
  return decimal.Digits.size() > whole ? decimal.Digits.substr(whole) : std::string();
}

// Adds 1 to the last of a row of digits; the row may grow by one.
void Increment(std::string& digits) {
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
    if (*digit != '9') {
      ++*digit;
      return;
    }
    *digit = '0';
  }
  digits.insert(digits.begin(), '1');
}

// Whether a number of this text, unsigned and not 0, is smaller than 1.
bool IsTiny(std::string_view number) {
  const std::size_t e = std::min(number.find_first_of("eE"), number.size());
  const std::string_view mantissa = number.substr(0, e);
  std::string_view exponent = number.substr(std::min(e + 1, number.size()));
  if (exponent.starts_with('+')) exponent.remove_prefix(1);
  std::ptrdiff_t power = 0;
  const auto [end, error] =
      std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
  if (error == std::errc::result_out_of_range) return exponent.starts_with('-');
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const std::size_t first = std::min(mantissa.find_first_of("123456789"), mantissa.size());
  return power < static_cast<std::ptrdiff_t>(first) - static_cast<std::ptrdiff_t>(point);
}

}  // namespace

double Val(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size() && (text[at] == ' ' || text[at] == '\t')) ++at;
  if (at == text.size()) return 0;
  const bool negative = text[at] == '-';
  if (negative || text[at] == '+') ++at;
  const std::size_t start = at;
  std::size_t digits = 0;
  std::int64_t whole = 0;
  for (; at < text.size() && IsDigit(text[at]); ++at, ++digits) {
    if (digits < kSignificantDigits) whole = whole * 10 + (text[at] - '0');
  }
  const char next = at < text.size() ? text[at] : ' ';
  const bool isWhole = next != '.' && next != 'e' && next != 'E';
  if (isWhole && digits <= kSignificantDigits) {
    const auto number = static_cast<double>(whole);
    return negative ? -number : number;
  }
  if (at < text.size() && text[at] == '.') {
    ++at;
    while (at < text.size() && IsDigit(text[at])) ++at, ++digits;
  }
  if (digits == 0) return 0;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    if (exponent < text.size() && IsDigit(text[exponent])) {
      while (exponent < text.size() && IsDigit(text[exponent])) ++exponent;
      at = exponent;
    }
  }
  double number = 0;
  const auto [end, error] = std::from_chars(text.data() + start, text.data() + at, number);
  if (error == std::errc::result_out_of_range) {
    // from_chars leaves the number untouched both for too large and for too small ones.
    number = IsTiny(text.substr(start, at - start)) ? 0 : std::numeric_limits<double>::infinity();
  }
  return negative ? -number : number;
}

std::string NumberText(std::int64_t number) {
  return std::to_string(number);
}

std::string NumberText(double number) {
  const Decimal decimal = ToDecimal(std::abs(number));
  const std::string fraction = FractionDigits(decimal);
  std::string text = number < 0 && !decimal.Digits.empty() ? "-" : "";
  text += WholeDigits(decimal);
  if (!fraction.empty()) text += "." + fraction;
  return text;
}

double RoundToEven(double number) {
  return std::nearbyint(number);
}

std::optional<std::int16_t> ToInteger(double number) {
  const double whole = RoundToEven(number);
  if (!(whole >= -32768.0 && whole <= 32767.0)) return std::nullopt;
  return static_cast<std::int16_t>(whole);
}

std::optional<std::int32_t> ToLong(double number) {
  const double whole = RoundToEven(number);
  if (!(whole >= -2147483648.0 && whole <= 2147483647.0)) return std::nullopt;
  return static_cast<std::int32_t>(whole);
}

std::string FormatWhole(double number) {
  return FormatGrouped(number, 0, {"", "."});
}

std::string FormatGrouped(double number, int decimals, const NumberSeparators& separators) {
  const Decimal decimal = ToDecimal(std::abs(number));
  const auto places = static_cast<std::size_t>(decimals);
  std::string fraction = FractionDigits(decimal);
  const bool roundsUp = fraction.size() > places && fraction[places] >= '5';
  fraction.resize(places, '0');
  std::string digits = WholeDigits(decimal) + fraction;
  if (roundsUp) Increment(digits);

  std::string whole = digits.substr(0, digits.size() - places);
  for (std::size_t at = whole.size(); at > 3;) {
    at -= 3;
    whole.insert(at, separators.Thousands);
  }
  const bool isZero = digits.find_first_not_of('0') == std::string::npos;
  std::string text = number < 0 && !isZero ? "-" : "";
  text += whole;
  if (decimals > 0) text += separators.Decimal + digits.substr(digits.size() - places);
  return text;
}

}  // namespace orrerix
