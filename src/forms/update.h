// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>
#include <QWidget>
#include <functional>
#include <string>

namespace orrerix {

// The notice that a later version is there.
class Update : public QWidget {
 public:
  explicit Update(const std::string& toolTip);

  // A click on its label; the window was closed by the user.
  std::function<void()> OnLabel1Click;
  std::function<void()> OnQueryUnload;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QPushButton* label1_;
};

}  // namespace orrerix
