// SPDX-License-Identifier: MIT
#include "forms/controls/plated_label.h"

#include <QPainter>

namespace orrerix {

void PlatedLabel::paintEvent(QPaintEvent*) {
  constexpr int margin = 4;
  constexpr int fade = 24;
  QPainter painter(this);
  const int flags = static_cast<int>(alignment()) | Qt::TextSingleLine;
  const QRect letters = painter.boundingRect(rect(), flags, text());
  const QRect plate = letters.adjusted(-margin, 0, margin, 0);
  painter.fillRect(plate, kPlate);
  const QRect end(plate.right() + 1, plate.top(), fade, plate.height());
  QLinearGradient shade(end.topLeft(), end.topRight());
  shade.setColorAt(0, kPlate);
  shade.setColorAt(1, Qt::transparent);
  painter.fillRect(end, shade);
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(rect(), flags, text());
}

}  // namespace orrerix
