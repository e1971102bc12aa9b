// SPDX-License-Identifier: MIT
#include "map/grid/text_measure.h"

#include <algorithm>

#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr int kTwipsWide = 12;
constexpr int kTwipsHigh = 24;
constexpr int kTabWidth = 8;

}  // namespace

int FixedTextMeasure::TextWidth(std::string_view text, int fontSize) const {
  const auto tabs = static_cast<int>(std::count(text.begin(), text.end(), '\t'));
  return (static_cast<int>(Len(text)) + tabs * (kTabWidth - 1)) * kTwipsWide * fontSize;
}

int FixedTextMeasure::TextHeight(std::string_view, int fontSize) const {
  return kTwipsHigh * fontSize;
}

}  // namespace orrerix
