// SPDX-License-Identifier: MIT
// Arithmetic on figures that may be missing: what is made of a missing figure is missing, too.
#pragma once

#include <optional>
#include <string_view>

#include "db/values/value.h"

namespace orrerix {

using Figure = std::optional<double>;

Figure Sum(Figure a, Figure b);
Figure Difference(Figure a, Figure b);
Figure Product(Figure a, Figure b);

// Missing where the divisor is 0.
Figure Quotient(Figure a, Figure b);

// A figure of which 0 means that there is none.
Figure UnlessZero(Figure figure);

// The number at the start of a text; missing where none is.
Figure ParseFigure(std::string_view text);

// A figure as a table shows it, rounded to 4 decimals: a whole number where it is one, Null where
// it is missing or beyond all numbers.
Value FigureValue(Figure figure);

// A text as a table shows it: Null where it is empty.
Value TextValueOf(std::string_view text);

// A true or false of the game's files: "true" in whatever case.
bool IsTrue(std::string_view text);

}  // namespace orrerix
