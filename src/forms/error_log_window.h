// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QPlainTextEdit>
#include <QWidget>
#include <functional>
#include <string>

#include "shell/error_log.h"

namespace orrerix {

// Shows the two logs: the remarks on the game's files and, from the first one on, the program's own
// failures below them. New texts appear when events are processed, all together: a line takes no
// longer the more there are.
class ErrorLogWindow : public QWidget, public ErrorLogView {
 public:
  // `importing` says whether an import runs: closing then only hides the window.
  ErrorLogWindow(ErrorLog& log, std::function<bool()> importing, const LanguageChoice& choice);
  ~ErrorLogWindow() override;

  void ShowWindow() override;
  void TextsChanged() override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  // A log's box, and how much of its text it shows.
  struct Log {
    QPlainTextEdit* Box;
    std::size_t Shown = 0;  // bytes
  };

  void ShowCaptions();
  QLabel* AddHeading(int index, QColor letters);
  Log AddLog(const char* name, QColor letters, QPlainTextEdit::LineWrapMode wrap);
  void ShowTexts();
  static void ShowText(Log& log, const std::string& text);
  static void PlaceLog(Log& log, const QRect& place);
  void LayOut();

  ErrorLog& log_;
  std::function<bool()> importing_;
  const LanguageChoice& choice_;
  QLabel* dataHeading_;
  Log dataLog_;
  QLabel* programHeading_;
  Log programLog_;
  int loads_ = 0;             // of the log whose texts are shown
  bool showsQueued_ = false;  // the new texts, from the event loop
};

}  // namespace orrerix
