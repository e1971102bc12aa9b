// SPDX-License-Identifier: MIT
#include "forms/info_box.h"

#include <QAbstractScrollArea>
#include <QImage>

#include <gtest/gtest.h>

#include "info/box_controls.h"

namespace orrerix {
namespace {

// 3000 x 1500 twips are 200 x 100 pixels.
TEST(InfoBox, HasItsOwnColoursAlsoOnAListsView) {
  QAbstractScrollArea map;
  map.setGeometry(0, 0, 300, 200);
  InfoBox box(map.viewport());

  box.Show({BoxShape({0, 0, 3000, 1500}, ShapeForm::Rectangle),
            BoxText({200, 150, 2550, 1200}, "Courette")});
  const QImage image = box.grab().toImage();

  ASSERT_EQ(image.size(), QSize(200, 100));
  EXPECT_EQ(image.pixelColor(0, 50), QColor(64, 128, 176));
  EXPECT_EQ(image.pixelColor(100, 99), QColor(64, 128, 176));
  EXPECT_EQ(image.pixelColor(5, 50), QColor(0, 0, 64));
  EXPECT_EQ(image.pixelColor(190, 95), QColor(0, 0, 64));
}

TEST(InfoBox, HidesWithoutControls) {
  QWidget map;
  InfoBox box(&map);
  box.Show({BoxShape({0, 0, 3000, 1500}, ShapeForm::Rectangle),
            BoxText({200, 150, 2550, 1200}, "Courette")});
  ASSERT_FALSE(box.isHidden());

  box.Show({});

  EXPECT_TRUE(box.isHidden());
}

}  // namespace
}  // namespace orrerix
