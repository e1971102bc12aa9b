// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace orrerix {

// The program's style: that of Qt that looks alike on every desktop, but with a mark of the
// keyboard focus that cannot be overlooked. It shows once the Tab key was used on a window.
class FocusStyle : public QProxyStyle {
 public:
  FocusStyle();

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace orrerix
