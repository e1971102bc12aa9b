// SPDX-License-Identifier: MIT
// What the window of the map shows until all of it is painted.
#include <vector>

#include "picture/map_scene_view_fixture.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

constexpr ZoomRectangle kAll{1, 1, 8, 8};      // cells of 25 pixels
constexpr ZoomRectangle kQuarter{1, 1, 4, 4};  // cells of 50
constexpr ZoomRectangle kMiddle{3, 3, 6, 6};   // cells of 50
constexpr ZoomRectangle kOneCell{2, 3, 2, 3};  // a cell of 200
constexpr double kFine = 6;                    // 1320 by 1200 pixels of map: two passes

// Takes every image for its window.
class WindowView : public MapSceneView {
 public:
  bool IsInWindow = true;

 protected:
  bool IsOnWindow(const QPainter&) const override { return IsInWindow; }
};

class MapPassesTest : public MapSceneViewTest {
 protected:
  MapPassesTest() {
    QImage quarters(8, 8, QImage::Format_RGB32);
    for (int y = 0; y < 8; ++y) {
      for (int x = 0; x < 8; ++x) {
        quarters.setPixelColor(x, y, QColor(x * 30, y * 30, 255 * ((x + y) % 2)));
      }
    }
    sky = (folder.Path() / "sky.png").string();
    quarters.save(QString::fromStdString(sky));
    window.OnUnfinished = [this] { ++unfinished; };
    window.setScene(&scene);
    window.resize(300, 200);
  }

  // The sky over all cells, a name in each second one, lines across, an icon's place, the panel.
  void ShowZoom(const ZoomRectangle& visible, bool lanes = true) {
    const CellGeometry cells(drawing.Frame, visible);
    drawing.Cells = cells;
    const TwipRect first = cells.CellBox(1, 1);
    const double size = cells.CellSize();
    drawing.Controls = {MakePicture(ControlId::PaintedUniverse, {},
                                    {first.Left, first.Top, 8 * size, 8 * size}, sky)};
    for (int i = 1; i <= 8; i += 2) {
      const TwipRect cell = cells.CellBox(i, i);
      Control name = Name(i, cell.Top, "System");
      name.Place.Left = cell.Left;
      name.Place.Width = size;
      drawing.Controls.push_back(name);
    }
    const auto left = static_cast<float>(first.Left);
    const auto top = static_cast<float>(first.Top);
    const auto right = static_cast<float>(first.Left + 8 * size);
    const auto bottom = static_cast<float>(first.Top + 7 * size);
    drawing.Controls.push_back(Line(1, {left, top, right, bottom}, LineKind::JumpGate));
    drawing.Controls.push_back(Line(2, {left, bottom, right, top}, LineKind::JumpHole));
    if (lanes) drawing.Controls.push_back(Line(3, {300, 2200, 3000, 400}, LineKind::TradeLane));
    drawing.Controls.push_back(
        MakeFrame(ControlId::PanelFrame, 0, drawing.PanelBox, {0x00FF00u - lanes}));
    scene.Show(drawing);
  }

  void Zoom(const ZoomRectangle& visible, double ratio = 1) {
    ShowZoom(visible);
    Painted(window, ratio);
  }

  // Paints all passes, and returns their number.
  int Finish() {
    int passes = 0;
    while (window.PaintMore()) ++passes;
    return passes;
  }

  TempFolder folder;
  std::string sky;
  WindowView window;
  int unfinished = 0;
};

// Cell 2, 2 begins at 25, 25 in all cells, and at 50, 50 in the quarter of them.
TEST_F(MapPassesTest, AfterAZoomTheMapOfBeforeIsShownInItsNewPlace) {
  ShowZoom(kAll, false);
  const QImage before = Painted(window);
  ShowZoom(kQuarter, false);
  const QImage first = Painted(window);

  EXPECT_EQ(unfinished, 1);
  for (const QPoint at : {QPoint(2, 2), QPoint(30, 31), QPoint(80, 20), QPoint(99, 99)}) {
    EXPECT_EQ(first.pixelColor(at * 2), before.pixelColor(at)) << at.x();
    EXPECT_EQ(first.pixelColor(at * 2 + QPoint(1, 1)), before.pixelColor(at)) << at.x();
  }
  EXPECT_NE(first, PaintedAnew());
}

TEST_F(MapPassesTest, WhatIsNotStillIsTheNewMapsAtOnce) {
  ShowZoom(kAll, false);
  Painted(window);
  ShowZoom(kQuarter, true);
  const QImage with = Painted(window);
  ShowZoom(kQuarter, false);

  EXPECT_NE(with, Painted(window));
}

TEST_F(MapPassesTest, AfterAllPassesEveryPixelIsAsIfAllWerePaintedAnew) {
  for (const double ratio : {1.0, 1.25, 1.5, 2.0, kFine}) {
    Zoom(kAll, ratio);
    for (const ZoomRectangle& zoom : {kQuarter, kMiddle, kOneCell, kAll, kOneCell, kMiddle, kAll}) {
      Zoom(zoom, ratio);
      EXPECT_GT(Finish(), 0);
      EXPECT_EQ(Painted(window, ratio), PaintedAnew(ratio)) << ratio;
    }
  }
}

// Of 1320 by 1200 pixels a pass paints 1024 * 1024 at most: 794 rows.
TEST_F(MapPassesTest, APassPaintsSoManyRowsAsItMay) {
  Zoom(kAll, kFine);
  Zoom(kQuarter, kFine);

  EXPECT_TRUE(window.PaintMore());
  EXPECT_NE(Painted(window, kFine), PaintedAnew(kFine));
  EXPECT_TRUE(window.PaintMore());
  EXPECT_EQ(Painted(window, kFine), PaintedAnew(kFine));
  EXPECT_FALSE(window.PaintMore());
}

// One cell of 200 pixels is 25 pixels of all, at 25, 50.
TEST_F(MapPassesTest, WhereTheMapOfBeforeDoesNotReachTheNewOneComesWithItsPasses) {
  Zoom(kOneCell, kFine);
  Finish();
  Zoom(kAll, kFine);
  const QPoint top(600, 30);
  const QPoint bottom(600, 1190);
  const QPoint within(200, 400);
  const QImage first = Painted(window, kFine);
  EXPECT_EQ(first.pixelColor(top), QColor(0x10, 0x20, 0x40));
  EXPECT_EQ(first.pixelColor(bottom), QColor(0x10, 0x20, 0x40));
  EXPECT_NE(first.pixelColor(within), QColor(0x10, 0x20, 0x40));

  window.PaintMore();

  const QImage second = Painted(window, kFine);
  const QImage last = PaintedAnew(kFine);
  EXPECT_EQ(second.pixelColor(top), last.pixelColor(top));
  EXPECT_EQ(second.pixelColor(bottom), QColor(0x10, 0x20, 0x40));
  EXPECT_EQ(second.pixelColor(within), first.pixelColor(within));
}

TEST_F(MapPassesTest, WhoeverRendersTheViewGetsTheMapAtOnce) {
  Zoom(kAll, kFine);
  Zoom(kQuarter, kFine);
  window.PaintMore();

  window.IsInWindow = false;
  EXPECT_EQ(Painted(window, kFine), PaintedAnew(kFine));
  ShowZoom(kMiddle);
  EXPECT_EQ(Painted(window, kFine), PaintedAnew(kFine));
  window.IsInWindow = true;
  EXPECT_EQ(Painted(window, kFine), PaintedAnew(kFine));
}

TEST_F(MapPassesTest, NothingWaitsWhereNobodyAsksForPasses) {
  window.OnUnfinished = nullptr;
  Zoom(kAll);
  Zoom(kQuarter);

  EXPECT_EQ(Painted(window), PaintedAnew());
  EXPECT_FALSE(window.PaintMore());
}

TEST_F(MapPassesTest, ASwitchAmongThePassesEndsRight) {
  Zoom(kAll, kFine);
  Zoom(kMiddle, kFine);
  window.PaintMore();
  ShowZoom(kMiddle, false);
  scene.ShowSystemNames(false);
  EXPECT_FALSE(window.PaintMore());  // before it has been seen
  Painted(window, kFine);
  Finish();
  EXPECT_EQ(Painted(window, kFine), PaintedAnew(kFine));
}

TEST_F(MapPassesTest, AReplacementAmongThePassesEndsRight) {
  Zoom(kAll, kFine);
  Zoom(kMiddle, kFine);
  window.PaintMore();
  Control name = drawing.Controls[2];
  name.Caption = "Changed";
  scene.Replace(name);
  Painted(window, kFine);
  Finish();
  EXPECT_EQ(Painted(window, kFine), PaintedAnew(kFine));
}

TEST_F(MapPassesTest, AFrameOfAnotherColourOrPanelAmongThePassesEndsRight) {
  Zoom(kAll, kFine);
  Zoom(kMiddle, kFine);
  window.PaintMore();
  drawing.FrameColor = {0x0000FF};
  drawing.PanelBox = {3000, 0, 1500, 3000};
  Zoom(kMiddle, kFine);
  Finish();
  EXPECT_EQ(Painted(window, kFine), PaintedAnew(kFine));
}

// What was painted of the map in between is no picture of it yet.
TEST_F(MapPassesTest, TheWayBackAmongThePassesShowsTheMapOfBeforeAgain) {
  Zoom(kAll, kFine);
  const QImage before = Painted(window, kFine);
  Zoom(kMiddle, kFine);
  window.PaintMore();

  Zoom(kAll, kFine);

  EXPECT_EQ(Painted(window, kFine), before);
  Finish();
  EXPECT_EQ(Painted(window, kFine), PaintedAnew(kFine));
}

TEST_F(MapPassesTest, AnotherZoomAmongThePassesEndsRight) {
  for (const ZoomRectangle& zoom : {kOneCell, kQuarter, kAll}) {
    Zoom(kAll, kFine);
    Finish();
    Zoom(kMiddle, kFine);
    window.PaintMore();
    Zoom(zoom, kFine);
    Finish();
    EXPECT_EQ(Painted(window, kFine), PaintedAnew(kFine));
  }
}

TEST_F(MapPassesTest, AWindowOfAnotherSizeIsPaintedAtOnce) {
  Zoom(kAll, kFine);
  Zoom(kMiddle, kFine);

  EXPECT_EQ(Painted(window, 2), PaintedAnew(2));
  EXPECT_FALSE(window.PaintMore());
}

TEST_F(MapPassesTest, WhileTheMapOfBeforeMovesThePassesAreNotSeen) {
  constexpr int longTime = 1'000'000;
  // A lane would spare the names of the new map at once, wherever the font's letters end.
  const bool noLanes = false;
  ShowZoom(kAll, noLanes);
  const QImage before = Painted(window);
  window.Glide().SetTime(longTime);
  ShowZoom(kMiddle, noLanes);
  Painted(window);
  Finish();
  EXPECT_EQ(Painted(window), before);

  window.Glide().End();
  EXPECT_EQ(Painted(window), PaintedAnew());
}

TEST_F(MapPassesTest, AMovementEndsWhereSomebodyRendersTheView) {
  constexpr int longTime = 1'000'000;
  Zoom(kAll);
  window.Glide().SetTime(longTime);
  Zoom(kMiddle);
  ASSERT_TRUE(window.Glide().IsMoving());

  window.IsInWindow = false;
  EXPECT_EQ(Painted(window), PaintedAnew());
}

// A picture that is too large to be smooth at once is painted again in passes, too.
TEST_F(MapPassesTest, AFinerPictureWaitsForItsPass) {
  constexpr double fine = 9;  // 2700 by 1800 pixels
  QImage points(2400, 2400, QImage::Format_RGB32);
  for (int y = 0; y < 2400; ++y) {
    for (int x = 0; x < 2400; ++x) points.setPixel(x, y, 0xFF000000u | unsigned(x * 7919 ^ y));
  }
  points.save(QString::fromStdString(sky));
  ShowZoom(kAll);
  drawing.Controls.front().Place = {0, 0, 3300, 3000};
  scene.Show(drawing);
  const QImage coarse = Painted(window, fine);
  ASSERT_TRUE(pictures.IsWanting());

  pictures.ReadWanted();
  EXPECT_EQ(Painted(window, fine), coarse);
  EXPECT_EQ(Finish(), 4);  // of 1980 by 1800 pixels
  EXPECT_NE(Painted(window, fine), coarse);
  EXPECT_EQ(Painted(window, fine), PaintedAnew(fine));
}

TEST_F(MapPassesTest, OnlyTheWindowItselfIsAWindow) {
  MapSceneView real;
  real.OnUnfinished = [this] { ++unfinished; };
  real.setScene(&scene);
  real.resize(300, 200);
  real.show();
  const auto repaint = [&real] {
    QCoreApplication::processEvents();
    real.viewport()->repaint();
  };
  ShowZoom(kAll);
  repaint();
  ShowZoom(kMiddle);
  repaint();
  EXPECT_GT(unfinished, 0);
  EXPECT_TRUE(real.Glide().IsShown());

  EXPECT_EQ(real.grab().toImage().convertToFormat(QImage::Format_RGB32), PaintedAnew());
}

}  // namespace
}  // namespace orrerix
