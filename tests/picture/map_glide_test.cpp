// SPDX-License-Identifier: MIT
#include "picture/map_glide.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

constexpr int kLongTime = 1'000'000;

// Cells of the whole grid have 8550 / 19 = 450 twips, 30 pixels; two of them 4275, 285 pixels.
ShownCells PlaceOf(const ZoomRectangle& visible) {
  const TwipRect frame{0, 0, 14000, 8550};
  return {CellGeometry(frame, visible), frame, false};
}

QImage Pattern() {
  QImage image(2, 1, QImage::Format_RGB32);
  image.setPixelColor(0, 0, Qt::red);
  image.setPixelColor(1, 0, Qt::blue);
  return image;
}

const QTransform kDouble = QTransform::fromScale(2, 2);
const QTransform kAside = QTransform::fromTranslate(30, 0);

// The corner of cell 8, 10 is at 210, 270 in the whole grid and comes to the frame's corner.
TEST(MapGlideTest, TheWayLeadsToWhereTheCellsAre) {
  const auto way = WayBetween(PlaceOf({1, 1, 19, 19}), PlaceOf({8, 10, 9, 11}));

  ASSERT_TRUE(way);
  EXPECT_NEAR(way->map(QPointF(210, 270)).x(), 0, 1e-6);
  EXPECT_NEAR(way->map(QPointF(210, 270)).y(), 0, 1e-6);
  EXPECT_NEAR(way->m11(), 285.0 / 30, 1e-6);
}

TEST(MapGlideTest, ThereIsNoWayWithinOnePlaceOrToPaperOrAnotherFrame) {
  const ShownCells whole = PlaceOf({1, 1, 19, 19});
  ShownCells paper = PlaceOf({8, 10, 9, 11});
  paper.OnPaper = true;
  ShownCells small = PlaceOf({8, 10, 9, 11});
  small.Frame.Width = 9000;

  EXPECT_FALSE(WayBetween(whole, whole));
  EXPECT_FALSE(WayBetween(whole, paper));
  EXPECT_FALSE(WayBetween(paper, whole));
  EXPECT_FALSE(WayBetween(whole, small));
  EXPECT_FALSE(WayBetween({}, whole));
}

TEST(MapGlideTest, WithoutTimeThePictureIsAtOnceWhereItEnds) {
  MapGlide glide;
  glide.Begin(Pattern(), {0, 0, 2, 1}, kDouble);

  EXPECT_TRUE(glide.IsShown());
  EXPECT_FALSE(glide.IsMoving());
  EXPECT_EQ(glide.Hides(), QRect(0, 0, 4, 2));
  glide.End();
  EXPECT_FALSE(glide.IsShown());
}

TEST(MapGlideTest, WithTimeItLeavesFromWhereItWas) {
  MapGlide glide;
  glide.SetTime(kLongTime);
  glide.Begin(Pattern(), {0, 0, 2, 1}, kDouble);

  EXPECT_TRUE(glide.IsMoving());
  EXPECT_EQ(glide.Hides(), QRect(0, 0, 2, 1));
}

TEST(MapGlideTest, AnotherZoomBeforeItsEndMakesItLeaveFromWhereItIs) {
  MapGlide glide;
  glide.Begin(Pattern(), {0, 0, 2, 1}, kDouble);
  glide.SetTime(kLongTime);

  glide.Redirect(kAside);

  EXPECT_EQ(glide.Hides(), QRect(0, 0, 4, 2));
  EXPECT_EQ(glide.Goal(), kDouble * kAside);
  glide.SetTime(0);
  glide.Redirect(QTransform());
  EXPECT_EQ(glide.Hides(), QRect(30, 0, 4, 2));
}

// The first picture is on its way from 0 to 30 still, so what was painted for its end is seen 30
// pixels before that.
TEST(MapGlideTest, APictureOfTheEndTakesThePlaceOfOneThatIsOnItsWay) {
  MapGlide glide;
  glide.SetTime(kLongTime);
  glide.Begin(Pattern(), {0, 0, 2, 1}, kAside);

  glide.Begin(Pattern(), {30, 0, 2, 1}, kDouble);

  EXPECT_EQ(glide.Hides(), QRect(0, 0, 2, 1));
  EXPECT_EQ(glide.Goal(), kDouble);
}

TEST(MapGlideTest, ItTellsWhenItMoves) {
  MapGlide glide;
  int told = 0;
  glide.OnMove = [&told] { ++told; };
  glide.Begin(Pattern(), {0, 0, 2, 1}, kDouble);
  EXPECT_EQ(told, 0);  // it is painted anyway

  glide.SetTime(1);
  glide.Begin(Pattern(), {0, 0, 2, 1}, kDouble);
  while (glide.IsMoving()) QCoreApplication::processEvents();
  EXPECT_GT(told, 0);
}

TEST(MapGlideTest, PointsThatAreEnlargedAreSquares) {
  MapGlide glide;
  glide.Begin(Pattern(), {0, 0, 2, 1}, QTransform::fromScale(10, 10));
  QImage canvas(30, 10, QImage::Format_RGB32);
  canvas.fill(Qt::white);
  QPainter painter(&canvas);

  glide.Paint(painter, {5, 0, 25, 10});
  painter.end();

  EXPECT_EQ(canvas.pixelColor(4, 5), QColor(Qt::white));
  for (const int y : {0, 4, 5, 9}) {
    EXPECT_EQ(canvas.pixelColor(5, y), QColor(Qt::red));
    EXPECT_EQ(canvas.pixelColor(9, y), QColor(Qt::red));
    EXPECT_EQ(canvas.pixelColor(10, y), QColor(Qt::blue));
    EXPECT_EQ(canvas.pixelColor(19, y), QColor(Qt::blue));
    EXPECT_EQ(canvas.pixelColor(20, y), QColor(Qt::white));
  }
}

}  // namespace
}  // namespace orrerix
