// SPDX-License-Identifier: MIT
#include "forms/focus_style.h"

#include <QPainter>
#include <QStyleOption>

namespace orrerix {
namespace {

void DrawMark(const QStyleOption& option, QPainter& painter) {
  if (!option.state.testFlag(QStyle::State_KeyboardFocusChange)) return;
  constexpr QRgb mark = 0xFF80FFFF;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(mark), 2));
  painter.drawRect(option.rect.adjusted(1, 1, -1, -1));
  painter.restore();
}

}  // namespace

FocusStyle::FocusStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void FocusStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  if (element == PE_FrameFocusRect) return DrawMark(*option, *painter);
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

// The base style gives buttons a little lighter edge and no more.
void FocusStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  if (element == CE_PushButton && option->state.testFlag(State_HasFocus)) {
    DrawMark(*option, *painter);
  }
}

}  // namespace orrerix
