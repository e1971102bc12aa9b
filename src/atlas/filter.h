// SPDX-License-Identifier: MIT
// Conditions on the rows of a table, as a player writes them: "price<=5000", "name~laser".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "db/values/value.h"

namespace orrerix {

enum class Comparison { Is, IsNot, Holds, HoldsNot, Less, LessOrEqual, Greater, GreaterOrEqual };

// A condition before its column is looked up.
struct Filter {
  std::string Column;
  Comparison How = Comparison::Is;
  std::string Text;
  double Number = 0;  // of the four that compare by size
};

// Splits COLUMN, one of = != ~ !~ < <= > >= and a text. Nothing if one of these is missing, or if
// no number follows where sizes are compared. Blanks around column and text do not count.
std::optional<Filter> ParseFilter(std::string_view text);

// What a player writes below the head of a column. Of texts it is a part that they hold. Of numbers
// it is a number or =3, >100, >=100, <5, <=5, or a range 10..50 with both its ends, either of which
// may be missing or the larger one. All conditions must hold; blanks do not count, and an empty
// text is no condition. Nothing for a text that is none of these where the column holds numbers.
std::optional<std::vector<Filter>> ParseColumnFilter(std::string_view text, bool holdsNumbers);

// Whether a value meets a condition. Texts compare without regard to case, whole (=) or by a part
// (~); an empty text is (=) Null and empty. By size only numbers compare: Null and texts are
// neither less nor greater.
bool Meets(const Value& value, const Filter& filter);

}  // namespace orrerix
