// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace orrerix {

// A button whose font is chosen by its width alone: a caption that is higher than the button is
// painted smaller instead of being cut off. Its font stays as it was set.
class FittedButton : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace orrerix
