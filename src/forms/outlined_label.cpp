// SPDX-License-Identifier: MIT
#include "forms/outlined_label.h"

#include <QPainter>

namespace orrerix {

void OutlinedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int flags = static_cast<int>(alignment()) | Qt::TextSingleLine;
  painter.setPen(Qt::black);
  for (const int x : {-1, 0, 1}) {
    for (const int y : {-1, 0, 1}) painter.drawText(rect().translated(x, y), flags, text());
  }
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(rect(), flags, text());
}

}  // namespace orrerix
