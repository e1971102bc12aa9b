// SPDX-License-Identifier: MIT
// The one table of all that the program says, in its languages.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include <fmt/format.h>

#include "shell/text_id.h"

namespace orrerix {

// A text in all languages, in their order. A further language is one more column.
using TextColumns = std::array<std::string_view, kLanguages>;

struct LanguageText {
  TextId Id;
  TextColumns In;
};

// The texts that the language file keeps, in the order of their numbers.
std::span<const LanguageText> StoredTexts();

// What stands for a stored text that a language lacks.
inline constexpr std::string_view kMissingText = "?????";

// A text of the table. A language without texts has kMissingText for those that the language file
// keeps, and is English for all others.
std::string_view TextIn(Language language, TextId id);

// The same with values in the places of its "{}".
template <typename... Values>
std::string FormatIn(Language language, TextId id, const Values&... values) {
  return fmt::format(fmt::runtime(TextIn(language, id)), values...);
}

}  // namespace orrerix
