// SPDX-License-Identifier: MIT
#include "forms/map/sysmap_frame.h"

#include <QMouseEvent>
#include <QTest>

#include "forms/form_fixture.h"

namespace orrerix {
namespace {

// Remembers what the mouse did.
class Listener : public MapMouse {
 public:
  std::vector<MapPointer> Down, Moved, Up;
  void MouseDown(const MapPointer& pointer) override { Down.push_back(pointer); }
  void MouseMove(const MapPointer& pointer) override { Moved.push_back(pointer); }
  void MouseUp(const MapPointer& pointer) override { Up.push_back(pointer); }
};

// Remembers what the keyboard did.
class KeyListener : public MapKeys {
 public:
  std::vector<MapKey> Keys;
  void KeyDown(MapKey key) override { Keys.push_back(key); }
};

class SysmapFrameTest : public FormFixture {
 protected:
  SysmapFrameTest() {
    MapDrawing drawing;
    drawing.Frame = {0, 0, 6000, 3000};
    drawing.Controls = {MakePicture(ControlId::MapIcon, 5, {300, 300, 600, 600}, "Jumpgate")};
    scene.Show(drawing);
    frame.resize(400, 200);
    frame.SetMouse(&listener);
    frame.show();
  }

  MapScene scene{pictures};
  SysmapFrame frame{scene, nullptr};
  Listener listener;
};

TEST_F(SysmapFrameTest, PressAndReleaseAreToldInTwips) {
  QTest::mousePress(frame.viewport(), Qt::LeftButton, {}, {100, 50});
  QTest::mouseRelease(frame.viewport(), Qt::LeftButton, {}, {200, 150});

  ASSERT_EQ(listener.Down.size(), 1U);
  EXPECT_EQ(listener.Down[0].X, 1500);
  EXPECT_EQ(listener.Down[0].Y, 750);
  EXPECT_EQ(listener.Down[0].Button, PointerButton::Left);
  EXPECT_EQ(listener.Down[0].Under, nullptr);
  ASSERT_EQ(listener.Up.size(), 1U);
  EXPECT_EQ(listener.Up[0].X, 3000);
}

TEST_F(SysmapFrameTest, TheRightButtonIsToldApart) {
  QTest::mouseClick(frame.viewport(), Qt::RightButton, {}, {100, 50});

  ASSERT_EQ(listener.Up.size(), 1U);
  EXPECT_EQ(listener.Up[0].Button, PointerButton::Right);
}

TEST_F(SysmapFrameTest, TheControlUnderTheMouseIsNamed) {
  QTest::mouseMove(frame.viewport(), {40, 40});
  PassEvents();

  ASSERT_FALSE(listener.Moved.empty());
  const MapPointer& pointer = listener.Moved.back();
  ASSERT_NE(pointer.Under, nullptr);
  EXPECT_EQ(pointer.Under->Id, ControlId::MapIcon);
  EXPECT_EQ(pointer.Under->Index, 5);
}

TEST_F(SysmapFrameTest, TheSecondPressOfADoubleClickCounts) {
  QTest::mouseDClick(frame.viewport(), Qt::LeftButton, {}, {100, 50});

  // The first press and both releases are events of their own.
  EXPECT_EQ(listener.Down.size(), 1U);
}

TEST_F(SysmapFrameTest, AReleaseOutsideTheFrameIsToldWhereItIs) {
  QTest::mousePress(frame.viewport(), Qt::LeftButton, {}, {100, 50});
  QTest::mouseRelease(frame.viewport(), Qt::LeftButton, {}, {-20, 300});

  ASSERT_EQ(listener.Up.size(), 1U);
  EXPECT_EQ(listener.Up[0].X, -300);
  EXPECT_EQ(listener.Up[0].Y, 4500);
}

TEST_F(SysmapFrameTest, TwoButtonsAtOnceAreNeitherAndTheFirstToGoSaysSo) {
  QMouseEvent move(QEvent::MouseMove, QPointF(9, 9), QPointF(9, 9), Qt::NoButton,
                   Qt::LeftButton | Qt::RightButton, {});
  QApplication::sendEvent(frame.viewport(), &move);
  QMouseEvent release(QEvent::MouseButtonRelease, QPointF(9, 9), QPointF(9, 9), Qt::RightButton,
                      Qt::LeftButton, {});
  QApplication::sendEvent(frame.viewport(), &release);

  EXPECT_EQ(listener.Moved.back().Button, PointerButton::None);
  EXPECT_EQ(listener.Up.back().Button, PointerButton::Right);
  EXPECT_TRUE(listener.Up.back().OthersHeld);
}

TEST_F(SysmapFrameTest, FractionsOfAPixelAreTold) {
  QMouseEvent move(QEvent::MouseMove, QPointF(10.5, 20.25), QPointF(10.5, 20.25), Qt::NoButton,
                   Qt::NoButton, {});
  QApplication::sendEvent(frame.viewport(), &move);

  EXPECT_EQ(listener.Moved.back().X, 157.5);
  EXPECT_EQ(listener.Moved.back().Y, 303.75);
}

TEST_F(SysmapFrameTest, KeysAreToldByWhatTheyMean) {
  KeyListener keys;
  frame.SetKeys(&keys);
  for (const auto key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Return,
                         Qt::Key_Enter, Qt::Key_Backspace, Qt::Key_Escape, Qt::Key_A}) {
    QTest::keyClick(&frame, key);
  }
  frame.SetKeys(nullptr);

  EXPECT_EQ(keys.Keys,
            (std::vector{MapKey::Left, MapKey::Right, MapKey::Up, MapKey::Down, MapKey::ZoomIn,
                         MapKey::ZoomIn, MapKey::GoBack, MapKey::GoBack}));
}

}  // namespace
}  // namespace orrerix
