// SPDX-License-Identifier: MIT
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include "forms/start/import_screen.h"

namespace orrerix {
namespace {

TEST(ProgressShape, ItsBorderGoesToTheEdgeOnFineScreensToo) {
  ProgressShape shape(Color{0x0000FF}, Color{0xFF0000}, nullptr);
  shape.resize(30, 20);
  QImage image(60, 40, QImage::Format_RGB32);
  image.setDevicePixelRatio(2);
  image.fill(Qt::white);

  shape.render(&image);

  const QColor red(255, 0, 0);
  const QColor blue(0, 0, 255);
  for (const QPoint border : {QPoint(0, 0), QPoint(1, 20), QPoint(58, 20), QPoint(59, 20),
                              QPoint(30, 38), QPoint(30, 39), QPoint(59, 39)}) {
    EXPECT_EQ(image.pixelColor(border), red) << border.x() << ", " << border.y();
  }
  for (const QPoint fill : {QPoint(2, 2), QPoint(57, 37), QPoint(30, 20)}) {
    EXPECT_EQ(image.pixelColor(fill), blue) << fill.x() << ", " << fill.y();
  }
}

}  // namespace
}  // namespace orrerix
