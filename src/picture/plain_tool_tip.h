// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>

namespace orrerix {

// A tool tip that shows a text literally, even if it looks like markup: texts come from the net and
// from mods. Line feeds stay.
inline QString PlainToolTip(const QString& text) {
  if (text.isEmpty()) return {};
  return "<span>" + text.toHtmlEscaped().replace('\n', "<br>") + "</span>";
}
inline QString PlainToolTip(const std::string& text) {
  return PlainToolTip(QString::fromStdString(text));
}

}  // namespace orrerix
