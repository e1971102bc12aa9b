// SPDX-License-Identifier: MIT
#include "picture/map_scene.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include "picture/control_items.h"

namespace orrerix {
namespace {

// A frame of 100 by 100 pixels.
class MapSceneTest : public ::testing::Test {
 protected:
  MapSceneTest() { drawing.Frame = {0, 0, 1500, 1500}; }

  static Control Rectangle(Box place, Color back) { return MakeFrame("Frame", 0, place, back); }

  static Control Line(float x1, float y1, float x2, float y2, Color color) {
    Control line;
    line.Kind = ControlKind::Line;
    line.Name = "Line1";
    line.Ends = {x1, y1, x2, y2};
    line.BorderColor = color;
    return line;
  }

  QImage Rendered() {
    scene.Show(drawing);
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    scene.render(&painter, image.rect(), scene.sceneRect());
    return image;
  }

  PictureStore pictures;
  MapScene scene{pictures};
  MapDrawing drawing;
};

TEST_F(MapSceneTest, FifteenTwipsAreOnePixel) {
  drawing.Controls = {Rectangle({150, 300, 600, 450}, {0x0000FF})};

  const QImage image = Rendered();

  EXPECT_EQ(scene.sceneRect(), QRectF(0, 0, 100, 100));
  EXPECT_EQ(image.pixelColor(10, 20), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(49, 49), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(9, 20), QColor(Qt::black));
  EXPECT_EQ(image.pixelColor(50, 49), QColor(Qt::black));
}

TEST_F(MapSceneTest, ColoursAreBlueGreenRed) {
  drawing.FrameColor = {0xFF8040};

  EXPECT_EQ(Rendered().pixelColor(50, 50), QColor(0x40, 0x80, 0xFF));
}

TEST_F(MapSceneTest, LaterControlsStandInFront) {
  drawing.Controls = {Rectangle({0, 0, 750, 750}, {0x0000FF}),
                      Rectangle({300, 300, 750, 750}, {0xFF0000})};

  const QImage image = Rendered();

  EXPECT_EQ(image.pixelColor(30, 30), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(10, 10), QColor(Qt::red));
}

TEST_F(MapSceneTest, AFrameClipsWhatIsInIt) {
  Control frame = Rectangle({150, 150, 300, 300}, {0x0000FF});
  frame.Children = {Rectangle({150, 150, 900, 900}, {0x00FF00})};
  drawing.Controls = {frame};

  const QImage image = Rendered();

  EXPECT_EQ(image.pixelColor(25, 25), QColor(Qt::green));
  EXPECT_EQ(image.pixelColor(35, 35), QColor(Qt::black));
}

TEST_F(MapSceneTest, LinesAreOnePixelWideWhateverTheScale) {
  drawing.Controls = {Line(0, 750, 1500, 750, {0xFFFFFF})};
  scene.Show(drawing);
  QImage image(300, 300, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter painter(&image);

  scene.render(&painter, image.rect(), scene.sceneRect());
  painter.end();

  int bright = 0;
  for (int y = 0; y < image.height(); ++y) bright += image.pixelColor(150, y) != Qt::black;
  EXPECT_EQ(bright, 1);
}

TEST_F(MapSceneTest, OnAFineScreenTheyAreAsWideAsOnACoarseOne) {
  drawing.Controls = {Line(0, 750, 1500, 750, {0xFFFFFF})};
  scene.Show(drawing);
  QImage image(200, 200, QImage::Format_RGB32);
  image.setDevicePixelRatio(2);
  image.fill(Qt::black);
  QPainter painter(&image);

  scene.render(&painter, QRectF(0, 0, 100, 100), scene.sceneRect());
  painter.end();

  int bright = 0;
  for (int y = 0; y < image.height(); ++y) bright += image.pixelColor(100, y) != QColor(Qt::black);
  EXPECT_EQ(bright, 2);
}

TEST_F(MapSceneTest, ADottedLineHasGaps) {
  Control line = Line(0, 750, 1500, 750, {0x808080});
  line.Style = LineStyle::Dotted;
  drawing.Controls = {line};

  const QImage image = Rendered();

  int dots = 0;
  for (int x = 0; x < 100; ++x) dots += image.pixelColor(x, 50) != Qt::black;
  EXPECT_GT(dots, 10);
  EXPECT_LT(dots, 60);
}

TEST_F(MapSceneTest, TheTopmostControlIsUnderTheMouseAndLinesAreNot) {
  drawing.Controls = {Rectangle({0, 0, 750, 750}, {}),
                      MakePicture("Image1", 3, {0, 0, 300, 300}, "Jumpgate"),
                      Line(0, 0, 1500, 1500, {0xFFFFFF})};
  scene.Show(drawing);

  const Control* icon = scene.ControlAt({10, 10});
  ASSERT_NE(icon, nullptr);
  EXPECT_EQ(icon->Name, "Image1");
  EXPECT_EQ(icon->Index, 3);
  EXPECT_EQ(scene.ControlAt({40, 40})->Name, "Frame");
  EXPECT_EQ(scene.ControlAt({80, 80}), nullptr);
}

TEST_F(MapSceneTest, ControlsInsideAFrameAreFoundThere) {
  Control panel = Rectangle({750, 0, 750, 1500}, {});
  panel.Children = {MakePicture("StationSearch", 2, {150, 150, 150, 150}, "tools/print.svg")};
  drawing.Controls = {panel};
  scene.Show(drawing);

  EXPECT_EQ(scene.ControlAt({65, 15})->Name, "StationSearch");
}

TEST_F(MapSceneTest, ANewListReplacesTheOneBefore) {
  drawing.Controls = {Rectangle({0, 0, 1500, 1500}, {0x0000FF})};
  scene.Show(drawing);
  drawing.Controls.clear();

  EXPECT_EQ(Rendered().pixelColor(50, 50), QColor(Qt::black));
  EXPECT_TRUE(scene.items().isEmpty());
}

TEST_F(MapSceneTest, LabelsWriteInTheirColourOnTheirGround) {
  Control label = MakeLabel("WRTP", 0, {0, 0, 1500, 300}, "HHHHHHHH");
  label.ForeColor = Color{0x0000FF};
  label.BackColor = Color{0x400000};
  drawing.Controls = {label};

  const QImage image = Rendered();

  EXPECT_EQ(image.pixelColor(1, 18), QColor(0, 0, 0x40));
  bool written = false;
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 100; ++x) written |= image.pixelColor(x, y) == QColor(Qt::red);
  }
  EXPECT_TRUE(written);
}

TEST_F(MapSceneTest, NamesOfSystemsAreTransparent) {
  drawing.FrameColor = {0xFFFFFF};
  Control label = MakeLabel("SysmapLabel", 0, {0, 0, 1500, 1500}, "X");
  label.BackColor = Color{0x400000};
  drawing.Controls = {label};

  EXPECT_EQ(Rendered().pixelColor(5, 90), QColor(Qt::white));
}

}  // namespace
}  // namespace orrerix
