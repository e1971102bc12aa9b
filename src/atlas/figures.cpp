// SPDX-License-Identifier: MIT
#include "atlas/figures.h"

#include <cmath>
#include <cstdint>
#include <string>

#include "db/values/number_text.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr double kSteps = 10'000;      // 4 decimals
constexpr double kMostRounded = 1e11;  // larger figures have no such decimals
constexpr double kMostWhole = 9.0e15;  // below 2^53

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace

Figure Sum(Figure a, Figure b) {
  return a && b ? Figure(*a + *b) : std::nullopt;
}

Figure Difference(Figure a, Figure b) {
  return a && b ? Figure(*a - *b) : std::nullopt;
}

Figure Product(Figure a, Figure b) {
  return a && b ? Figure(*a * *b) : std::nullopt;
}

Figure Quotient(Figure a, Figure b) {
  return a && b && *b != 0 ? Figure(*a / *b) : std::nullopt;
}

Figure UnlessZero(Figure figure) {
  return figure && *figure != 0 ? figure : std::nullopt;
}

Figure ParseFigure(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t");
  if (start == std::string_view::npos) return std::nullopt;
  std::string_view digits = text.substr(start);
  if (digits.front() == '-' || digits.front() == '+') digits.remove_prefix(1);
  if (!digits.empty() && digits.front() == '.') digits.remove_prefix(1);
  if (digits.empty() || !IsDigit(digits.front())) return std::nullopt;
  return Val(text);
}

Value FigureValue(Figure figure) {
  if (!figure || !std::isfinite(*figure)) return {};
  double number = *figure;
  if (std::abs(number) < kMostRounded) number = std::round(number * kSteps) / kSteps;
  const bool isWhole = std::abs(number) < kMostWhole && number == std::floor(number);
  return isWhole ? Value(static_cast<std::int64_t>(number)) : Value(number);
}

Value TextValueOf(std::string_view text) {
  return text.empty() ? Value() : Value(text);
}

bool IsTrue(std::string_view text) {
  return EqualIgnoringCase(Trim(text), "true");
}

}  // namespace orrerix
