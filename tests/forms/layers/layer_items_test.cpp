// SPDX-License-Identifier: MIT
#include "forms/layers/layer_items.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QWidget>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

class PaintedItemTest : public ::testing::Test {
 protected:
  PaintedItemTest() { item.Renew({10, 10, 50, 40}); }

  void ShowInWindow() {
    QPainter painter(&canvas);
    QStyleOptionGraphicsItem option;
    item.Draw(painter, option, &window);
  }

  QWidget window;
  QImage canvas{100, 100, QImage::Format_RGB32};
  QColor color = Qt::transparent;
  int count = 0;
  PaintedItem item{[this](QPainter& painter, const QRectF&) {
    ++count;
    painter.fillRect(QRectF(20, 20, 1, 1), color);
  }};
};

TEST_F(PaintedItemTest, APictureWithNothingInItIsNotKept) {
  ShowInWindow();
  ShowInWindow();

  EXPECT_EQ(item.BytesOfPicture(), 0);
  EXPECT_EQ(count, 1);
}

TEST_F(PaintedItemTest, ASinglePointIsEnoughToKeepIt) {
  color = Qt::red;
  ShowInWindow();
  canvas.fill(Qt::black);
  ShowInWindow();

  EXPECT_EQ(item.BytesOfPicture(), 50 * 40 * 4);
  EXPECT_EQ(count, 1);
  EXPECT_EQ(canvas.pixelColor(20, 20), QColor(Qt::red));
  EXPECT_EQ(canvas.pixelColor(21, 20), QColor(Qt::black));
}

TEST_F(PaintedItemTest, OtherContentIsPaintedAgain) {
  ShowInWindow();
  color = Qt::red;
  item.Renew({10, 10, 50, 40});
  ShowInWindow();

  EXPECT_EQ(canvas.pixelColor(20, 20), QColor(Qt::red));
}

}  // namespace
}  // namespace orrerix
