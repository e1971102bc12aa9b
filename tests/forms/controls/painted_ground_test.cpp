// SPDX-License-Identifier: MIT
#include "forms/controls/painted_ground.h"

#include <QImage>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(PaintedBorder, ItsPiecesLieAlongTheInsideOfTheRectangle) {
  QImage image(200, 100, QImage::Format_RGB32);
  image.fill(Qt::magenta);
  PictureStore pictures;
  QPainter painter(&image);

  PaintBorder(painter, BorderSet::Map, {10, 10, 180, 80}, pictures);
  painter.end();

  // Edges are 4 thick: from 10, and up to 190 and 90.
  for (const QPoint edge : {QPoint(100, 10), QPoint(100, 13), QPoint(10, 50), QPoint(13, 50),
                            QPoint(186, 50), QPoint(189, 50), QPoint(100, 86), QPoint(100, 89)}) {
    EXPECT_NE(image.pixelColor(edge), QColor(Qt::magenta)) << edge.x() << ", " << edge.y();
  }
  for (const QPoint free : {QPoint(100, 9), QPoint(100, 14), QPoint(9, 50), QPoint(14, 50),
                            QPoint(185, 50), QPoint(190, 50), QPoint(100, 85), QPoint(100, 90)}) {
    EXPECT_EQ(image.pixelColor(free), QColor(Qt::magenta)) << free.x() << ", " << free.y();
  }
}

}  // namespace
}  // namespace orrerix
