// SPDX-License-Identifier: MIT
#include "picture/picture_store.h"

#include "picture/picture_store_fixture.h"

namespace orrerix {
namespace {

TEST_F(PictureStoreTest, APictureIsStretchedOverItsPlace) {
  QImage canvas = Canvas();
  QPainter painter(&canvas);

  store.Draw(painter, Plain(Qt::red), {5, 10, 30, 20});
  painter.end();

  EXPECT_EQ(canvas.pixelColor(5, 10), QColor(Qt::red));
  EXPECT_EQ(canvas.pixelColor(34, 29), QColor(Qt::red));
  EXPECT_EQ(canvas.pixelColor(35, 29), QColor(Qt::black));
  EXPECT_EQ(canvas.pixelColor(34, 30), QColor(Qt::black));
}

TEST_F(PictureStoreTest, NeighboursMeetWithoutASeamBetweenPixels) {
  QImage canvas = Canvas();
  QPainter painter(&canvas);
  painter.setRenderHint(QPainter::Antialiasing);

  store.Draw(painter, Plain(Qt::red), {0, 0, 10.4, 10});
  store.Draw(painter, Plain(Qt::blue), {10.4, 0, 10.4, 10});
  painter.end();

  EXPECT_EQ(canvas.pixelColor(9, 5), QColor(Qt::red));
  EXPECT_EQ(canvas.pixelColor(10, 5), QColor(Qt::blue));
  EXPECT_EQ(canvas.pixelColor(20, 5), QColor(Qt::blue));
  EXPECT_EQ(canvas.pixelColor(21, 5), QColor(Qt::black));
}

TEST_F(PictureStoreTest, OnAFineScreenTheScreensOwnPixelsCount) {
  QImage canvas = Canvas(2);
  QPainter painter(&canvas);
  painter.translate(0.5, 0);

  store.Draw(painter, Plain(Qt::red), {0, 0, 10, 10});
  painter.end();

  // Half a logical pixel is a whole one of the screen.
  EXPECT_EQ(canvas.pixelColor(0, 5), QColor(Qt::black));
  EXPECT_EQ(canvas.pixelColor(1, 5), QColor(Qt::red));
  EXPECT_EQ(canvas.pixelColor(20, 5), QColor(Qt::red));
  EXPECT_EQ(canvas.pixelColor(21, 5), QColor(Qt::black));
}

TEST_F(PictureStoreTest, InAClipOfManyRectanglesOnlyTheirPixelsAreDrawn) {
  QImage canvas = Canvas(2);
  QPainter painter(&canvas);
  painter.setClipRegion(QRegion(2, 2, 8, 8) + QRegion(20, 20, 5, 5));

  store.Draw(painter, Plain(Qt::red), {5, 5, 30, 30});
  painter.fillRect(QRect(0, 0, 4, 4), Qt::blue);
  painter.end();

  QImage expected = Canvas(2);
  expected.setDevicePixelRatio(1);
  QPainter pixels(&expected);
  pixels.fillRect(QRect(10, 10, 10, 10), Qt::red);
  pixels.fillRect(QRect(40, 40, 10, 10), Qt::red);
  pixels.fillRect(QRect(4, 4, 4, 4), Qt::blue);
  pixels.end();
  expected.setDevicePixelRatio(2);
  EXPECT_EQ(canvas, expected);
}

TEST_F(PictureStoreTest, OfAHiddenPictureOnlyTheSeenPartIsDrawn) {
  QImage canvas = Canvas();
  QPainter painter(&canvas);

  store.Draw(painter, Plain(Qt::red), {0, 0, 50, 50}, {0, 0, 3, 50});
  painter.end();

  EXPECT_EQ(canvas.pixelColor(2, 25), QColor(Qt::red));
  EXPECT_EQ(canvas.pixelColor(3, 25), QColor(Qt::black));
}

TEST_F(PictureStoreTest, ThePaintersOwnTransformationStays) {
  QImage canvas = Canvas();
  QPainter painter(&canvas);
  painter.translate(3, 4);
  const QTransform before = painter.worldTransform();

  store.Draw(painter, Plain(Qt::red), {0, 0, 10, 10});

  EXPECT_EQ(painter.worldTransform(), before);
}

TEST_F(PictureStoreTest, DrawingsHaveTheSizeTheyAreAskedFor) {
  EXPECT_EQ(store.NaturalSize(":/pictures/icons/jumpgate.svg"), QSize(40, 40));
  EXPECT_EQ(store.Scaled(":/pictures/icons/jumpgate.svg", {13, 13}).size(), QSize(13, 13));
}

// Points of a fine pattern would be missed by a sample of four.
TEST_F(PictureStoreTest, AMuchSmallerPictureIsTheAverageOfAllItsPoints) {
  QImage checked(256, 256, QImage::Format_RGB32);
  for (int y = 0; y < checked.height(); ++y) {
    for (int x = 0; x < checked.width(); ++x) {
      checked.setPixelColor(x, y, x % 8 == 0 ? Qt::white : Qt::black);
    }
  }
  const QString file = QString::fromStdString((folder.Path() / "checked.png").string());
  checked.save(file);

  const QImage small = store.Scaled(file, {20, 20}).toImage();

  ASSERT_EQ(small.size(), QSize(20, 20));
  for (int x = 0; x < small.width(); ++x) {
    EXPECT_NEAR(small.pixelColor(x, 10).red(), 255 / 8, 3) << x;
  }
}

TEST_F(PictureStoreTest, WhatIsClearInAPictureIsClearInAnySize) {
  QImage half(64, 64, QImage::Format_ARGB32);
  half.fill(Qt::transparent);
  for (int y = 0; y < 64; ++y) {
    for (int x = 0; x < 32; ++x) half.setPixelColor(x, y, Qt::red);
  }
  const QString file = QString::fromStdString((folder.Path() / "half.png").string());
  half.save(file);

  for (const int size : {10, 32, 200}) {
    const QImage scaled = store.Scaled(file, {size, size}).toImage();
    EXPECT_EQ(scaled.pixelColor(size / 4, size / 2), QColor(Qt::red)) << size;
    EXPECT_EQ(scaled.pixelColor(size * 3 / 4, size / 2).alpha(), 0) << size;
  }
}

TEST_F(PictureStoreTest, APictureOfOnePointHasEverySize) {
  const QString file = Plain(Qt::green, {1, 1});

  EXPECT_EQ(store.NaturalSize(file), QSize(1, 1));
  EXPECT_EQ(store.Scaled(file, {7, 3}).toImage().pixelColor(6, 2), QColor(Qt::green));
}

TEST_F(PictureStoreTest, AFileThatIsNoPictureDrawsNothing) {
  const QString file = QString::fromStdString(folder.Write("SysMap.jpg", "no picture").string());
  QImage canvas = Canvas();
  const QImage before = canvas;
  QPainter painter(&canvas);

  store.Draw(painter, file, {0, 0, 10, 10});
  store.Draw(painter, "/nowhere.png", {0, 0, 10, 10});
  painter.end();

  EXPECT_EQ(canvas, before);
  EXPECT_TRUE(store.NaturalSize(file).isEmpty());
}

}  // namespace
}  // namespace orrerix
