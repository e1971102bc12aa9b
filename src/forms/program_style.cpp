// SPDX-License-Identifier: MIT
#include "forms/program_style.h"

#include <QApplication>
#include <QPalette>
#include <QToolTip>

#include "forms/focus_style.h"
#include "picture/form_font.h"

namespace orrerix {
namespace {

constexpr int kFont = 9;

QPalette ProgramColors() {
  QPalette colors(QColor(0xFF1C2C60), QColor(0xFF0A1230));
  const QColor letters(0xFFD8E4FF);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::BrightText, QPalette::ToolTipText}) {
    colors.setColor(role, letters);
  }
  colors.setColor(QPalette::Base, QColor(0xFF060A22));
  colors.setColor(QPalette::AlternateBase, QColor(0xFF0C1438));
  colors.setColor(QPalette::ToolTipBase, QColor(0xFF101C4C));
  colors.setColor(QPalette::Highlight, QColor(0xFF3050A0));
  colors.setColor(QPalette::HighlightedText, Qt::white);
  colors.setColor(QPalette::PlaceholderText, QColor(0xFF7088B8));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    colors.setColor(QPalette::Disabled, role, QColor(0xFF60709C));
  }
  return colors;
}

}  // namespace

void SetProgramStyle() {
  QApplication::setStyle(new FocusStyle);
  const QPalette colors = ProgramColors();
  QApplication::setPalette(colors);
  QToolTip::setPalette(colors);
  QApplication::setFont(FormFont(kFont));
}

}  // namespace orrerix
