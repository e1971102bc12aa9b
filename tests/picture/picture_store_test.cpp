// SPDX-License-Identifier: MIT
#include "picture/picture_store.h"

#include <vector>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

// A picture file of one colour.
class PictureStoreTest : public ::testing::Test {
 protected:
  QString Plain(QColor color, QSize size = {10, 10}) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    const QString file =
        QString::fromStdString((folder.Path() / (color.name().toStdString() + ".png")).string());
    image.save(file);
    return file;
  }

  QImage Canvas(double devicePixelRatio = 1) const {
    QImage image(QSize(60, 60) * devicePixelRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::black);
    return image;
  }

  TempFolder folder;
  PictureStore store;
};

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

// The picture in 10 by 10 pixels is red, that of twice the size green, that of four times blue.
// Pictures of 1000 by 1000 pixels, which take 4 MB each.
class PictureRoomTest : public PictureStoreTest {
 protected:
  PictureRoomTest() {
    for (int i = 0; i < 12; ++i) files.push_back(Plain(QColor(20 * i, 0, 0), {1000, 1000}));
  }

  // What a window shows at once.
  QColor Shown(const QString& file, int side) {
    QImage canvas(side, side, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    const QRectF place(0, 0, side, side);
    store.Draw(painter, file, place, place, PictureStore::Reading::Later);
    return canvas.pixelColor(side / 2, side / 2);
  }

  // From now on there is room for a screen of this size; draws one pixel.
  void UseScreen(QSize size) {
    QImage screen(size, QImage::Format_RGB32);
    QPainter painter(&screen);
    store.Draw(painter, files[0], {0, 0, 1, 1});
  }

  static constexpr qint64 kMegabyte = 1024 * 1024;
  static constexpr QSize kUsualScreen{1920, 1200};
  static constexpr QSize kLargeScreen{2560, 1440};
  std::vector<QString> files;
};

TEST_F(PictureRoomTest, OnlyTheLatestPicturesStayInFull) {
  for (const QString& file : files) store.Scaled(file, {900, 900});

  // Four of 4 MB, and 12 times the halves: 1 MB and a third.
  EXPECT_LT(store.BytesOfSources(), 33 * kMegabyte);
  EXPECT_GT(store.BytesOfSources(), 16 * kMegabyte);
}

TEST_F(PictureRoomTest, APictureReadAheadServesSizesUpToHalfOfIts) {
  store.Read(files[1]);

  EXPECT_LT(store.BytesOfSources(), 2 * kMegabyte);
  EXPECT_EQ(Shown(files[1], 500), QColor(20, 0, 0));
  store.ReadWanted();
  EXPECT_LT(store.BytesOfSources(), 2 * kMegabyte);
  EXPECT_FALSE(store.IsWanting());
}

TEST_F(PictureRoomTest, AboveThatItIsDrawnCoarselyAndWanted) {
  store.Read(files[1]);

  EXPECT_EQ(Shown(files[1], 501), QColor(20, 0, 0));
  ASSERT_TRUE(store.IsWanting());
  store.ReadWanted();

  EXPECT_EQ(Shown(files[1], 501), QColor(20, 0, 0));
  EXPECT_FALSE(store.IsWanting());
  EXPECT_GT(store.BytesOfSources(), 5 * kMegabyte);
}

TEST_F(PictureRoomTest, WhatWasCoarseIsFineOnceThePictureIsReadAgain) {
  // Lines of one pixel, of which half the size shows only their mean.
  QImage lines(200, 200, QImage::Format_RGB32);
  lines.fill(Qt::black);
  for (int x = 0; x < 200; x += 2) {
    for (int y = 0; y < 200; ++y) lines.setPixelColor(x, y, Qt::white);
  }
  const QString file = QString::fromStdString((folder.Path() / "lines.png").string());
  lines.save(file);
  store.Read(file);

  EXPECT_NE(Shown(file, 200), QColor(Qt::white));
  store.ReadWanted();

  EXPECT_EQ(Shown(file, 200), QColor(Qt::white));
}

TEST_F(PictureRoomTest, ASizeThatIsKeptNeedsThePictureNoMore) {
  Shown(files[0], 900);
  store.ReadWanted();
  for (std::size_t i = 1; i < 5; ++i) store.Scaled(files[i], {510, 510});

  EXPECT_EQ(Shown(files[0], 900), QColor(0, 0, 0));
  EXPECT_FALSE(store.IsWanting());
}

TEST_F(PictureRoomTest, WhatIsDrawnCoarselyIsNotKept) {
  for (const int i : {1, 2}) {
    store.Read(files[i]);
    Shown(files[i], 700);
  }

  EXPECT_EQ(store.BytesOfScaled(), 0);
  store.ReadWanted();
  EXPECT_EQ(store.BytesOfScaled() / 1024, 700 * 700 * 4 / 1024);
  store.ReadWanted();
  EXPECT_EQ(store.BytesOfScaled() / 1024, 2 * (700 * 700 * 4 / 1024));
}

TEST_F(PictureRoomTest, ALargePictureIsScaledSmoothlyAMomentLater) {
  QImage lines(1000, 1000, QImage::Format_RGB32);
  for (int y = 0; y < 1000; ++y) {
    for (int x = 0; x < 1000; ++x) lines.setPixel(x, y, x % 2 == 0 ? 0xFFFFFFFF : 0xFF000000);
  }
  const QString file = QString::fromStdString((folder.Path() / "lines.png").string());
  lines.save(file);
  store.Scaled(file, {1000, 1000});
  UseScreen(kLargeScreen);

  const QColor coarse = Shown(file, 800);  // one of the picture's own points
  EXPECT_TRUE(coarse == QColor(Qt::white) || coarse == QColor(Qt::black));
  ASSERT_TRUE(store.IsWanting());
  store.ReadWanted();

  EXPECT_FALSE(store.IsWanting());
  EXPECT_EQ(Shown(file, 800), store.Scaled(file, {800, 800}).toImage().pixelColor(400, 400));
  EXPECT_FALSE(store.IsWanting());
}

TEST_F(PictureRoomTest, APictureThatIsEnlargedShowsNoSquares) {
  QImage halves(2, 2, QImage::Format_RGB32);
  halves.fill(Qt::black);
  for (const int y : {0, 1}) halves.setPixelColor(1, y, Qt::white);
  const QString file = QString::fromStdString((folder.Path() / "halves.png").string());
  halves.save(file);
  UseScreen(kLargeScreen);

  const int middle = Shown(file, 1000).red();

  EXPECT_TRUE(store.IsWanting());
  EXPECT_GT(middle, 100);
  EXPECT_LT(middle, 155);
}

TEST_F(PictureRoomTest, ASmallPictureIsSmoothAtOnce) {
  UseScreen(kLargeScreen);
  store.Read(files[1]);
  const qint64 before = store.BytesOfScaled();

  Shown(files[1], 360);

  EXPECT_FALSE(store.IsWanting());
  EXPECT_EQ((store.BytesOfScaled() - before) / 1024, 360 * 360 * 4 / 1024);
}

TEST_F(PictureRoomTest, OnAUsualScreenEachPictureThatIsAtHandIsSmoothAtOnce) {
  for (const QSize screen : {kUsualScreen, kLargeScreen}) {
    UseScreen(screen);
    store.Scaled(files[1], {900, 900});

    Shown(files[1], 800 + screen.width() / 100);

    EXPECT_EQ(store.IsWanting(), screen == kLargeScreen);
  }
}

TEST_F(PictureRoomTest, APartIsMadeOutOfOneLevelWhateverIsAtHand) {
  QImage points(1000, 1000, QImage::Format_RGB32);
  for (int y = 0; y < 1000; ++y) {
    for (int x = 0; x < 1000; ++x) points.setPixel(x, y, 0xFF000000u | unsigned(x * 7919 ^ y));
  }
  const QString file = QString::fromStdString((folder.Path() / "points.png").string());
  points.save(file);
  const auto part = [&](PictureStore& pictures) {
    QImage canvas(400, 400, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    pictures.Draw(painter, file, {0, 0, 400, 400}, {0, 0, 60, 400}, PictureStore::Reading::Later);
    return canvas;
  };
  PictureStore full;
  full.Scaled(file, {900, 900});
  store.Read(file);

  EXPECT_EQ(part(full), part(store));
}

// 500 by 500 pixels are not quite an eighth of what is scaled in one go.
TEST_F(PictureRoomTest, SeveralPicturesThatHaveBeenReadAreScaledInOneGo) {
  QImage screen(4000, 4000, QImage::Format_RGB32);  // has room for all of them
  QPainter painter(&screen);
  for (const QString& file : files) {
    store.Read(file);
    const QRectF place(0, 0, 500, 500);
    store.Draw(painter, file, place, place, PictureStore::Reading::Later);
  }

  store.ReadWanted();
  EXPECT_EQ(store.BytesOfScaled() / 1024, 9 * (500 * 500 * 4 / 1024));
  EXPECT_TRUE(store.IsWanting());
  store.ReadWanted();
  EXPECT_FALSE(store.IsWanting());
}

TEST_F(PictureRoomTest, OnlyThePictureThatIsFinerHasAnotherVersion) {
  for (const int i : {1, 2}) {
    store.Read(files[i]);
    Shown(files[i], 700);
  }
  const std::uint64_t before = store.Version();

  store.ReadWanted();

  EXPECT_GT(store.Version(), before);
  EXPECT_EQ(store.VersionOf(files[1]), store.Version());
  EXPECT_EQ(store.VersionOf(files[2]), 0u);
}

TEST_F(PictureStoreTest, ACallersPictureIsMadeOnceForEachNameAndSize) {
  QImage canvas(100, 100, QImage::Format_RGB32);
  int made = 0;
  const auto kept = [&](const char* name, QSize size) {
    return store.Kept(name, size, [&] {
      ++made;
      return QPixmap(size);
    });
  };

  EXPECT_EQ(kept("slogan", {20, 10}).size(), QSize(20, 10));
  EXPECT_EQ(kept("slogan", {20, 10}).size(), QSize(20, 10));
  EXPECT_EQ(made, 1);
  kept("slogan", {40, 20});
  kept("credit", {40, 20});
  EXPECT_EQ(made, 3);
}

// A canvas of 2000 by 2000 pixels has 15.3 MB, and scaled pictures twice as much: two of them.
TEST_F(PictureRoomTest, ScaledPicturesHaveRoomForTwoScreens) {
  QImage canvas(2000, 2000, QImage::Format_RGB32);
  QPainter painter(&canvas);
  for (const int i : {0, 1, 2, 3}) store.Draw(painter, files[i], QRectF(0, 0, 2000, 2000));

  EXPECT_LE(store.BytesOfScaled(), 31 * kMegabyte);
  EXPECT_GT(store.BytesOfScaled(), 30 * kMegabyte);
}

// Nine pictures in three rows.
class NinePictures : public QWidget {
 public:
  NinePictures(PictureStore& pictures, std::vector<QString> files)
      : pictures_(pictures), files_(std::move(files)) {
    resize(1500, 1500);
  }
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    for (int i = 0; i < 9; ++i) {
      pictures_.Draw(painter, files_[i], QRectF(i % 3 * 500, i / 3 * 500, 500, 500));
    }
  }

 private:
  PictureStore& pictures_;
  std::vector<QString> files_;
};

// 3000 by 3000 pixels are 34 MB; the widget's own 1500 by 1500 would be 9, with room for 18.
TEST_F(PictureRoomTest, AWindowOnFinerPixelsThanItsScreensHasRoomForAllOfThem) {
  NinePictures widget(store, files);
  QImage canvas(3000, 3000, QImage::Format_RGB32);
  canvas.setDevicePixelRatio(2);

  widget.render(&canvas);

  EXPECT_GT(store.BytesOfScaled(), 34 * kMegabyte);
}

TEST_F(PictureStoreTest, OnlyAPictureThatWasReadAndHidesAllIsOpaque) {
  const QString red = Plain(Qt::red);
  EXPECT_FALSE(store.IsOpaque(red));

  store.Read(red);
  EXPECT_TRUE(store.IsOpaque(red));

  QImage clear(10, 10, QImage::Format_ARGB32);
  clear.fill(Qt::transparent);
  const QString file = QString::fromStdString((folder.Path() / "clear.png").string());
  clear.save(file);
  store.Read(file);
  EXPECT_FALSE(store.IsOpaque(file));
  EXPECT_FALSE(store.IsOpaque(":/pictures/icons/jumpgate.svg"));
}

class PictureVariantsTest : public PictureStoreTest {
 protected:
  QString Save(const char* name, QColor color, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QString path = QString::fromStdString((folder.Path() / name).string());
    image.save(path);
    return path;
  }

  QColor ColorAt(QSize size) { return store.Scaled(file, size).toImage().pixelColor(1, 1); }

  const QString file = Save("sky.png", Qt::red, {10, 10});
  const QString twice = Save("sky@2x.png", Qt::green, {20, 20});
  const QString fourTimes = Save("sky@4x.png", Qt::blue, {40, 40});
};

TEST_F(PictureVariantsTest, TheSmallestFileThatNeedNotBeEnlargedIsTaken) {
  EXPECT_EQ(ColorAt({5, 5}), QColor(Qt::red));
  EXPECT_EQ(ColorAt({10, 10}), QColor(Qt::red));
  EXPECT_EQ(ColorAt({11, 10}), QColor(Qt::green));
  EXPECT_EQ(ColorAt({20, 20}), QColor(Qt::green));
  EXPECT_EQ(ColorAt({20, 21}), QColor(Qt::blue));
}

TEST_F(PictureVariantsTest, LaterAFinerOneIsDrawnOnceItIsRead) {
  int told = 0;
  store.OnWanted = [&told] { ++told; };
  store.Read(file);
  const auto drawn = [this] {
    QImage canvas = Canvas(1);
    QPainter painter(&canvas);
    store.Draw(painter, file, {0, 0, 20, 20}, {0, 0, 20, 20}, PictureStore::Reading::Later);
    return canvas.pixelColor(3, 3);
  };

  EXPECT_EQ(drawn(), QColor(Qt::red));
  EXPECT_EQ(drawn(), QColor(Qt::red));
  EXPECT_EQ(told, 1);
  ASSERT_TRUE(store.IsWanting());

  store.ReadWanted();

  EXPECT_FALSE(store.IsWanting());
  EXPECT_EQ(drawn(), QColor(Qt::green));
  EXPECT_EQ(told, 1);
}

TEST_F(PictureVariantsTest, AtOnceTheRightOneIsReadWhateverIsAtHand) {
  store.Read(file);

  EXPECT_EQ(ColorAt({20, 20}), QColor(Qt::green));
  EXPECT_FALSE(store.IsWanting());
}

TEST_F(PictureVariantsTest, ALosslessPictureMayHaveABrotherThatIsAJpeg) {
  const QString thrice = Save("sky@3x.jpg", Qt::white, {30, 30});

  EXPECT_EQ(store.VariantFor(file, {21, 21}), thrice);
}

TEST_F(PictureVariantsTest, ABrotherWithThePicturesOwnEndingComesFirst) {
  Save("sky@2x.jpg", Qt::white, {20, 20});

  EXPECT_EQ(store.VariantFor(file, {20, 20}), twice);
}

TEST_F(PictureVariantsTest, BeyondAllOfThemTheLargestIsEnlarged) {
  EXPECT_EQ(store.VariantFor(file, {1000, 1000}), fourTimes);
  EXPECT_EQ(store.Scaled(file, {100, 100}).size(), QSize(100, 100));
}

TEST_F(PictureVariantsTest, AFileWithoutBrothersServesEverySize) {
  EXPECT_EQ(store.VariantFor(fourTimes, {1000, 1000}), fourTimes);
}

TEST_F(PictureVariantsTest, TheNaturalSizeIsThatOfTheFileItself) {
  EXPECT_EQ(store.NaturalSize(file), QSize(10, 10));
}

TEST_F(PictureVariantsTest, AScreenOfTwiceThePixelsShowsThePictureOfTwiceTheSize) {
  for (const int devicePixelRatio : {1, 2}) {
    QImage canvas = Canvas(devicePixelRatio);
    QPainter painter(&canvas);

    store.Draw(painter, file, {0, 0, 10, 10});
    painter.end();

    EXPECT_EQ(canvas.pixelColor(3, 3), QColor(devicePixelRatio == 1 ? Qt::red : Qt::green));
  }
}

// A drawing of 10 by 20 in blue.
class PictureDrawingsTest : public PictureStoreTest {
 protected:
  QString Draw(const char* name,
               const char* shapes = R"(<rect width="10" height="20" fill="#00f"/>)") {
    return QString::fromStdString(
        folder
            .Write(name, std::string(R"(<svg xmlns="http://www.w3.org/2000/svg" width="10" )"
                                     R"(height="20" viewBox="0 0 10 20">)") +
                             shapes + "</svg>")
            .string());
  }

  QString Png(const char* name) {
    QImage image(10, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QString path = QString::fromStdString((folder.Path() / name).string());
    image.save(path);
    return path;
  }

  QString Path(const char* name) { return QString::fromStdString((folder.Path() / name).string()); }

  QColor ColorAt(const QString& file, QSize size) {
    return store.Scaled(file, size).toImage().pixelColor(1, 1);
  }
};

TEST_F(PictureDrawingsTest, ADrawingOfTheSameNameStandsInForAFileThatIsNotThere) {
  const QString drawing = Draw("corner.svg");
  const QString file = Path("corner.png");

  EXPECT_EQ(store.VariantFor(file, {10, 20}), drawing);
  EXPECT_EQ(store.NaturalSize(file), QSize(10, 20));
  EXPECT_EQ(ColorAt(file, {5, 10}), QColor(Qt::blue));
}

TEST_F(PictureDrawingsTest, ADrawingIsTheFinestOfAllBrothers) {
  const QString file = Png("corner.png");
  Draw("corner.svg");

  EXPECT_EQ(ColorAt(file, {10, 20}), QColor(Qt::red));
  EXPECT_EQ(ColorAt(file, {11, 20}), QColor(Qt::blue));
  EXPECT_EQ(store.NaturalSize(file), QSize(10, 20));
}

TEST_F(PictureDrawingsTest, AnEdgeIsStretchedAlongAndKeepsItsLines) {
  Draw("edge.svg", R"(<rect width="10" height="10" fill="#f00"/>
                      <rect y="10" width="10" height="10" fill="#0f0"/>)");

  const QImage edge = store.Scaled(Path("edge.png"), {100, 20}).toImage();

  ASSERT_EQ(edge.size(), QSize(100, 20));
  for (const int x : {0, 50, 99}) {
    EXPECT_EQ(edge.pixelColor(x, 9), QColor(Qt::red)) << x;
    EXPECT_EQ(edge.pixelColor(x, 10), QColor(Qt::green)) << x;
  }
}

TEST_F(PictureDrawingsTest, ABrokenDrawingLeavesThePictureItself) {
  const QString file = Png("corner.png");
  folder.Write("corner.svg", "no drawing");

  EXPECT_EQ(store.VariantFor(file, {1000, 1000}), file);
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
