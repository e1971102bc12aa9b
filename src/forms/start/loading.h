// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QWidget>
#include <functional>

#include "picture/picture_store.h"
#include "shell/text_id.h"

namespace orrerix {

// The form that a start begins with, and that stands last while the program closes.
class Loading : public QWidget {
 public:
  Loading(PictureStore& pictures, const LanguageChoice& choice);

  // Called once, when the form is shown and first has the focus.
  std::function<void()> OnGotFocus;

  // "Closing..." on screen, while `yield` lets the events through.
  void ShowClosing(const std::function<void()>& yield);

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* AddLabel(const char* name, const QString& text, int points, int top);
  void GotFocus();

  PictureStore& pictures_;
  const LanguageChoice& choice_;
  bool started_ = false;
};

}  // namespace orrerix
