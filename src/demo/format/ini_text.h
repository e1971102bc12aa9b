// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace orrerix::demo {

// Composes the text of one ini file of the game: sections of "key = value" lines with CR LF line
// ends and an empty line before each section. Everything given is UTF-8; the file is Windows-1252.
class IniText {
 public:
  IniText& Section(std::string_view name);
  IniText& Line(std::string_view key, std::string_view value);
  IniText& Line(std::string_view key, int value);
  // A real with up to `digits` decimals and no trailing zeros; a whole one gets no point.
  IniText& Line(std::string_view key, double value, int digits = 3);
  // A line without "=", or any other text, as it stands.
  IniText& Raw(std::string_view line);
  IniText& Comment(std::string_view text);

  // The finished file in Windows-1252.
  std::string Bytes() const;

 private:
  std::string text_;
};

// A real number as the game's files write it, independent of the locale: 0.5, 1.25, 3.
std::string Decimal(double value, int digits = 3);

}  // namespace orrerix::demo
