// SPDX-License-Identifier: MIT
#include "picture/qt_text_measure.h"

#include <cmath>

#include "picture/twips.h"

namespace orrerix {
namespace {

// A text never stands in less than it measures.
int WholeTwipsUp(double pixels) {
  return static_cast<int>(std::ceil(Twips(pixels)));
}

}  // namespace

const QFontMetricsF& QtTextMeasure::MetricsOf(int fontSize) const {
  const auto found = metrics_.find(fontSize);
  if (found != metrics_.end()) return found->second;
  return metrics_.emplace(fontSize, QFontMetricsF(font_(fontSize))).first->second;
}

int QtTextMeasure::TextWidth(std::string_view text, int fontSize) const {
  const auto [entry, isNew] = widths_.try_emplace({fontSize, std::string(text)}, 0);
  if (isNew) {
    entry->second = WholeTwipsUp(
        MetricsOf(fontSize).horizontalAdvance(QString::fromUtf8(text.data(), text.size())));
  }
  return entry->second;
}

int QtTextMeasure::TextHeight(std::string_view, int fontSize) const {
  return WholeTwipsUp(MetricsOf(fontSize).height());
}

}  // namespace orrerix
