// SPDX-License-Identifier: MIT
#include "check/model/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "check/files/text_bytes.h"

namespace orrerix::check {
namespace {

// Takes the digits at the front of a text; gives how many there were.
std::size_t TakeDigits(std::string_view& text) {
  std::size_t digits = 0;
  while (digits < text.size() && text[digits] >= '0' && text[digits] <= '9') ++digits;
  text.remove_prefix(digits);
  return digits;
}

void TakeSign(std::string_view& text) {
  if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
}

}  // namespace

bool IsNumber(std::string_view text) {
  TakeSign(text);
  std::size_t digits = TakeDigits(text);
  if (text.starts_with('.')) {
    text.remove_prefix(1);
    digits += TakeDigits(text);
  }
  if (digits == 0) return false;
  if (text.empty()) return true;
  if (text.front() != 'e' && text.front() != 'E') return false;
  text.remove_prefix(1);
  TakeSign(text);
  return TakeDigits(text) > 0 && text.empty();
}

std::optional<double> ParseNumber(std::string_view text) {
  if (!IsNumber(text)) return std::nullopt;
  if (text.starts_with('+')) text.remove_prefix(1);
  double number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (result.ec != std::errc::result_out_of_range) return number;
  const bool isTiny =
      text.find("e-") != std::string_view::npos || text.find("E-") != std::string_view::npos;
  if (isTiny) return 0;
  const double infinity = std::numeric_limits<double>::infinity();
  return text.starts_with('-') ? -infinity : infinity;
}

bool IsNumbersWithoutCommas(std::string_view text) {
  int numbers = 0;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of(" \t");
    if (!IsNumber(text.substr(0, end))) return false;
    ++numbers;
    if (end == std::string_view::npos) break;
    text = TrimBlanks(text.substr(end));
  }
  return numbers > 1;
}

std::optional<std::uint32_t> ParseTextNumber(std::string_view text) {
  const auto number = ParseNumber(text);
  if (!number || std::floor(*number) != *number) return std::nullopt;
  if (*number > std::numeric_limits<std::uint32_t>::max()) {
    return std::numeric_limits<std::uint32_t>::max();
  }
  if (*number < std::numeric_limits<std::int32_t>::min()) return std::nullopt;
  return static_cast<std::uint32_t>(static_cast<std::int64_t>(*number));
}

}  // namespace orrerix::check
