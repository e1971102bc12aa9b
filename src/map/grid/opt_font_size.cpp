// SPDX-License-Identifier: MIT
#include "map/grid/opt_font_size.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "db/values/number_text.h"
#include "map/grid/numeric.h"

namespace orrerix {
namespace {

constexpr int kLargestSize = 32767;

// Half a step, rounded down, but at least 1.
int HalfStep(int step) {
  return std::max(1, static_cast<int>(std::floor(step / 2.0)));
}

// Walks in steps until a step of one down ends at a size that fits.
template <typename Fits>
int SearchSize(const Fits& fits, int size, int firstStep) {
  bool up = fits(size + 1);
  if (!up && fits(size)) return size;
  int step = up ? firstStep : -firstStep;
  while (true) {
    if (size + step > kLargestSize) return size;  // a text without width fits any size
    size = std::max(1, size + step);
    if (fits(size)) {
      if (step == -1) return size;
      step = up ? std::abs(step) : HalfStep(step);
      up = true;
    } else {
      step = up ? -HalfStep(step) : -std::abs(step);
      up = false;
    }
    if (size == 1) return 1;
  }
}

}  // namespace

int OptFontSize(std::string_view text, const TextMeasure& measure, int size, int maxWidth) {
  const auto fits = [&](int points) { return measure.TextWidth(text, points) <= maxWidth; };
  return SearchSize(fits, size, HalfStep(size));
}

int OptFontSize(std::string_view text, const TextMeasure& measure, int size, int maxWidth,
                int maxHeight) {
  const auto fits = [&](int points) {
    return measure.TextWidth(text, points) <= maxWidth &&
           measure.TextHeight(text, points) <= maxHeight;
  };
  return SearchSize(fits, size, std::max(1, static_cast<int>(RoundToEven(size / 2.0))));
}

}  // namespace orrerix
