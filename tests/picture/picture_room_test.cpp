// SPDX-License-Identifier: MIT
// Which pictures are kept, and which are drawn before they are as fine as they get.
#include <vector>

#include "picture/picture_store_fixture.h"

namespace orrerix {
namespace {

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

// A drawing of red; in 80 by 80 pixels it is too large to be painted at once on a large screen.
TEST_F(PictureRoomTest, ADrawingIsShownInTheSizeThatIsKeptUntilItIsPaintedInAnother) {
  const auto file = QString::fromStdString(
      folder
          .Write("gate.svg",
                 R"(<svg xmlns="http://www.w3.org/2000/svg" width="10" height="10" )"
                 R"(viewBox="0 0 10 10"><rect width="10" height="10" fill="#f00"/></svg>)")
          .string());
  UseScreen(kLargeScreen);

  EXPECT_EQ(Shown(file, 60), QColor(Qt::red));
  EXPECT_FALSE(store.IsWanting());
  const qint64 small = store.BytesOfScaled();
  EXPECT_EQ(Shown(file, 80), QColor(Qt::red));
  EXPECT_TRUE(store.IsWanting());
  EXPECT_EQ(store.BytesOfScaled(), small);
  store.ReadWanted();

  EXPECT_EQ((store.BytesOfScaled() - small) / 1024, 80 * 80 * 4 / 1024);
  EXPECT_FALSE(store.IsWanting());
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

TEST_F(PictureRoomTest, WhoeverWaitsForNothingGetsAFileOnceAnotherThreadHasReadIt) {
  store.Read(files[1]);
  Shown(files[1], 700);
  const std::uint64_t before = store.Version();

  EXPECT_FALSE(store.ReadWanted(PictureStore::Waiting::ForNothing));  // it has just begun
  EXPECT_EQ(store.Version(), before);
  EXPECT_TRUE(store.IsWanting());
  while (!store.ReadWanted(PictureStore::Waiting::ForNothing)) continue;

  EXPECT_FALSE(store.IsWanting());
  EXPECT_EQ(store.VersionOf(files[1]), before + 1);
  EXPECT_EQ(store.BytesOfScaled() / 1024, 700 * 700 * 4 / 1024);
}

TEST_F(PictureRoomTest, WhatIsReadForLaterMayBeReadAtOnceMeanwhile) {
  store.Read(files[1]);
  Shown(files[1], 700);
  store.ReadWanted(PictureStore::Waiting::ForNothing);

  EXPECT_EQ(store.Scaled(files[1], {700, 700}).size(), QSize(700, 700));
  EXPECT_TRUE(store.ReadWanted(PictureStore::Waiting::ForNothing));
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

constexpr const char* kSlogan = "slogan";

// Made pictures are of one colour, so that each shows which one it is.
class MadePicturesTest : public PictureStoreTest {
 protected:
  QColor Drawn(const QString& name, QSize size, QColor color, const QString& detail = {}) {
    QImage canvas(200, 100, QImage::Format_RGB32);
    QPainter painter(&canvas);
    store.DrawMade(painter, {name, size, detail}, {0, 0}, [&, size, color] {
      ++made;
      QPixmap pixmap(size);
      pixmap.fill(color);
      return pixmap;
    });
    painter.end();
    return canvas.pixelColor(size.width() - 1, size.height() - 1);
  }

  int made = 0;
};

TEST_F(MadePicturesTest, EachIsMadeOnceForItsNameSizeAndDetail) {
  EXPECT_EQ(Drawn(kSlogan, {20, 10}, Qt::red), QColor(Qt::red));
  EXPECT_EQ(Drawn(kSlogan, {20, 10}, Qt::blue), QColor(Qt::red));
  EXPECT_EQ(made, 1);
  EXPECT_EQ(Drawn("credit", {20, 10}, Qt::green), QColor(Qt::green));
  EXPECT_EQ(made, 2);
}

TEST_F(MadePicturesTest, NearlyTheSizeThatIsKeptIsMadeAMomentLater) {
  Drawn(kSlogan, {40, 10}, Qt::red);
  const std::uint64_t before = store.Version();

  EXPECT_EQ(Drawn(kSlogan, {50, 12}, Qt::blue), QColor(Qt::red));
  EXPECT_EQ(made, 1);
  ASSERT_TRUE(store.IsWanting());
  store.ReadWanted();

  EXPECT_EQ(made, 2);
  EXPECT_GT(store.VersionOf(kSlogan), before);
  EXPECT_EQ(Drawn(kSlogan, {50, 12}, Qt::green), QColor(Qt::blue));
}

TEST_F(MadePicturesTest, WhatDiffersByItsDetailIsMadeAMomentLater) {
  Drawn(kSlogan, {40, 10}, Qt::red, "a");

  EXPECT_EQ(Drawn(kSlogan, {40, 10}, Qt::blue, "b"), QColor(Qt::red));
  store.ReadWanted();
  EXPECT_EQ(Drawn(kSlogan, {40, 10}, Qt::green, "b"), QColor(Qt::blue));
}

TEST_F(MadePicturesTest, AMuchLargerOneIsMadeAtOnce) {
  Drawn(kSlogan, {40, 10}, Qt::red);

  EXPECT_EQ(Drawn(kSlogan, {51, 12}, Qt::blue), QColor(Qt::blue));
  EXPECT_FALSE(store.IsWanting());
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

}  // namespace
}  // namespace orrerix
