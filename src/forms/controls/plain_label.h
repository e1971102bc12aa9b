// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace orrerix {

// A label that shows its text literally, even if it looks like markup: texts come from the net and
// from mods.
class PlainLabel : public QLabel {
 public:
  explicit PlainLabel(QWidget* parent) : PlainLabel(QString(), parent) {}
  PlainLabel(const QString& text, QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setText(text);
  }
};

}  // namespace orrerix
