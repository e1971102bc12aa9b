// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>
#include <array>

#include "forms/start/memory_frame.h"
#include "forms/start/progress_shape.h"
#include "import/progress.h"
#include "picture/picture_store.h"

namespace orrerix {

// The main form before there is a map. First run: the text, the path box and the button.
// Importing: the text in the left half, the progress picture in the right one, the memory watch
// below.
class ImportScreen : public QWidget {
 public:
  ImportScreen(PictureStore& pictures, const LanguageChoice& choice, QWidget* parent);

  // Lays the controls out on a form of this outer size (twips).
  void LayOut(int formWidth, int formHeight, bool importing);

  void ShowProgress(std::int32_t maximum, std::int32_t value, const ImportProgress& progress);
  void HideProgress();

  QPlainTextEdit& Text1() { return *text1_; }
  QLineEdit& Text2() { return *text2_; }
  QPushButton& Command1() { return *command1_; }
  MemFrame& Memory() { return *memFrame_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void ShowCaptions();
  void MakeText1();
  void MakePathRow();

  PictureStore& pictures_;
  const LanguageChoice& choice_;
  QPlainTextEdit* text1_;
  QLineEdit* text2_;
  QPushButton* command1_;
  std::array<ProgressShape*, 3> progress_;
  MemFrame* memFrame_;
  ProgressBox progressPlace_;  // Progress(0)
};

}  // namespace orrerix
