// SPDX-License-Identifier: MIT
#include "forms/price_table_view.h"

#include <gtest/gtest.h>

#include "picture/form_font.h"

namespace orrerix {
namespace {

Control Label(const char* name, int index, orrerix::Box place, std::string caption) {
  Control label = MakeLabel(name, index, place, std::move(caption));
  label.FontSize = 12;
  label.BackColor = Color{0x00C000};
  label.ForeColor = Color{0x000000};
  return label;
}

// A head and one row: places in twips, 15 to a pixel.
ControlList Table() {
  return {Label("PricesHead", 2, {1250, 0, 9000, 710}, "Head"),
          Label("PricesField0", 1, {1250, 710, 6000, 710}, "Gold"),
          Label("PricesField1", 1, {7250, 710, 1500, 710}, "50"),
          Label("PricesField2", 1, {8750, 710, 1500, 710}, "10")};
}

class PriceTableViewTest : public ::testing::Test {
 protected:
  QWidget form;
  PriceTableView view{&form};
};

TEST_F(PriceTableViewTest, ItsRowsAreHeadsAndPrices) {
  view.Show(Table());

  ASSERT_EQ(view.model()->rowCount(), 2);
  EXPECT_EQ(view.model()->index(0, 0).data().toString(), "Head");
  EXPECT_EQ(view.model()->index(1, 1).data().toString(), "50");
  EXPECT_EQ(view.columnSpan(0, 0), 3);
}

TEST_F(PriceTableViewTest, LabelsKeepTheirPlacesOnThePixelGrid) {
  view.Show(Table());

  EXPECT_EQ(view.geometry().left(), 83);  // 1250 / 15
  EXPECT_EQ(view.rowHeight(0), 47);       // 710 / 15 = 47.3
  EXPECT_EQ(view.rowHeight(1), 48);       // up to 1420 / 15 = 94.7, which is 95
  EXPECT_EQ(view.geometry().height(), 95);
  EXPECT_EQ(view.columnWidth(0), 400);
  EXPECT_EQ(view.columnWidth(1), 100);
}

TEST_F(PriceTableViewTest, EachLabelHasItsColourAndFont) {
  view.Show(Table());

  const QModelIndex cell = view.model()->index(1, 0);
  EXPECT_EQ(cell.data(Qt::BackgroundRole).value<QColor>(), QColor(0, 0xC0, 0));
  EXPECT_EQ(cell.data(Qt::FontRole).value<QFont>(), FormFont(12));
}

// Their size is that at which they fill the column.
TEST_F(PriceTableViewTest, LettersThatFillAColumnLeaveItsMarginsFree) {
  ControlList table = Table();
  table[2].Caption = "MMMMMMMMMM";  // ten of 12 points and more, in 100 pixels
  view.Show(table);

  const QImage image = view.grab().toImage();

  const QColor ground(0, 0xC0, 0);
  for (int y = 48; y < 95; ++y) {
    for (const int x : {401, 402, 403, 497, 498, 499}) {  // at 400 a line parts the columns
      EXPECT_EQ(image.pixelColor(x, y), ground) << x << ", " << y;
    }
  }
}

TEST_F(PriceTableViewTest, ATradeTellsItsWholeNameInATip) {
  ControlList table = Table();
  table[1].ToolTip = "...";
  view.Show(table);

  EXPECT_EQ(view.model()->index(1, 0).data(Qt::ToolTipRole).toString(), "Gold");
  EXPECT_FALSE(view.model()->index(1, 1).data(Qt::ToolTipRole).isValid());
}

TEST_F(PriceTableViewTest, HeadsAloneFillTheWidth) {
  ControlList heads = {Label("PricesHead", 2, {0, 0, 9000, 1500}, "a"),
                       Label("PricesHead", 1, {0, 1500, 9000, 1500}, "b"),
                       Label("PricesHead", 0, {0, 3000, 9000, 1500}, "c")};

  view.Show(heads);

  EXPECT_EQ(view.model()->rowCount(), 3);
  EXPECT_EQ(view.width(), 600);
  EXPECT_EQ(view.columnWidth(0) + view.columnWidth(1) + view.columnWidth(2), 600);
}

TEST_F(PriceTableViewTest, WhatTheWindowsFrameHidesGoesOffTheLastColumn) {
  QWidget window;
  window.resize(590, 400);
  auto* inWindow = new PriceTableView(&window);

  // 600 pixels: 400, 100 and 100
  inWindow->Show({Label("PricesHead", 2, {0, 0, 9000, 450}, "a"),
                  Label("PricesField0", 1, {0, 450, 6000, 450}, "Gold"),
                  Label("PricesField1", 1, {6000, 450, 1500, 450}, "5"),
                  Label("PricesField2", 1, {7500, 450, 1500, 450}, "1")});

  EXPECT_EQ(inWindow->width(), 590);
  EXPECT_EQ(inWindow->columnWidth(1), 100);
  EXPECT_EQ(inWindow->columnWidth(2), 90);
}

}  // namespace
}  // namespace orrerix
