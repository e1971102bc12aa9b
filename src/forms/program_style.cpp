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
constexpr int kMiddleLightness = 128;

void SetLetters(QPalette& colors, const QColor& letters, const QColor& disabled) {
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::BrightText, QPalette::ToolTipText}) {
    colors.setColor(role, letters);
  }
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    colors.setColor(QPalette::Disabled, role, disabled);
  }
}

}  // namespace

QPalette DarkPanels() {
  QPalette colors(QColor(0xFF1C2C60), QColor(0xFF0A1230));
  SetLetters(colors, QColor(0xFFD8E4FF), QColor(0xFF60709C));
  colors.setColor(QPalette::Base, QColor(0xFF060A22));
  colors.setColor(QPalette::AlternateBase, QColor(0xFF0C1438));
  colors.setColor(QPalette::ToolTipBase, QColor(0xFF101C4C));
  colors.setColor(QPalette::Highlight, QColor(0xFF3050A0));
  colors.setColor(QPalette::HighlightedText, Qt::white);
  colors.setColor(QPalette::PlaceholderText, QColor(0xFF7088B8));
  return colors;
}

QPalette LightPanels() {
  QPalette colors(QColor(0xFFE2E8F2), QColor(0xFFF3F5FA));
  SetLetters(colors, QColor(0xFF14204A), QColor(0xFF7A849C));
  colors.setColor(QPalette::Base, Qt::white);
  colors.setColor(QPalette::AlternateBase, QColor(0xFFEDF1F9));
  colors.setColor(QPalette::ToolTipBase, Qt::white);
  colors.setColor(QPalette::Highlight, QColor(0xFF2A55B0));
  colors.setColor(QPalette::HighlightedText, Qt::white);
  colors.setColor(QPalette::PlaceholderText, QColor(0xFF5A6684));
  return colors;
}

bool IsLight(const QPalette& colors) {
  return colors.color(QPalette::Base).lightness() > kMiddleLightness;
}

void SetProgramStyle() {
  QApplication::setStyle(new FocusStyle);
  const QPalette colors = DarkPanels();
  QApplication::setPalette(colors);
  QToolTip::setPalette(colors);
  QApplication::setFont(FormFont(kFont));
}

}  // namespace orrerix
