// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace orrerix {

// A label of one line whose letters are dark all round, for colours that are hard to read on each
// other.
class OutlinedLabel : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace orrerix
