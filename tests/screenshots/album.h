// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QWidget>
#include <functional>
#include <utility>

namespace orrerix {

// Where the pictures of the windows go.
class Album {
 public:
  // `format` is the ending of the files, jpg or png.
  Album(const QString& folder, QString format) : folder_(folder), format_(std::move(format)) {
    folder_.mkpath(".");
  }

  // Takes a picture of a window as it is now and saves it under a name.
  void Take(const QString& name, QWidget& window);

  // Called with every window that a picture has been taken of.
  std::function<void(const QString& name, QWidget& window)> OnTaken;

  // Whether all pictures could be written.
  bool Complete() const { return complete_; }

 private:
  QDir folder_;
  QString format_;
  bool complete_ = true;
};

}  // namespace orrerix
