// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QWidget>
#include <functional>

namespace orrerix {

// Where the pictures of the windows go.
class Album {
 public:
  explicit Album(const QString& folder) : folder_(folder) { folder_.mkpath("."); }

  // Takes a picture of a window as it is now and saves it as "name.png".
  void Take(const QString& name, QWidget& window);

  // Called with every window that a picture has been taken of.
  std::function<void(const QString& name, QWidget& window)> OnTaken;

  // Whether all pictures could be written.
  bool Complete() const { return complete_; }

 private:
  QDir folder_;
  bool complete_ = true;
};

}  // namespace orrerix
