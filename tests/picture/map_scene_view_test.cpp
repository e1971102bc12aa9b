// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "picture/map_scene_view_fixture.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

TEST_F(MapSceneViewTest, EveryPixelIsAsIfAllWerePaintedAnew) {
  for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
    for (const bool lanes : {true, true, false, true}) {
      Show(lanes);
      EXPECT_EQ(Painted(view, ratio), PaintedAnew(ratio)) << ratio << lanes;
    }
    Show(true, "New Tokyo");
    EXPECT_EQ(Painted(view, ratio), PaintedAnew(ratio)) << ratio;
    scene.ShowSystemNames(false);
    EXPECT_EQ(Painted(view, ratio), PaintedAnew(ratio)) << ratio;
    scene.ShowSystemNames(true);
  }
}

// Lines that leave the frame are cut off at the edge of the device, which is elsewhere then.
TEST_F(MapSceneViewTest, NorDoesItsPlaceOnTheDeviceMatter) {
  Show(true);
  std::erase_if(drawing.Controls, [](const Control& control) {
    return control.Kind == ControlKind::Line && control.Line != LineKind::TradeLane;
  });
  drawing.Controls.insert(drawing.Controls.begin() + 2,
                          Line(1, {150, 100, 3000, 2800}, LineKind::JumpGate));
  const TempFolder folder;
  const QString sky = QString::fromStdString((folder.Path() / "sky.png").string());
  QImage plain(220, 200, QImage::Format_RGB32);
  plain.fill(Qt::darkRed);
  plain.save(sky);
  drawing.Controls.insert(
      drawing.Controls.begin(),
      MakePicture(ControlId::PaintedUniverse, {}, {0, 0, 3300, 3000}, sky.toStdString()));
  scene.Show(drawing);

  for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
    for (const QPoint place : {QPoint(3, 3), QPoint(0, 7), QPoint()}) {
      EXPECT_EQ(Painted(view, ratio, place), PaintedAnew(ratio, place)) << ratio << place.y();
    }
  }
}

TEST_F(MapSceneViewTest, AFrameOfAnotherColourOrSizeIsPaintedAnew) {
  Show(true);
  Painted(view);

  drawing.FrameColor = {0x0000FF};
  Show(true);
  EXPECT_EQ(Painted(view), PaintedAnew());
  drawing.PanelBox = {3000, 0, 1500, 3000};
  Show(true);
  EXPECT_EQ(Painted(view), PaintedAnew());
}

TEST_F(MapSceneViewTest, NamesThatAreNoLongerThereAreNotSeen) {
  Show(true);
  Painted(view);

  drawing.Controls.erase(drawing.Controls.begin(), drawing.Controls.begin() + 2);
  scene.Show(drawing);

  EXPECT_EQ(Painted(view), PaintedAnew());
}

// Each of these paints no more than what it changes.
TEST_F(MapSceneViewTest, EveryPixelIsAsIfAllWerePaintedAnewAfterSmallChanges) {
  const std::vector<std::string> captions = {"New York", "Ab", "Omicron Gamma and all beyond it",
                                             "Jagged fjord", "New York"};
  for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
    Show(true);
    Painted(view, ratio);
    for (const std::string& caption : captions) {
      Show(true, caption);
      EXPECT_EQ(Painted(view, ratio), PaintedAnew(ratio)) << ratio << caption;
      scene.Replace(Name(2, 1480, caption + "!"));
      EXPECT_EQ(Painted(view, ratio), PaintedAnew(ratio)) << ratio << caption;
    }
    drawing.Controls.erase(drawing.Controls.begin(), drawing.Controls.begin() + 2);
    scene.Show(drawing);
    EXPECT_EQ(Painted(view, ratio), PaintedAnew(ratio)) << ratio;
    Show(true);
    EXPECT_EQ(Painted(view, ratio), PaintedAnew(ratio)) << ratio;
    drawing.Controls[3] = Line(2, {250, -400, 3800, 3600}, LineKind::JumpHole);
    scene.Show(drawing);
    EXPECT_EQ(Painted(view, ratio), PaintedAnew(ratio)) << ratio;
  }
}

TEST_F(MapSceneViewTest, PicturesBelowANameThatChangesStayAsTheyAre) {
  const TempFolder folder;
  const auto picture = [&folder](const char* name, QColor color) {
    QImage image(40, 40, QImage::Format_ARGB32);
    for (int y = 0; y < 40; ++y) {
      for (int x = 0; x < 40; ++x) image.setPixelColor(x, y, color.darker(100 + 5 * (x ^ y)));
    }
    const std::filesystem::path file = folder.Path() / name;
    image.save(QString::fromStdString(file.string()));
    return file.string();
  };
  const std::string sky = picture("sky.png", QColor(90, 20, 160));
  const std::string cloud = picture("cloud.png", QColor(220, 200, 20, 120));
  for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
    for (const char* caption : {"New York", "New Tokyo", "N"}) {
      Show(true, caption);
      for (int i = 0; i < 4; ++i) {
        drawing.Controls.insert(drawing.Controls.begin(),
                                MakePicture(ControlId::BackgroundTile, i, {i * 800.0, 0, 810, 3000},
                                            i % 2 == 0 ? cloud : sky));
      }
      scene.Show(drawing);
      EXPECT_EQ(Painted(view, ratio), PaintedAnew(ratio)) << ratio << caption;
    }
  }
}

TEST_F(MapSceneViewTest, AnotherSceneIsNotTakenForTheOneBefore) {
  const auto shown = [this](Color sky) {
    MapScene other(pictures);
    MapDrawing content;
    content.Frame = {0, 0, 4500, 3000};
    content.FrameColor = sky;
    content.Controls = {Name(1, 300, "New York")};
    other.Show(content);
    view.setScene(&other);
    return Painted(view).pixelColor(100, 100);
  };

  EXPECT_EQ(shown({0x0000FF}), QColor(Qt::red));
  EXPECT_EQ(shown({0xFF0000}), QColor(Qt::blue));
  view.setScene(&scene);
}

TEST_F(MapSceneViewTest, WithoutAnythingStillAllIsPainted) {
  drawing.Controls = {MakeFrame(ControlId::PanelFrame, 0, drawing.PanelBox, {0x00FF00})};
  scene.Show(drawing);

  EXPECT_EQ(Painted(view), PaintedAnew());
  EXPECT_EQ(Painted(view).pixelColor(10, 10), QColor(0x10, 0x20, 0x40));
}

TEST_F(MapSceneViewTest, TheSceneOnPaperHasAllThatTheViewKeeps) {
  Show(true);
  const auto printed = [this] {
    QImage page(300, 200, QImage::Format_RGB32);
    QPainter painter(&page);
    painter.setRenderHint(QPainter::Antialiasing);
    scene.render(&painter, page.rect(), scene.sceneRect());
    return page;
  };
  const QImage before = printed();

  Painted(view);

  EXPECT_EQ(printed(), before);
}

class StillItemsTest : public MapSceneViewTest {
 protected:
  StillItemsTest() {
    putsBelow = true;
    Show(true);
    Painted(view);
    painted = below.Count;
  }

  // Paints the view, and returns whether that took painting what is still.
  bool PaintsStill() {
    Painted(view);
    return std::exchange(painted, below.Count) != below.Count;
  }

  int painted = 0;
};

TEST_F(StillItemsTest, TradeLanesAndThePanelComeAndGoWithoutThem) {
  EXPECT_FALSE(PaintsStill());
  Show(false);
  EXPECT_FALSE(PaintsStill());
  Show(true);
  EXPECT_FALSE(PaintsStill());
}

TEST_F(StillItemsTest, TheyArePaintedAgainForOtherContent) {
  Show(true, "New Tokyo");
  EXPECT_TRUE(PaintsStill());
  scene.ShowSystemNames(false);
  EXPECT_TRUE(PaintsStill());
  scene.ShowSystemNames(false);
  EXPECT_FALSE(PaintsStill());
  Control name = drawing.Controls.front();
  name.Caption = "New London";
  scene.Replace(name);
  EXPECT_TRUE(PaintsStill());
  below.Change();
  EXPECT_TRUE(PaintsStill());
}

TEST_F(StillItemsTest, NoneIsPaintedAgainFarFromAChange) {
  Show(true);
  std::erase_if(drawing.Controls,
                [](const Control& control) { return control.Kind == ControlKind::Line; });
  scene.Show(drawing);
  scene.Put(below, Stratum::BelowPanel);
  scene.removeItem(&below);
  drawing.Controls.insert(drawing.Controls.begin() + 2,
                          Line(1, {100, 2900, 3000, 2900}, LineKind::JumpGate));
  scene.Show(drawing);
  scene.Put(below, Stratum::BelowLines);
  PaintsStill();

  scene.Replace(Name(2, 1500, "New London"));
  EXPECT_FALSE(PaintsStill());
  scene.Replace(Name(1, 300, "A name that is as wide as the map is here"));
  EXPECT_TRUE(PaintsStill());
}

TEST_F(StillItemsTest, TheyArePaintedAgainOnOtherPixels) {
  Painted(view, 2);
  EXPECT_NE(below.Count, painted);
  view.resize(290, 200);
  EXPECT_TRUE(PaintsStill());
}

TEST_F(StillItemsTest, WhatTheCallerPutsInFrontOfLinesIsPaintedEachTime) {
  scene.Put(below, Stratum::BelowPanel);

  EXPECT_TRUE(PaintsStill());
  EXPECT_TRUE(PaintsStill());
}

// What lies below an opaque picture is not even scaled.
TEST_F(StillItemsTest, WhatAPictureHidesIsNotPainted) {
  const TempFolder folder;
  const auto plain = [&folder](const char* name) {
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    const std::string file = (folder.Path() / name).string();
    image.save(QString::fromStdString(file));
    return file;
  };
  drawing.Controls = {
      MakePicture(ControlId::BackgroundTile, 1, {300, 300, 900, 900}, plain("tile.png")),
      MakePicture(ControlId::SystemPicture, 1, {0, 0, 1500, 1500}, plain("system.png"))};
  scene.Show(drawing);
  Painted(view);
  EXPECT_EQ(pictures.BytesOfScaled() / 1024, 100 * 100 * 4 / 1024);  // of the system only

  drawing.Controls[1].Place = {300, 300, 600, 900};
  scene.Show(drawing);
  Painted(view);
  EXPECT_EQ(pictures.BytesOfScaled() / 1024,
            100 * 100 * 4 / 1024 + 60 * 60 * 4 / 1024 + 40 * 60 * 4 / 1024);
}

TEST_F(StillItemsTest, AFinerPictureIsShown) {
  const TempFolder folder;
  const QString file = QString::fromStdString((folder.Path() / "sky.png").string());
  QImage lines(200, 200, QImage::Format_RGB32);  // of which half the size shows only the mean
  for (int y = 0; y < 200; ++y) {
    for (int x = 0; x < 200; ++x) lines.setPixel(x, y, x % 2 == 0 ? 0xFFFFFFFF : 0xFF000000);
  }
  lines.save(file);
  pictures.Read(file);
  drawing.Controls = {
      MakePicture(ControlId::PaintedUniverse, {}, {0, 0, 3000, 3000}, file.toStdString())};
  scene.Show(drawing);

  EXPECT_NE(Painted(view).pixelColor(100, 100), QColor(Qt::white));
  while (pictures.IsWanting()) pictures.ReadWanted();
  EXPECT_EQ(Painted(view).pixelColor(100, 100), QColor(Qt::white));
}

// Two pictures of 900 by 1800 pixels on a fine screen, which are too large to be smooth at once.
TEST_F(StillItemsTest, OfTwoPicturesOnlyTheFinerOneIsPaintedAgain) {
  constexpr double fine = 9;
  const TempFolder folder;
  std::vector<std::string> files;
  for (const char* name : {"left.png", "right.png"}) {
    QImage points(1200, 1200, QImage::Format_RGB32);
    for (int y = 0; y < 1200; ++y) {
      for (int x = 0; x < 1200; ++x) points.setPixel(x, y, 0xFF000000u | unsigned(x * 7919 ^ y));
    }
    files.push_back((folder.Path() / name).string());
    points.save(QString::fromStdString(files.back()));
  }
  drawing.Controls = {MakePicture(ControlId::SystemPicture, 1, {1800, 0, 1500, 3000}, files[1]),
                      MakePicture(ControlId::SystemPicture, 2, {0, 0, 1500, 3000}, files[0]),
                      Line(1, {2000, 2900, 3000, 2900}, LineKind::JumpGate)};
  scene.Show(drawing);
  scene.Put(below, Stratum::BelowLines);
  const QImage coarse = Painted(view, fine);
  painted = below.Count;
  ASSERT_TRUE(pictures.IsWanting());

  pictures.ReadWanted();
  Painted(view, fine);
  EXPECT_EQ(below.Count, painted);
  ASSERT_TRUE(pictures.IsWanting());
  pictures.ReadWanted();
  const QImage smooth = Painted(view, fine);
  EXPECT_NE(below.Count, painted);

  EXPECT_FALSE(pictures.IsWanting());
  EXPECT_NE(smooth, coarse);
  EXPECT_EQ(smooth, PaintedAnew(fine));
}

// The greatest difference of a channel of a pixel.
int FurthestApart(const QImage& one, const QImage& other) {
  int most = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QColor a = one.pixelColor(x, y);
      const QColor b = other.pixelColor(x, y);
      most = std::max({most, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                       std::abs(a.blue() - b.blue())});
    }
  }
  return most;
}

TEST_F(MapSceneViewTest, LargeLettersAreCopiedFromAPictureOfThem) {
  constexpr int hardlySeen = 24;
  Control large = Name(1, 300, "Rio");
  large.FontSize = 60;
  drawing.Controls = {large};
  scene.Show(drawing);
  ASSERT_EQ(pictures.BytesOfScaled(), 0);

  const QImage first = Painted(view);
  const qint64 kept = pictures.BytesOfScaled();
  EXPECT_GT(kept, 0);
  EXPECT_EQ(Painted(view), first);
  EXPECT_EQ(pictures.BytesOfScaled(), kept);

  QImage onFile(300, 200, QImage::Format_RGB32);  // where they are drawn each time
  QPainter painter(&onFile);
  painter.setRenderHint(QPainter::Antialiasing);
  scene.render(&painter, onFile.rect(), onFile.rect());
  painter.end();
  EXPECT_LE(FurthestApart(first.copy(0, 0, 220, 200), onFile.copy(0, 0, 220, 200)), hardlySeen);
}

}  // namespace
}  // namespace orrerix
