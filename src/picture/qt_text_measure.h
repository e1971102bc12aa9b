// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetricsF>
#include <map>
#include <string>
#include <utility>

#include "map/text_measure.h"

namespace orrerix {

// Measures with the fonts that the windows write in. Sizes once taken are remembered: every redraw
// asks for the same ones again.
class QtTextMeasure : public TextMeasure {
 public:
  int TextWidth(std::string_view text, int fontSize) const override;
  int TextHeight(std::string_view text, int fontSize) const override;

 private:
  const QFontMetricsF& MetricsOf(int fontSize) const;

  mutable std::map<int, QFontMetricsF> metrics_;
  mutable std::map<std::pair<int, std::string>, int, std::less<>> widths_;
};

}  // namespace orrerix
