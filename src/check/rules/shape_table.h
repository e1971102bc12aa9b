// SPDX-License-Identifier: MIT
// How many values of which type the lines of a key have, and in what range.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "check/rules/selector.h"

namespace orrerix::check {

// The types of a line's values: 'N' is a number, 'T' a text.
struct Shape {
  SectionSelector Sections;
  std::string_view Key;  // in lower case
  std::string_view Must;
  std::string_view Optional;  // may be left out, from the end
  bool RepeatsLast = false;   // the last type may follow again and again
};

// The first row that matches counts.
std::span<const Shape> Shapes();

// What a value must be, if it is a number.
struct Range {
  enum class Limit { NotNegative, Positive, Reputation };

  SectionSelector Sections;
  std::string_view Key;  // in lower case
  Limit Wanted = Limit::NotNegative;
  std::size_t ValueNumber = 1;
  bool NeedsNumberShape = false;  // only where the key's shape is one number
};

std::span<const Range> Ranges();

}  // namespace orrerix::check
