// SPDX-License-Identifier: MIT
#include "forms/map/map_glide.h"

#include "forms/map/map_controller_fixture.h"

namespace orrerix {
namespace {

// Cells of the whole grid have 30 pixels.
class MapGlideTest : public MapControllerFixture {
 protected:
  MapGlideTest() { Glide().SetPatience(1'000'000); }
  MapGlide& Glide() { return map.Glide(); }
};

TEST_F(MapGlideTest, TheMapIsTheNewOneAtOnceWhileThePictureMoves) {
  Glide().SetTime(60);

  Zoom({8, 10, 9, 11});

  EXPECT_EQ(Visible(), (ZoomRectangle{8, 10, 9, 11}));
  EXPECT_TRUE(Glide().isVisible());
  EXPECT_TRUE(Glide().testAttribute(Qt::WA_TransparentForMouseEvents));
  EXPECT_TRUE(WaitUntil([this] { return !Glide().isVisible(); }));
}

// The corner of cell 8, 10 was at 240, 300 (cells of 30 pixels) and comes to the frame's corner.
TEST_F(MapGlideTest, ThePictureEndsWhereItsCellsAre) {
  Glide().SetTime(60);
  const double before = Pixels(map.Drawing().Cells.CellSize());

  Zoom({8, 10, 9, 11});

  EXPECT_EQ(before, 30);
  const double scale = Pixels(map.Drawing().Cells.CellSize()) / before;
  EXPECT_GT(scale, 1);
  const QPointF corner = Glide().End().map(QPointF(240, 300));
  EXPECT_NEAR(corner.x(), 0, 1e-6);
  EXPECT_NEAR(corner.y(), 0, 1e-6);
  EXPECT_NEAR(Glide().End().map(QPointF(241, 300)).x(), scale, 1e-6);
}

TEST_F(MapGlideTest, NothingMovesWhereTheTimeIsNone) {
  Glide().SetTime(0);

  Zoom({8, 10, 9, 11});

  EXPECT_FALSE(Glide().isVisible());
}

TEST_F(MapGlideTest, NothingMovesWhereTheCellsStay) {
  Glide().SetTime(60);

  DrawMap();

  EXPECT_FALSE(Glide().isVisible());
}

// No clock runs backwards: each picture takes longer than that.
TEST_F(MapGlideTest, NothingMovesWherePaintingTakesTooLong) {
  Glide().SetTime(60);
  Glide().SetPatience(-1);
  Zoom({8, 10, 9, 11});
  EXPECT_FALSE(Glide().isVisible());
  Zoom({8, 10, 8, 10});
  Zoom({7, 9, 9, 11});

  Glide().SetPatience(1'000'000);
  Zoom({8, 10, 9, 11});

  EXPECT_FALSE(Glide().isVisible());
}

TEST_F(MapGlideTest, OneSlowPictureIsForgotten) {
  Glide().SetTime(60);
  Glide().SetPatience(-1);
  Zoom({8, 10, 9, 11});

  Glide().SetPatience(1'000'000);
  Zoom({8, 10, 8, 10});

  EXPECT_TRUE(Glide().isVisible());
}

TEST_F(MapGlideTest, NobodySeesMovementsWithoutAScreen) {
  ASSERT_EQ(QGuiApplication::platformName(), "offscreen");

  EXPECT_EQ(DesktopGlideTime(Glide()), 0);
}

}  // namespace
}  // namespace orrerix
