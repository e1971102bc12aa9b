// SPDX-License-Identifier: MIT
#include "forms/sysmap_frame.h"

#include <QTest>

#include "form_fixture.h"

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

class SysmapFrameTest : public FormFixture {
 protected:
  SysmapFrameTest() {
    MapDrawing drawing;
    drawing.Frame = {0, 0, 6000, 3000};
    drawing.Controls = {MakePicture("Image1", 5, {300, 300, 600, 600}, "Jumpgate")};
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
  EXPECT_EQ(pointer.Under->Name, "Image1");
  EXPECT_EQ(pointer.Under->Index, 5);
}

TEST_F(SysmapFrameTest, TheSecondPressOfADoubleClickCounts) {
  QTest::mouseDClick(frame.viewport(), Qt::LeftButton, {}, {100, 50});

  // The first press and both releases are events of their own.
  EXPECT_EQ(listener.Down.size(), 1U);
}

}  // namespace
}  // namespace orrerix
