// SPDX-License-Identifier: MIT
// Numbers in values.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orrerix::check {

// A number that is all of a text: a sign or none, digits with at most one point, an exponent or
// none. One too large for its type is infinite.
std::optional<double> ParseNumber(std::string_view text);

bool IsNumber(std::string_view text);

// Whether a text is several numbers with nothing but blanks and tabs between them.
bool IsNumbersWithoutCommas(std::string_view text);

// The number of a game text, 32 bits; nothing if the text is no whole number.
std::optional<std::uint32_t> ParseTextNumber(std::string_view text);

}  // namespace orrerix::check
