// SPDX-License-Identifier: MIT
// Numbers read from texts and written into them, always with "." as the decimal point.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orrerix {

// The number at the start of a text: blanks and tabs are skipped, then an optional sign, decimal
// digits with an optional ".", an optional exponent. The rest is ignored; no digits give 0.
double Val(std::string_view text);

// An integer in plain decimal, a real with up to 15 significant digits, no trailing zeros, never
// an exponent and a 0 before the ".".
std::string NumberText(std::int64_t number);
std::string NumberText(double number);

// Rounds to the nearest whole number, ties to the even one.
double RoundToEven(double number);

// RoundToEven as a 16-bit or 32-bit integer; nothing if the result leaves the type's range or the
// number is none.
std::optional<std::int16_t> ToInteger(double number);
std::optional<std::int32_t> ToLong(double number);

// The format "0": whole number, halves away from zero.
std::string FormatWhole(double number);

// The separators of a format with groups of thousands.
struct NumberSeparators {
  std::string Thousands = ",";
  std::string Decimal = ".";
};

// The formats "##,##0" (decimals 0) and "##,##0.00" (decimals 2), rounded halves away from zero
// from the number's decimal text of 15 significant digits. A figure that rounds to zero has no
// sign.
std::string FormatGrouped(double number, int decimals, const NumberSeparators& separators = {});

}  // namespace orrerix
