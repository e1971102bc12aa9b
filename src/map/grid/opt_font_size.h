// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "map/grid/text_measure.h"

namespace orrerix {

// The largest font size (points, at least 1) at which a text is no wider than `maxWidth` twips,
// sought in halving steps from `size`. A text that does not fit at size 1 gives 1. A search that
// goes down from a large size may end at 1 although a size between fits: begin with a small one.
int OptFontSize(std::string_view text, const TextMeasure& measure, int size, int maxWidth);

// The same for a text that must fit a height (twips), too.
int OptFontSize(std::string_view text, const TextMeasure& measure, int size, int maxWidth,
                int maxHeight);

}  // namespace orrerix
