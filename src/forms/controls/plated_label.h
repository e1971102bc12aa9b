// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace orrerix {

// A label of one line whose letters, at its left, stand on a dark plate that fades behind them: for
// colours that are hard to read on each other.
class PlatedLabel : public QLabel {
 public:
  using QLabel::QLabel;

  static constexpr QColor kPlate{0, 0, 24};

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace orrerix
