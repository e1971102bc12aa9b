// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollBar>

namespace orrerix {

// A vertical scroll bar that fits the margins which the described lay-outs leave beside their texts
// and lists, so that it takes no room from a line.
class NarrowScrollBar : public QScrollBar {
 public:
  explicit NarrowScrollBar(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {}

  QSize sizeHint() const override {
    constexpr int kWidth = 10;  // pixels
    return {kWidth, QScrollBar::sizeHint().height()};
  }
};

}  // namespace orrerix
