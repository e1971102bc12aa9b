// SPDX-License-Identifier: MIT
#include "forms/focus_style.h"

#include <QPainter>
#include <QStyleOption>

namespace orrerix {

FocusStyle::FocusStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void FocusStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  if (element != PE_FrameFocusRect) {
    return QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
  if (!option->state.testFlag(State_KeyboardFocusChange)) return;
  constexpr QRgb mark = 0xFF80FFFF;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing, false);
  painter->setBrush(Qt::NoBrush);
  painter->setPen(QPen(QColor(mark), 2));
  painter->drawRect(option->rect.adjusted(1, 1, -1, -1));
  painter->restore();
}

}  // namespace orrerix
