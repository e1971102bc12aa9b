// SPDX-License-Identifier: MIT
#include "forms/controls/fitted_button.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

namespace orrerix {

void FittedButton::paintEvent(QPaintEvent*) {
  constexpr int kEdge = 4;  // pixels kept free above and below the caption
  const int room = std::max(1, height() - 2 * kEdge);
  const double shrink = std::min(1.0, static_cast<double>(room) / fontMetrics().height());
  QStyleOptionButton option;
  initStyleOption(&option);
  QStylePainter painter(this);
  option.text.clear();
  painter.drawControl(QStyle::CE_PushButton, option);
  painter.translate(rect().center());
  painter.scale(shrink, shrink);
  painter.setFont(font());
  painter.setPen(palette().color(QPalette::ButtonText));
  const double halfWidth = width() / shrink / 2;
  const double halfHeight = height() / shrink / 2;
  painter.drawText(QRectF(-halfWidth, -halfHeight, 2 * halfWidth, 2 * halfHeight),
                   Qt::AlignCenter | Qt::TextSingleLine | Qt::TextShowMnemonic, text());
}

}  // namespace orrerix
