// SPDX-License-Identifier: MIT
#include "album.h"

#include <QPixmap>

#include <fmt/format.h>

namespace orrerix {

void Album::Take(const QString& name, QWidget& window) {
  const QString file = folder_.filePath(name + '.' + format_);
  constexpr int jpegQuality = 88;
  if (!window.grab().save(file, nullptr, format_ == "jpg" ? jpegQuality : -1)) {
    fmt::print(stderr, "cannot write {}\n", file.toStdString());
    complete_ = false;
  }
  if (OnTaken) OnTaken(name, window);
}

}  // namespace orrerix
