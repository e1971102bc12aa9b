// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>
#include <string>

namespace orrerix {

// A read-only text of several lines in letters of one width, from which the user can select and
// copy. Used where a drawing list has a control InfoText.
class TextBox : public QPlainTextEdit {
 public:
  TextBox(const char* name, QWidget* parent);

  // A text with lines ending in CR LF, seen from its beginning.
  void Show(const std::string& text);

  // Logical pixels kept free round the text.
  void SetMargin(int pixels) { document()->setDocumentMargin(pixels); }
};

}  // namespace orrerix
