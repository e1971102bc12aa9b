// SPDX-License-Identifier: MIT
#include "forms/controls/text_box.h"

#include <QTextOption>

#include "forms/controls/control_name.h"
#include "forms/controls/narrow_scroll_bar.h"
#include "picture/form_font.h"

namespace orrerix {
namespace {

constexpr int kTextBoxFont = 9;
constexpr QRgb kTextBoxBackground = 0xFF000040;
constexpr QRgb kLetters = 0xFFCCCC00;

}  // namespace

TextBox::TextBox(ControlId id, QWidget* parent) : QPlainTextEdit(parent) {
  setObjectName(NameOf(id));
  setFont(FixedFont(kTextBoxFont));
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(true);
  setWordWrapMode(QTextOption::WordWrap);
  setUndoRedoEnabled(false);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBar(new NarrowScrollBar(this));
  document()->setDocumentMargin(0);
  setTabStopDistance(8 * QFontMetricsF(font()).horizontalAdvance(' '));
  QPalette colors = palette();
  colors.setColor(QPalette::Base, QColor(kTextBoxBackground));
  colors.setColor(QPalette::Text, QColor(kLetters));
  setPalette(colors);
}

void TextBox::Show(const std::string& text) {
  setPlainText(QString::fromStdString(text).remove('\r'));
}

}  // namespace orrerix
