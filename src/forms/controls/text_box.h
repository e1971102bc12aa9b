// SPDX-License-Identifier: MIT
// A text to read.
#pragma once

#include <QPlainTextEdit>
#include <string>

#include "map/control_id.h"

namespace orrerix {

// A read-only text of several lines in letters of one width, from which the user can select and
// copy. Shows the text of a box or of a station window.
class TextBox : public QPlainTextEdit {
 public:
  TextBox(ControlId id, QWidget* parent);

  // A text with lines ending in CR LF, seen from its beginning.
  void Show(const std::string& text);

  // Logical pixels kept free round the text.
  void SetMargin(int pixels) { document()->setDocumentMargin(pixels); }
};

}  // namespace orrerix
