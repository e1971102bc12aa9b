// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "map/text_measure.h"

namespace orrerix {

// The largest font size (points, at least 1) at which a text is no wider than `maxWidth` twips,
// sought in halving steps from `size`. A text that does not fit at size 1 gives 1.
int OptFontSize(std::string_view text, const TextMeasure& measure, int size, int maxWidth);

}  // namespace orrerix
