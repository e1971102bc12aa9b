// SPDX-License-Identifier: MIT
// What the main form shows before there is a map.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>
#include <array>

#include "forms/start/memory_frame.h"
#include "import/progress.h"
#include "map/drawing_list.h"
#include "picture/picture_store.h"

namespace orrerix {

// One of the three rectangles of the progress picture.
class ProgressShape : public QWidget {
 public:
  ProgressShape(Color border, Color fill, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor border_;
  QColor fill_;
};

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

  QPlainTextEdit& ImportText() { return *importText_; }
  QLineEdit& GameFolderEdit() { return *gameFolderEdit_; }
  QPushButton& StartButton() { return *startButton_; }
  MemFrame& Memory() { return *memFrame_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void ShowCaptions();
  void MakeImportText();
  void MakePathRow();

  PictureStore& pictures_;
  const LanguageChoice& choice_;
  QPlainTextEdit* importText_;
  QLineEdit* gameFolderEdit_;
  QPushButton* startButton_;
  std::array<ProgressShape*, 3> progress_;
  MemFrame* memFrame_;
  WholeTwipRect progressPlace_;  // Progress(0)
};

}  // namespace orrerix
