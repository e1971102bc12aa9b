// SPDX-License-Identifier: MIT
#include "album.h"

#include <QPixmap>

#include <fmt/format.h>

namespace orrerix {

void Album::Take(const QString& name, QWidget& window) {
  const QString file = folder_.filePath(name + ".png");
  constexpr int smallest = 0;  // of "quality": the best compression
  if (!window.grab().save(file, "PNG", smallest)) {
    fmt::print(stderr, "cannot write {}\n", file.toStdString());
    complete_ = false;
  }
  if (OnTaken) OnTaken(name, window);
}

}  // namespace orrerix
