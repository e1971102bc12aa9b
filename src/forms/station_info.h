// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include "picture/picture_store.h"

namespace orrerix {

// The station window of one object of the map.
class StationInfo : public QWidget {
 public:
  // `picture` is the name of the object's icon picture.
  StationInfo(PictureStore& pictures, std::string nickname, std::string picture);

  const std::string& Nick() const { return nick_; }
  const std::string& Picture() const { return picture_; }

  // Called when the user closes it, with nothing of it on the stack behind that.
  std::function<void()> OnClosed;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Place();

  std::string nick_;
  std::string picture_;
};

}  // namespace orrerix
