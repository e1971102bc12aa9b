// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetricsF>
#include <map>
#include <string>
#include <utility>

#include "map/grid/text_measure.h"
#include "picture/form_font.h"

namespace orrerix {

// Measures with the fonts that the windows write in. Sizes once taken are remembered: every redraw
// asks for the same ones again.
class QtTextMeasure : public TextMeasure {
 public:
  // `font` gives the face in a size in points: FormFont, or FixedFont for texts in columns.
  explicit QtTextMeasure(QFont (*font)(int points) = FormFont) : font_(font) {}

  int TextWidth(std::string_view text, int fontSize) const override;
  int TextHeight(std::string_view text, int fontSize) const override;

 private:
  const QFontMetricsF& MetricsOf(int fontSize) const;

  QFont (*font_)(int points);
  mutable std::map<int, QFontMetricsF> metrics_;
  mutable std::map<std::pair<int, std::string>, int, std::less<>> widths_;
};

}  // namespace orrerix
