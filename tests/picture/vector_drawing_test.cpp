// SPDX-License-Identifier: MIT
#include "picture/vector_drawing.h"

#include <QDirIterator>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

class VectorDrawingTest : public ::testing::Test {
 protected:
  std::unique_ptr<VectorDrawing> Read(const std::string& content) {
    return VectorDrawing::Read(QString::fromStdString(folder.Write("a.svg", content).string()));
  }

  // A drawing of 20 by 20 units, painted so that a unit is a pixel.
  QImage Paint(const std::string& shapes) {
    const auto drawing =
        Read(R"svg(<svg width="20" height="20" viewBox="0 0 20 20">)svg" + shapes + "</svg>");
    QImage image(20, 20, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    if (drawing) drawing->Paint(painter, QRectF(0, 0, 20, 20));
    return image;
  }

  TempFolder folder;
};

TEST_F(VectorDrawingTest, HasTheSizeOfItsAttributes) {
  const auto drawing = Read(R"svg(<svg width="40" height="30" viewBox="-1 -1 42 32"/>)svg");

  ASSERT_NE(drawing, nullptr);
  EXPECT_EQ(drawing->Size(), QSize(40, 30));
}

TEST_F(VectorDrawingTest, IsNoneWithoutASizeOrIfItIsBroken) {
  EXPECT_EQ(Read("<svg/>"), nullptr);
  EXPECT_EQ(Read("no drawing"), nullptr);
  EXPECT_EQ(Read(R"svg(<svg width="40" height="30"><g></svg>)svg"), nullptr);
  EXPECT_EQ(Read(R"svg(<html width="40" height="30"/>)svg"), nullptr);
  EXPECT_EQ(VectorDrawing::Read("/none.svg"), nullptr);
}

TEST_F(VectorDrawingTest, FillsShapesInTheirOrder) {
  const QImage image = Paint(
      R"svg(<rect width="20" height="20" fill="#ff0000"/><rect x="10" width="10" height="10" fill="#0000ff"/>)svg");

  EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(15, 5), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(15, 15), QColor(Qt::red));
}

TEST_F(VectorDrawingTest, TakesCirclesEllipsesAndPaths) {
  const QImage image = Paint(R"svg(<circle cx="5" cy="5" r="4" fill="#ff0000"/>
      <ellipse cx="15" cy="5" rx="4" ry="2" fill="#00ff00"/>
      <path d="M0 10H20V20H0Z" fill="#0000ff"/>)svg");

  EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
  EXPECT_EQ(image.pixelColor(15, 5), QColor(Qt::green));
  EXPECT_EQ(image.pixelColor(15, 1).alpha(), 0);
  EXPECT_EQ(image.pixelColor(10, 15), QColor(Qt::blue));
}

TEST_F(VectorDrawingTest, StrokesHaveWidthAndColour) {
  const QImage image =
      Paint(R"svg(<path d="M0 10H20" fill="none" stroke="#ff0000" stroke-width="4"/>)svg");

  EXPECT_EQ(image.pixelColor(10, 8), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(10, 11), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(10, 7).alpha(), 0);
  EXPECT_EQ(image.pixelColor(10, 12).alpha(), 0);
}

TEST_F(VectorDrawingTest, GroupsHandTheirStyleAndPlaceOn) {
  const QImage image = Paint(R"svg(<g fill="#ff0000" transform="matrix(-1 0 0 1 20 0)">
      <rect width="5" height="5"/><rect y="10" width="5" height="5" fill="#0000ff"/></g>)svg");

  EXPECT_EQ(image.pixelColor(17, 2), QColor(Qt::red));  // mirrored: 0 to 5 is 15 to 20
  EXPECT_EQ(image.pixelColor(2, 2).alpha(), 0);
  EXPECT_EQ(image.pixelColor(17, 12), QColor(Qt::blue));
}

TEST_F(VectorDrawingTest, RotatesAboutAPoint) {
  // A quarter turn about the centre takes the upper edge to the right-hand one.
  const QImage image =
      Paint(R"svg(<rect width="20" height="5" fill="#ff0000" transform="rotate(90 10 10)"/>)svg");

  EXPECT_EQ(image.pixelColor(17, 10), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(10, 2).alpha(), 0);
}

TEST_F(VectorDrawingTest, OpacityLetsTheGroundThrough) {
  const QImage image =
      Paint(R"svg(<rect width="20" height="20" fill="#ff0000" fill-opacity="0.5"/>)svg");

  EXPECT_NEAR(image.pixelColor(10, 10).alpha(), 128, 1);
}

TEST_F(VectorDrawingTest, GradientsRunInTheDrawingsCoordinates) {
  const QImage image = Paint(R"svg(<defs>
      <linearGradient id="a" gradientUnits="userSpaceOnUse" x1="0" y1="0" x2="20" y2="0">
        <stop offset="0" stop-color="#000000"/><stop offset="1" stop-color="#ffffff"/>
      </linearGradient></defs><rect width="20" height="20" fill="url(#a)"/>)svg");

  // The middle of pixel 5 is at 5.5 of 20: 70.125 of 255.
  EXPECT_NEAR(image.pixelColor(5, 10).red(), 70, 3);
  EXPECT_NEAR(image.pixelColor(15, 10).red(), 198, 3);
}

TEST_F(VectorDrawingTest, PassesOverWhatItDoesNotKnow) {
  const QImage image = Paint(R"svg(<text x="1"><rect width="20" height="20" fill="#ff0000"/></text>
      <rect x="10" width="10" height="20" fill="#0000ff"/><path d="M0 0 q1 1 2 2"/>
      <rect width="5" height="5" fill="url(#none)"/>)svg");

  EXPECT_EQ(image.pixelColor(2, 2).alpha(), 0);
  EXPECT_EQ(image.pixelColor(15, 5), QColor(Qt::blue));
}

TEST_F(VectorDrawingTest, ReadsEveryDrawingOfTheProgram) {
  int count = 0;
  for (QDirIterator each(":/pictures", {"*.svg"}, QDir::Files, QDirIterator::Subdirectories);
       each.hasNext();) {
    const QString file = each.next();
    const auto drawing = VectorDrawing::Read(file);
    ASSERT_NE(drawing, nullptr) << file.toStdString();
    QImage image(drawing->Size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const QImage empty = image;
    QPainter painter(&image);
    drawing->Paint(painter, QRectF(image.rect()));
    painter.end();
    EXPECT_NE(image, empty) << file.toStdString();
    ++count;
  }
  EXPECT_GT(count, 50);
}

}  // namespace
}  // namespace orrerix
