// SPDX-License-Identifier: MIT
#include "forms/plated_label.h"

#include <QPainter>

namespace orrerix {

void PlatedLabel::paintEvent(QPaintEvent*) {
  constexpr int margin = 4;
  QPainter painter(this);
  const int flags = static_cast<int>(alignment()) | Qt::TextSingleLine;
  const QRect letters = painter.boundingRect(rect(), flags, text());
  painter.fillRect(letters.adjusted(-margin, 0, margin, 0), Plate);
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(rect(), flags, text());
}

}  // namespace orrerix
