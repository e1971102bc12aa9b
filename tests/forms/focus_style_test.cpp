// SPDX-License-Identifier: MIT
#include "forms/focus_style.h"

#include <QCheckBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "form_fixture.h"

namespace orrerix {
namespace {

class FocusStyleTest : public ::testing::Test {
 protected:
  FocusStyleTest() {
    for (QWidget* child : std::initializer_list<QWidget*>{&button, &box}) {
      child->setStyle(&style);
      layout.addWidget(child);
    }
    form.show();
    form.activateWindow();
    PassEvents();
  }

  static bool ShowsMark(QWidget& widget) {
    const QImage image = widget.grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) == QColor(0x80, 0xFF, 0xFF)) return true;
      }
    }
    return false;
  }

  FocusStyle style;
  QWidget form;
  QVBoxLayout layout{&form};
  QPushButton button{"Go"};
  QCheckBox box{"On"};
};

TEST_F(FocusStyleTest, TheKeyboardFocusIsMarkedWhereverItIs) {
  form.setAttribute(Qt::WA_KeyboardFocusChange);

  button.setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(ShowsMark(button));
  EXPECT_FALSE(ShowsMark(box));
  box.setFocus(Qt::TabFocusReason);
  EXPECT_FALSE(ShowsMark(button));
  EXPECT_TRUE(ShowsMark(box));
}

TEST_F(FocusStyleTest, WhoeverUsesTheMouseSeesNoMark) {
  form.setAttribute(Qt::WA_KeyboardFocusChange, false);
  button.setFocus(Qt::MouseFocusReason);

  EXPECT_FALSE(ShowsMark(button));
}

}  // namespace
}  // namespace orrerix
