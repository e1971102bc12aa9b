// SPDX-License-Identifier: MIT
#include "picture/picture_sources.h"

#include "picture/picture_store_fixture.h"

namespace orrerix {
namespace {

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

// The picture in 10 by 10 pixels is red, that of twice the size green, that of four times blue.
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

}  // namespace
}  // namespace orrerix
