// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>

namespace orrerix {

// A tool tip that is shown as it stands, whatever it looks like: texts come from the net and from
// mods.
inline QString PlainToolTip(const std::string& text) {
  if (text.empty()) return {};
  return "<span>" + QString::fromStdString(text).toHtmlEscaped() + "</span>";
}

}  // namespace orrerix
