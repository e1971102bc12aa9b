// SPDX-License-Identifier: MIT
#include "picture/map_scene.h"

#include <QImage>
#include <QPainter>
#include <algorithm>

#include <gtest/gtest.h>

#include "picture/control_items.h"

namespace orrerix {
namespace {

// A frame of 100 by 100 pixels.
class MapSceneTest : public ::testing::Test {
 protected:
  MapSceneTest() { drawing.Frame = {0, 0, 1500, 1500}; }

  static Control Rectangle(TwipRect place, Color back) {
    return MakeFrame(ControlId::PanelFrame, 0, place, back);
  }

  static Control Line(float x1, float y1, float x2, float y2, Color color,
                      LineKind kind = LineKind::JumpGate) {
    Control line = MakeLine(ControlId::MapLine, 1, kind, color);
    line.Ends = {x1, y1, x2, y2};
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

// Lines stand in front of names, which would be hard to read behind them.
class LinesAndNamesTest : public MapSceneTest {
 protected:
  LinesAndNamesTest() {
    Control name = MakeLabel(ControlId::SystemLabel, 1, {0, 300, 1500, 375}, "MMMM");
    name.FontSize = 12;
    name.ForeColor = Color{0x000000};
    drawing.Controls = {name};
  }

  // The brightest point of a row of pixels.
  static int Brightest(const QImage& image, int y, int left, int right) {
    int most = 0;
    for (int x = left; x < right; ++x) most = std::max(most, image.pixelColor(x, y).green());
    return most;
  }
};

TEST_F(LinesAndNamesTest, ALinePalesWhereItCrossesTheLettersOfAName) {
  drawing.Controls.push_back(Line(750, 0, 750, 1500, {0xFFFFFF}));

  const QImage image = Rendered();

  EXPECT_EQ(Brightest(image, 5, 48, 52), 255);
  EXPECT_NEAR(Brightest(image, 30, 48, 52), 77, 2);  // 0.3 of 255
  EXPECT_EQ(Brightest(image, 90, 48, 52), 255);
}

TEST_F(LinesAndNamesTest, BesideTheLettersALineIsWhole) {
  drawing.Controls.push_back(Line(60, 0, 60, 1500, {0xFFFFFF}));

  EXPECT_EQ(Brightest(Rendered(), 30, 0, 10), 255);
}

TEST_F(LinesAndNamesTest, ALineThatEndsAmongLettersPalesUpToItsEnd) {
  drawing.Controls.push_back(Line(750, 0, 750, 480, {0xFFFFFF}));

  const QImage image = Rendered();

  EXPECT_EQ(Brightest(image, 5, 48, 52), 255);
  EXPECT_NEAR(Brightest(image, 30, 48, 52), 77, 2);
  EXPECT_EQ(Brightest(image, 90, 48, 52), 0);
}

TEST_F(LinesAndNamesTest, ALineThatComesInALaterDrawingPalesToo) {
  Rendered();
  drawing.Controls.push_back(Line(750, 0, 750, 1500, {0xFFFFFF}));

  EXPECT_NEAR(Brightest(Rendered(), 30, 48, 52), 77, 2);
}

TEST_F(LinesAndNamesTest, ALineIsWholeAgainWhenTheNameIsGone) {
  const Control line = Line(750, 0, 750, 1500, {0xFFFFFF});
  drawing.Controls.push_back(line);
  Rendered();
  drawing.Controls = {line};

  EXPECT_EQ(Brightest(Rendered(), 30, 48, 52), 255);
}

TEST_F(MapSceneTest, GreyDotsHaveADarkGroundOnABrightOne) {
  drawing.FrameColor = {0xFFFFFF};
  Control dots = Line(750, 0, 750, 1500, {0x808080}, LineKind::JumpHole);
  dots.Style = LineStyle::Dotted;
  drawing.Controls = {dots};

  const QImage image = Rendered();

  for (int y = 10; y < 90; ++y) {
    EXPECT_LT(image.pixelColor(49, y).green(), 200) << y;
    EXPECT_LT(image.pixelColor(51, y).green(), 200) << y;
  }
}

TEST_F(MapSceneTest, OnPaperLinesAreDrawnAsTheyAre) {
  drawing.PrintMode = true;
  drawing.FrameColor = {0xFFFFFF};
  Control dots = Line(750, 0, 750, 1500, {0x808080}, LineKind::JumpHole);
  dots.Style = LineStyle::Dotted;
  drawing.Controls = {Line(0, 307, 1500, 307, {0xFF0000}, LineKind::TradeLane), dots};

  const QImage image = Rendered();

  EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(20, 19), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(20, 21), QColor(Qt::white));
  for (int y = 30; y < 90; ++y) {
    EXPECT_EQ(image.pixelColor(48, y), QColor(Qt::white)) << y;
    EXPECT_EQ(image.pixelColor(52, y), QColor(Qt::white)) << y;
  }
}

TEST_F(MapSceneTest, ALineOfTheScreenIsPaintedAnewOnPaper) {
  drawing.Controls = {Line(0, 307, 1500, 307, {0xFF0000}, LineKind::TradeLane)};
  Rendered();
  drawing.PrintMode = true;

  EXPECT_EQ(Rendered().pixelColor(20, 21), QColor(Qt::black));
}

TEST_F(MapSceneTest, ALineAlongThePixelsIsSharpInItsColour) {
  // Both lie between two rows or columns of pixels.
  drawing.Controls = {Line(150, 300, 1350, 300, {0x00FFFF}), Line(600, 450, 600, 1350, {0x00FFFF})};

  const QImage image = Rendered();

  const auto isYellow = [&](int x, int y) { return image.pixelColor(x, y) == QColor(Qt::yellow); };
  EXPECT_TRUE(isYellow(50, 19) != isYellow(50, 20));
  EXPECT_TRUE(isYellow(39, 60) != isYellow(40, 60));
  for (int n = 0; n < 100; ++n) {
    EXPECT_TRUE(isYellow(50, n) || image.pixelColor(50, n) == QColor(Qt::black)) << n;
    EXPECT_TRUE(isYellow(n, 60) || image.pixelColor(n, 60) == QColor(Qt::black)) << n;
  }
}

TEST_F(MapSceneTest, ABorderedPictureHasALineOfOnePixelInsideItsPlace) {
  Control icon = MakePicture(ControlId::MapIcon, 1, {300, 450, 150, 150}, "Planet1");
  icon.Bordered = true;
  icon.BorderColor = {0x503828};
  drawing.FrameColor = {0xFFFFFF};
  drawing.Controls = {icon};

  const QImage image = Rendered();

  // Pixels 20 to 29 across, 30 to 39 down.
  const QColor border(0x28, 0x38, 0x50);
  for (int n = 0; n < 10; ++n) {
    EXPECT_EQ(image.pixelColor(20 + n, 30), border);
    EXPECT_EQ(image.pixelColor(20 + n, 39), border);
    EXPECT_EQ(image.pixelColor(20, 30 + n), border);
    EXPECT_EQ(image.pixelColor(29, 30 + n), border);
  }
  EXPECT_NE(image.pixelColor(25, 35), border);
  EXPECT_EQ(image.pixelColor(19, 35), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(30, 35), QColor(Qt::white));
}

TEST_F(MapSceneTest, AFrameThatDoesNotClipShowsWhatReachesOverItsEdge) {
  Control frame = Rectangle({150, 750, 900, 300}, {0x0000FF});
  frame.ClipsChildren = false;
  frame.Children = {Rectangle({0, -300, 300, 450}, {0x00FF00})};
  drawing.Controls = {frame};

  EXPECT_EQ(Rendered().pixelColor(15, 35), QColor(Qt::green));
}

TEST_F(MapSceneTest, TheCaptionOfAFrameIsNotPainted) {
  Control frame = Rectangle({150, 150, 900, 900}, {0x0000FF});
  frame.Caption = "Infobox";
  frame.ForeColor = Color{0xFFFFFF};
  drawing.Controls = {frame};
  const QImage image = Rendered();

  for (int y = 10; y < 70; ++y) {
    for (int x = 10; x < 70; ++x) ASSERT_EQ(image.pixelColor(x, y), QColor(Qt::red));
  }
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

// Blue alone is a seventh as bright as white; its edges are seen instead.
TEST_F(MapSceneTest, ATradeLaneIsBlueBetweenLightEdges) {
  drawing.Controls = {Line(0, 757, 1500, 757, {0xFF0000}, LineKind::TradeLane)};

  const QImage image = Rendered();

  EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::blue));
  EXPECT_GT(image.pixelColor(50, 49).green(), 100);
  EXPECT_GT(image.pixelColor(50, 51).green(), 100);
  EXPECT_EQ(image.pixelColor(50, 48), QColor(Qt::black));
  EXPECT_EQ(image.pixelColor(50, 52), QColor(Qt::black));
}

TEST_F(MapSceneTest, LinesOfJumpsHaveNoEdges) {
  drawing.Controls = {Line(0, 757, 1500, 757, {0xFFFFFF})};

  const QImage image = Rendered();

  EXPECT_EQ(image.pixelColor(50, 49), QColor(Qt::black));
  EXPECT_EQ(image.pixelColor(50, 51), QColor(Qt::black));
}

TEST_F(MapSceneTest, ADottedLineHasGaps) {
  Control line = Line(0, 750, 1500, 750, {0x808080}, LineKind::JumpHole);
  line.Style = LineStyle::Dotted;
  drawing.Controls = {line};

  const QImage image = Rendered();

  int dots = 0;
  for (int x = 0; x < 100; ++x) dots += image.pixelColor(x, 50).red() > 64;
  EXPECT_GT(dots, 10);
  EXPECT_LT(dots, 60);
}

TEST_F(MapSceneTest, TheTopmostControlIsUnderTheMouseAndLinesAreNot) {
  drawing.Controls = {Rectangle({0, 0, 750, 750}, {}),
                      MakePicture(ControlId::MapIcon, 3, {0, 0, 300, 300}, "Jumpgate"),
                      Line(0, 0, 1500, 1500, {0xFFFFFF})};
  scene.Show(drawing);

  const Control* icon = scene.ControlAt({10, 10});
  ASSERT_NE(icon, nullptr);
  EXPECT_EQ(icon->Id, ControlId::MapIcon);
  EXPECT_EQ(icon->Index, 3);
  EXPECT_EQ(scene.ControlAt({40, 40})->Id, ControlId::PanelFrame);
  EXPECT_EQ(scene.ControlAt({80, 80}), nullptr);
}

TEST_F(MapSceneTest, ControlsInsideAFrameAreFoundThere) {
  Control panel = Rectangle({750, 0, 750, 1500}, {});
  panel.Children = {MakePicture(ControlId::Tool, 2, {150, 150, 150, 150}, "tools/print.svg")};
  drawing.Controls = {panel};
  scene.Show(drawing);

  EXPECT_EQ(scene.ControlAt({65, 15})->Id, ControlId::Tool);
}

TEST_F(MapSceneTest, WhatANewListBeginsWithAsBeforeKeepsItsItems) {
  drawing.Controls = {Rectangle({0, 0, 750, 1500}, {0x0000FF}),
                      Rectangle({750, 0, 750, 1500}, {0x00FF00})};
  scene.Show(drawing);
  for (QGraphicsItem* item : scene.items()) item->setData(0, "of before");

  drawing.Controls[1].BackColor = Color{0xFF0000};
  scene.Show(drawing);

  EXPECT_EQ(scene.items({10, 10}).front()->data(0), "of before");
  EXPECT_FALSE(scene.items({60, 10}).front()->data(0).isValid());
  EXPECT_EQ(scene.ControlAt({10, 10}), scene.Find(ControlId::PanelFrame, 0));
}

TEST_F(MapSceneTest, ALayerThatChangesLeavesThoseInFrontOfItAsTheyAre) {
  const Control icon = MakePicture(ControlId::MapIcon, 1, {0, 0, 300, 300}, "Jumpgate");
  const Control tool = MakePicture(ControlId::Tool, 1, {600, 600, 300, 300}, "tools/print.svg");
  drawing.Controls = {icon, tool};
  scene.Show(drawing);
  for (QGraphicsItem* item : scene.items()) item->setData(0, "of before");

  drawing.Controls = {MakePicture(ControlId::MapIcon, 2, {0, 0, 300, 300}, "Jumpgate"), tool};
  scene.Show(drawing);

  EXPECT_FALSE(scene.items({10, 10}).front()->data(0).isValid());
  EXPECT_EQ(scene.items({50, 50}).front()->data(0), "of before");
}

TEST_F(MapSceneTest, ALayerThatComesLaterGoesToItsPlaceInTheStack) {
  const Control front = MakeFrame(ControlId::SearchFrame, 0, {300, 300, 750, 750}, {0xFF0000});
  drawing.Controls = {front};
  scene.Show(drawing);

  drawing.Controls = {Rectangle({0, 0, 750, 750}, {0x0000FF}), front};
  const QImage image = Rendered();

  EXPECT_EQ(image.pixelColor(10, 10), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(30, 30), QColor(Qt::blue));
}

TEST_F(MapSceneTest, LinesOfALaterListTakeThePlaceOfThoseBefore) {
  drawing.Controls = {Line(0, 307, 1500, 307, {0xFFFFFF}), Line(0, 607, 1500, 607, {0xFFFFFF})};
  Rendered();
  drawing.Controls = {Line(0, 307, 1500, 307, {0xFFFFFF}), Line(0, 907, 1500, 907, {0xFFFFFF})};

  const QImage image = Rendered();

  EXPECT_EQ(image.pixelColor(50, 20), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(50, 40), QColor(Qt::black));
  EXPECT_EQ(image.pixelColor(50, 60), QColor(Qt::white));
}

TEST_F(MapSceneTest, BelowAPanelThatEndsBetweenPixelsTheGroundIsPainted) {
  drawing.FrameColor = {0x00FF00};
  drawing.Controls = {
      MakeFrame(ControlId::PanelFrame, 0, {307.5, 307.5, 750, 750}, Color{0x0000FF})};

  const QImage image = Rendered();

  for (int y = 0; y < 100; ++y) {
    for (int x = 0; x < 100; ++x) {
      const QColor color = image.pixelColor(x, y);
      ASSERT_TRUE(color == QColor(Qt::green) || color == QColor(Qt::red)) << x << " " << y;
    }
  }
}

TEST_F(MapSceneTest, InAnotherScaleTheGroundHasNoGaps) {
  drawing.FrameColor = {0x00FF00};
  drawing.Controls = {MakeFrame(ControlId::PanelFrame, 0, {301, 301, 751, 751}, Color{0x0000FF})};
  scene.Show(drawing);
  QImage image(133, 133, QImage::Format_RGB32);
  image.fill(Qt::magenta);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  scene.render(&painter, image.rect(), scene.sceneRect());
  painter.end();

  for (int y = 0; y < 133; ++y) {
    for (int x = 0; x < 133; ++x) {
      const QColor color = image.pixelColor(x, y);
      ASSERT_TRUE(color == QColor(Qt::green) || color == QColor(Qt::red)) << x << " " << y;
    }
  }
}

TEST_F(MapSceneTest, WhereThePanelLeavesOtherRoomNoItemIsKept) {
  drawing.Controls = {Rectangle({0, 0, 750, 1500}, {0x0000FF}),
                      MakeFrame(ControlId::PanelFrame, 0, {750, 0, 750, 1500}, {})};
  drawing.Panel = PanelPlace::Right;
  drawing.PanelBox = {750, 0, 750, 1500};
  scene.Show(drawing);
  for (QGraphicsItem* item : scene.items()) item->setData(0, "of before");

  drawing.PanelBox = {900, 0, 600, 1500};
  scene.Show(drawing);

  EXPECT_FALSE(scene.items({10, 10}).front()->data(0).isValid());
}

TEST_F(MapSceneTest, ControlsWithinAFrameThatStaysAreThoseOfTheNewList) {
  Control panel = Rectangle({0, 0, 750, 1500}, {0x0000FF});
  panel.Children = {MakePicture(ControlId::Tool, 2, {150, 150, 150, 150}, "tools/print.svg")};
  drawing.Controls = {panel};
  scene.Show(drawing);

  scene.Show(drawing);

  EXPECT_EQ(scene.ControlAt({15, 15}), &scene.Drawing().Controls[0].Children[0]);
}

TEST_F(MapSceneTest, PartsOfThePanelAreToldApartFromTheMap) {
  Control panel = MakeFrame(ControlId::PanelFrame, 0, {750, 0, 750, 1500}, {});
  panel.Children = {MakePicture(ControlId::Tool, 2, {150, 150, 150, 150}, "tools/print.svg")};
  drawing.Controls = {MakePicture(ControlId::MapIcon, 3, {0, 0, 300, 300}, "Jumpgate"), panel};
  scene.Show(drawing);

  EXPECT_TRUE(scene.HitAt({65, 15}).OnPanel);
  EXPECT_TRUE(scene.HitAt({90, 90}).OnPanel);
  EXPECT_FALSE(scene.HitAt({10, 10}).OnPanel);
  EXPECT_FALSE(scene.HitAt({40, 90}).OnPanel);
}

TEST_F(MapSceneTest, WhatStandsInFrontStaysThroughANewListUntilItIsTakenAway) {
  scene.ShowInFront(FrontLayer::Box, {Rectangle({0, 0, 750, 750}, {0x0000FF})});
  drawing.Controls = {Rectangle({0, 0, 1500, 1500}, {0xFF0000})};

  EXPECT_EQ(Rendered().pixelColor(10, 10), QColor(Qt::red));
  scene.ShowInFront(FrontLayer::Box, {});
  EXPECT_EQ(Rendered().pixelColor(10, 10), QColor(Qt::blue));
}

TEST_F(MapSceneTest, TheLayersInFrontKeepTheirOrder) {
  scene.ShowInFront(FrontLayer::RubberBand, {Rectangle({0, 0, 750, 750}, {0x0000FF})});
  scene.ShowInFront(FrontLayer::Box, {Rectangle({0, 0, 1500, 1500}, {0x00FF00})});

  const QImage image = Rendered();

  EXPECT_EQ(image.pixelColor(10, 10), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(90, 90), QColor(Qt::green));
}

TEST_F(MapSceneTest, AControlThatIsReplacedKeepsItsPlaceInTheStack) {
  Control back = Rectangle({0, 0, 150, 150}, {0x0000FF});
  back.Index = 1;
  drawing.Controls = {back, Rectangle({0, 0, 750, 750}, {0xFF0000})};
  scene.Show(drawing);

  back.Place = {0, 0, 1500, 1500};
  scene.Replace(back);

  ASSERT_NE(scene.Find(ControlId::PanelFrame, 1), nullptr);
  EXPECT_EQ(scene.Find(ControlId::PanelFrame, 1)->Place.Width, 1500);
  EXPECT_EQ(scene.ControlAt({10, 10})->Index, 0);
  EXPECT_EQ(scene.ControlAt({90, 90})->Index, 1);
}

TEST_F(MapSceneTest, ReplacingWhatIsNotThereChangesNothing) {
  drawing.Controls = {Rectangle({0, 0, 750, 750}, {0xFF0000})};
  scene.Show(drawing);

  scene.Replace(MakePicture(ControlId::MapIcon, 7, {0, 0, 600, 600}, "Jumpgate"));

  EXPECT_EQ(scene.Find(ControlId::MapIcon, 7), nullptr);
  EXPECT_EQ(scene.ControlAt({90, 90}), nullptr);
}

TEST_F(MapSceneTest, AShapeHasAnOutlineAndRoundOrSquareCorners) {
  Control shape = MakeFrame(ControlId::BoxShape, std::nullopt, {150, 150, 750, 750}, {0x0000FF});
  shape.BorderColor = {0x00FF00};
  shape.Shape = ShapeForm::RoundedRectangle;
  drawing.Controls = {shape};
  const QImage rounded = Rendered();
  drawing.Controls[0].Shape = ShapeForm::Rectangle;
  const QImage square = Rendered();

  EXPECT_EQ(rounded.pixelColor(35, 35), QColor(Qt::red));
  EXPECT_EQ(rounded.pixelColor(35, 10), QColor(Qt::green));
  EXPECT_EQ(rounded.pixelColor(10, 10), QColor(Qt::black));
  EXPECT_EQ(square.pixelColor(10, 10), QColor(Qt::green));
}

TEST_F(MapSceneTest, TheTextOfABoxHasItsLines) {
  Control text = MakeLabel(ControlId::BoxText, std::nullopt, {0, 0, 1500, 1500}, "M\r\n\r\nM");
  text.FontSize = 9;
  text.ForeColor = Color{0xFFFFFF};
  drawing.Controls = {text};

  const QImage image = Rendered();

  // Letters of 12 pixels: two rows of them with an empty one between.
  const auto isEmpty = [&](int top, int bottom) {
    for (int y = top; y < bottom; ++y) {
      for (int x = 0; x < 100; ++x) {
        if (image.pixelColor(x, y) != QColor(Qt::black)) return false;
      }
    }
    return true;
  };
  EXPECT_FALSE(isEmpty(0, 14));
  EXPECT_TRUE(isEmpty(16, 26));
  EXPECT_FALSE(isEmpty(28, 44));
}

TEST_F(MapSceneTest, ANewListReplacesTheOneBefore) {
  drawing.Controls = {Rectangle({0, 0, 1500, 1500}, {0x0000FF})};
  scene.Show(drawing);
  drawing.Controls.clear();

  EXPECT_EQ(Rendered().pixelColor(50, 50), QColor(Qt::black));
  EXPECT_TRUE(scene.items().isEmpty());
}

TEST_F(MapSceneTest, LabelsWriteInTheirColourOnTheirGround) {
  Control label = MakeLabel(ControlId::InfoBoxLine, 0, {0, 0, 1500, 300}, "HHHHHHHH");
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
  Control label = MakeLabel(ControlId::SystemLabel, 0, {0, 0, 1500, 1500}, "X");
  label.BackColor = Color{0x400000};
  drawing.Controls = {label};

  EXPECT_EQ(Rendered().pixelColor(5, 90), QColor(Qt::white));
}

}  // namespace
}  // namespace orrerix
