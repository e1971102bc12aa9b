// SPDX-License-Identifier: MIT
// Titles and heads of the tables of the atlas in the language of the program. The tables themselves
// speak English, as the command line does; each caption is kept apart from its unit.
#pragma once

#include <QString>
#include <optional>
#include <string>

#include "shell/text_id.h"

namespace orrerix {

// A title, or a head with its unit in brackets: "Range (m)". Nothing where a language that is not
// English lacks one of both.
std::optional<std::string> TranslatedCaption(Language language, const std::string& english);

// The same; the English text where there is no other.
QString AtlasCaption(Language language, const std::string& english);

}  // namespace orrerix
