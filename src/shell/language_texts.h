// SPDX-License-Identifier: MIT
// All captions and tool tips that change with the language.
#pragma once

#include <span>
#include <string_view>

namespace orrerix {

// One text in the three languages, numbered 0 (English), 1 (German) and 2 (French).
struct LanguageText {
  int ID;
  std::string_view English;
  std::string_view German;
  std::string_view French;
};

// The texts 0 to 28 in the order of their numbers.
std::span<const LanguageText> LanguageTexts();

// What stands for a text that a language lacks.
inline constexpr std::string_view kMissingText = "?????";

// The text of a number in a language; kMissingText if there is none.
std::string_view TextIn(int language, int id);

}  // namespace orrerix
