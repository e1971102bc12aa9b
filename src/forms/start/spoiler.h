// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <functional>

#include "online/spoiler_warning.h"
#include "picture/picture_store.h"
#include "picture/qt_text_measure.h"

namespace orrerix {

// The warning before the first map, over the whole screen. Closing it goes on to the map as OK
// does; only Cancel is rejection.
class Spoiler : public QDialog {
 public:
  Spoiler(const SpoilerTexts& texts, PictureStore& pictures, Language language);

  // The check box was set or cleared.
  std::function<void(bool)> OnWarningOff;

  // A click anywhere in the text.
  std::function<void()> OnTextClick;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPushButton* AddButton(const char* name, const std::string& caption, const QString& toolTip);
  void LayOut();
  int FittingFont(const QString& text, int width) const;
  void FitText(int width);

  PictureStore& pictures_;
  QtTextMeasure formMeasure_;
  QtTextMeasure courierMeasure_{CourierFont};
  QLabel* headLine_;
  QPlainTextEdit* text_;
  QCheckBox* warningOff_;
  QPushButton* ok_;
  QPushButton* cancel_;
};

}  // namespace orrerix
