// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "map/grid/text_measure.h"

namespace orrerix {

// What ends a line of the texts that boxes and windows show.
inline constexpr std::string_view kLineEnd = "\r\n";

// Breaks a text into lines narrower than `width` twips at blanks. Line ends (CR LF) of the text
// stay; every line of the result ends in one, and whole lines keep a blank before it. A word that
// is too wide stands on a line of its own.
std::string WrapText(std::string_view text, const TextMeasure& measure, int fontSize, int width);

}  // namespace orrerix
