// SPDX-License-Identifier: MIT
#include "forms/station/price_table_view.h"

#include <gtest/gtest.h>

#include "picture/form_font.h"

namespace orrerix {
namespace {

PriceLabel Label(TwipRect place, std::string caption) {
  return {std::move(caption), place, 12, {0x000000}, {0x00C000}};
}

// A head and one row: places in twips, 15 to a pixel.
PriceTable Table() {
  PriceTable table;
  table.Group = 2;
  table.Head = Label({1250, 0, 9000, 710}, "Head");
  table.Rows = {{1, "commodity_gold", false, Label({1250, 710, 6000, 710}, "Gold"),
                 Label({7250, 710, 1500, 710}, "50"), Label({8750, 710, 1500, 710}, "10")}};
  return table;
}

class PriceTableViewTest : public ::testing::Test {
 protected:
  QWidget form;
  PriceTableView view{&form};
};

TEST_F(PriceTableViewTest, ItsRowsAreHeadsAndPrices) {
  view.Show({Table()});

  ASSERT_EQ(view.model()->rowCount(), 2);
  EXPECT_EQ(view.model()->index(0, 0).data().toString(), "Head");
  EXPECT_EQ(view.model()->index(1, 1).data().toString(), "50");
  EXPECT_EQ(view.columnSpan(0, 0), 3);
}

TEST_F(PriceTableViewTest, LabelsKeepTheirPlacesOnThePixelGrid) {
  view.Show({Table()});

  EXPECT_EQ(view.geometry().left(), 83);  // 1250 / 15
  EXPECT_EQ(view.rowHeight(0), 47);       // 710 / 15 = 47.3
  EXPECT_EQ(view.rowHeight(1), 48);       // up to 1420 / 15 = 94.7, which is 95
  EXPECT_EQ(view.geometry().height(), 95);
  EXPECT_EQ(view.columnWidth(0), 400);
  EXPECT_EQ(view.columnWidth(1), 100);
}

TEST_F(PriceTableViewTest, EachLabelHasItsColourAndFont) {
  view.Show({Table()});

  const QModelIndex cell = view.model()->index(1, 0);
  EXPECT_EQ(cell.data(Qt::BackgroundRole).value<QColor>(), QColor(0, 0xC0, 0));
  EXPECT_EQ(cell.data(Qt::FontRole).value<QFont>(), FormFont(12));
}

// Their size is that at which they fill the column.
TEST_F(PriceTableViewTest, LettersThatFillAColumnLeaveItsMarginsFree) {
  PriceTable table = Table();
  table.Rows[0].Price.Caption = "MMMMMMMMMM";  // ten of 12 points and more, in 100 pixels
  view.Show({table});

  const QImage image = view.grab().toImage();

  const QColor ground(0, 0xC0, 0);
  for (int y = 48; y < 95; ++y) {
    for (const int x : {401, 402, 403, 497, 498, 499}) {  // at 400 a line parts the columns
      EXPECT_EQ(image.pixelColor(x, y), ground) << x << ", " << y;
    }
  }
}

TEST_F(PriceTableViewTest, ATradeTellsItsWholeNameInATip) {
  PriceTable table = Table();
  table.Rows[0].IsTrade = true;
  view.Show({table});

  EXPECT_EQ(view.model()->index(1, 0).data(Qt::ToolTipRole).toString(), "<span>Gold</span>");
  EXPECT_FALSE(view.model()->index(1, 1).data(Qt::ToolTipRole).isValid());
}

TEST_F(PriceTableViewTest, HeadsAloneFillTheWidth) {
  view.Show({{2, Label({0, 0, 9000, 1500}, "a"), {}},
             {1, Label({0, 1500, 9000, 1500}, "b"), {}},
             {0, Label({0, 3000, 9000, 1500}, "c"), {}}});

  EXPECT_EQ(view.model()->rowCount(), 3);
  EXPECT_EQ(view.width(), 600);
  EXPECT_EQ(view.columnWidth(0) + view.columnWidth(1) + view.columnWidth(2), 600);
}

TEST_F(PriceTableViewTest, WhatTheWindowsFrameHidesGoesOffTheLastColumn) {
  QWidget window;
  window.resize(590, 400);
  auto* inWindow = new PriceTableView(&window);

  // 600 pixels: 400, 100 and 100
  PriceTable table;
  table.Head = Label({0, 0, 9000, 450}, "a");
  table.Rows = {{1, "commodity_gold", false, Label({0, 450, 6000, 450}, "Gold"),
                 Label({6000, 450, 1500, 450}, "5"), Label({7500, 450, 1500, 450}, "1")}};
  inWindow->Show({table});

  EXPECT_EQ(inWindow->width(), 590);
  EXPECT_EQ(inWindow->columnWidth(1), 100);
  EXPECT_EQ(inWindow->columnWidth(2), 90);
}

}  // namespace
}  // namespace orrerix
