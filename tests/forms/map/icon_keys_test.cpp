// SPDX-License-Identifier: MIT
// The icons of the map by the keyboard and for screen readers.
#include "forms/map/icon_keys.h"

#include <QAccessible>

#include <gmock/gmock.h>

#include "map_controller_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class IconKeysTest : public MapControllerFixture {
 protected:
  IconKeysTest() {
    form.activateWindow();
    map.Frame().setFocus();
    Zoom({8, 10, 8, 10});
    PassEvents();
  }

  // The object of the icon that has the focus.
  std::string Focused() {
    for (const Control& control : map.Drawing().Controls) {
      if (control.Id != ControlId::MapIcon) continue;
      const auto* button = form.findChild<QAbstractButton*>(
          QString::fromStdString(ObjectName(ControlId::MapIcon, *control.Index)));
      if (button != nullptr && button->hasFocus()) return IconText(control);
    }
    return "";
  }
  QAbstractButton& Button(int index) {
    return Find<QAbstractButton>(form, ControlId::MapIcon, index);
  }
  void Press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
};

TEST_F(IconKeysTest, TabLeadsFromTheMapToItsFirstIconAndOnToTheTools) {
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focused(), "li01_nw_base");

  Press(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(),
            ObjectName(ControlId::Tool, 0));
}

TEST_F(IconKeysTest, ArrowsGoFromIconToIconAndTabComesBackToTheLast) {
  Press(Qt::Key_Tab);

  Press(Qt::Key_Right);
  EXPECT_EQ(Focused(), "li01_ne_base");
  Press(Qt::Key_Down);
  EXPECT_EQ(Focused(), "li01_se_base");
  Press(Qt::Key_Right);
  EXPECT_EQ(Focused(), "li01_se_base");
  Press(Qt::Key_Left);
  EXPECT_EQ(Focused(), "li01_sw_base");
  Press(Qt::Key_Tab);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
  EXPECT_EQ(Focused(), "li01_sw_base");
  Press(Qt::Key_Home);
  EXPECT_EQ(Focused(), "li01_nw_base");
}

TEST_F(IconKeysTest, TheIconWithTheFocusShowsItsBox) {
  Press(Qt::Key_Tab);
  EXPECT_TRUE(play.Box().IsHoverBox());
  Press(Qt::Key_Right);
  EXPECT_THAT(Shown(ControlId::BoxShape), SizeIs(1));

  map.Frame().setFocus();

  EXPECT_FALSE(play.Box().IsHoverBox());
}

TEST_F(IconKeysTest, EnterAndSpaceOpenTheStation) {
  Press(Qt::Key_Tab);

  Press(Qt::Key_Return);
  Press(Qt::Key_Space);

  EXPECT_THAT(stations, ElementsAre(testing::Pair("li01_nw_base", testing::_),
                                    testing::Pair("li01_nw_base", testing::_)));
}

TEST_F(IconKeysTest, EscapeGoesBackWithTheFocusOnTheMap) {
  Press(Qt::Key_Tab);

  Press(Qt::Key_Escape);

  EXPECT_EQ(Visible(), ZoomRectangle{});
  EXPECT_TRUE(map.Frame().hasFocus());
}

// The map draws what lies beside a system's square, too: nobody sees it.
TEST_F(IconKeysTest, WhatLiesBesideTheMapIsNoStop) {
  Dock("li01_off_base", 0.5, -0.2);
  UnloadObjects(map.State());
  DrawMap();

  Press(Qt::Key_Tab);

  EXPECT_EQ(Focused(), "li01_nw_base");
}

TEST_F(IconKeysTest, TheFocusIsSeen) {
  Press(Qt::Key_Tab);

  const QImage image = QApplication::focusWidget()->grab().toImage();

  EXPECT_EQ(image.pixelColor(2, image.height() / 2), QColor(0x80, 0xFF, 0xFF));
}

TEST_F(IconKeysTest, TheMouseGoesThroughThem) {
  Move(At("li01_nw_base"));

  EXPECT_TRUE(play.Box().IsHoverBox());
}

TEST_F(IconKeysTest, WhereTheWholeGridIsShownThereAreNone) {
  Key(Qt::Key_Backspace);

  for (const QAbstractButton* button : form.findChildren<QAbstractButton*>()) {
    EXPECT_FALSE(button->objectName().startsWith("Image1") && button->isVisible());
  }
}

TEST_F(IconKeysTest, AScreenReaderIsToldTheNameOfEachObject) {
  for (const Control& control : map.Drawing().Controls) {
    if (control.Id != ControlId::MapIcon) continue;
    QAccessibleInterface* known = QAccessible::queryAccessibleInterface(&Button(*control.Index));
    ASSERT_NE(known, nullptr);
    EXPECT_EQ(known->text(QAccessible::Name), "Base");
    EXPECT_EQ(known->text(QAccessible::Description), "Objects on the map");
    EXPECT_EQ(known->role(), QAccessible::Button);
  }
}

TEST_F(IconKeysTest, AGateIsNamedInOneLine) {
  Add("JumpNodes", {{"nickname", "gate"},
                    {"nickname2", "back"},
                    {"MapX1", 8},
                    {"MapY1", 10},
                    {"PosX1", 0.5},
                    {"PosY1", 0.5},
                    {"MapX2", 3},
                    {"MapY2", 4},
                    {"PosX2", 0.5},
                    {"PosY2", 0.5},
                    {"Type", 1}});
  UnloadObjects(map.State());
  DrawMap();

  int gates = 0;
  for (const Control& control : map.Drawing().Controls) {
    if (!std::holds_alternative<JumpEnd>(control.Subject)) continue;
    const QAbstractButton* button = form.findChild<QAbstractButton*>(
        QString::fromStdString(ObjectName(ControlId::MapIcon, *control.Index)));
    if (button == nullptr || button->isHidden()) continue;
    ++gates;
    EXPECT_TRUE(button->accessibleName().contains("Jump"));
    EXPECT_FALSE(button->accessibleName().contains('\n'));
  }
  EXPECT_EQ(gates, 1);
}

}  // namespace
}  // namespace orrerix
