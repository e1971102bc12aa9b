// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "shell/language_texts.h"

namespace orrerix {

// A text of the program's table for a window.
inline QString CaptionIn(Language language, TextId id) {
  const std::string_view text = TextIn(language, id);
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace orrerix
