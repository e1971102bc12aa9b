// SPDX-License-Identifier: MIT
// Sizes of texts in twips.
#pragma once

#include <string_view>

namespace orrerix {

// The window measures with its real fonts.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;

  // Width and height of one line of text in a font of this size (points).
  virtual int TextWidth(std::string_view text, int fontSize) const = 0;
  virtual int TextHeight(std::string_view text, int fontSize) const = 0;
};

// The fixed rule of tests and the command line: a character is 12 twips a point wide, a line 24
// twips a point high; a TAB counts as 8 characters.
class FixedTextMeasure : public TextMeasure {
 public:
  int TextWidth(std::string_view text, int fontSize) const override;
  int TextHeight(std::string_view text, int fontSize) const override;
};

}  // namespace orrerix
