// SPDX-License-Identifier: MIT
#pragma once

#include "db/values/number_text.h"
#include "shell/language.h"

namespace orrerix {

// The language in use: its texts, and the separators of its formatted numbers.
struct Wording {
  TextSource& Texts;
  NumberSeparators Separators;
};

}  // namespace orrerix
