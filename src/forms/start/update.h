// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>
#include <QWidget>
#include <functional>
#include <string>

#include "picture/picture_store.h"
#include "shell/text_id.h"

namespace orrerix {

// The notice that a later version is there.
class Update : public QWidget {
 public:
  Update(const std::string& toolTip, PictureStore& pictures, Language language);

  // A click on its label; the window was closed by the user.
  std::function<void()> OnNoticeClicked;
  std::function<void()> OnClosed;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  PictureStore& pictures_;
  QPushButton* notice_;
};

}  // namespace orrerix
