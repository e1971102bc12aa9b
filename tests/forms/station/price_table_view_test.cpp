// SPDX-License-Identifier: MIT
#include "forms/station/price_table_view.h"

#include <gtest/gtest.h>

#include "forms/station/price_colors.h"
#include "picture/form_font.h"
#include "shell/language.h"

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
  FixedLanguage english{Language::English};
  QWidget form;
  PriceTableView view{english, &form};
};

TEST_F(PriceTableViewTest, ItsRowsAreHeadsAndPrices) {
  view.Show({Table()});

  ASSERT_EQ(view.model()->rowCount(), 2);
  EXPECT_EQ(view.model()->index(0, 0).data().toString(), "Head");
  EXPECT_EQ(view.model()->index(1, 1).data().toString(), "50");
}

TEST_F(PriceTableViewTest, EachHeadNamesTheColumnsOfItsGroup) {
  view.Show({Table()});

  EXPECT_EQ(view.columnSpan(0, 0), 1);
  EXPECT_EQ(view.model()->index(0, 1).data().toString(), "Price");
  EXPECT_EQ(view.model()->index(0, 2).data().toString(), "Gain");
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

TEST_F(PriceTableViewTest, AllLettersHaveOneSizeWhateverTheLabelsHave) {
  PriceTable table = Table();
  table.Rows[0].Price.FontSize = 30;
  view.Show({table});

  for (int column = 0; column < kPriceColumns; ++column) {
    EXPECT_EQ(view.model()->index(1, column).data(Qt::FontRole).value<QFont>(), FormFont(11));
  }
}

// 92 pixels are too few for ten wide letters of 9 points, let alone more.
TEST_F(PriceTableViewTest, ALongTextMakesAllLettersSmallerButNotTooSmall) {
  PriceTable table = Table();
  table.Rows[0].Price.Caption = "MMMMMMMMMM";
  view.Show({table});

  EXPECT_EQ(view.model()->index(1, 0).data(Qt::FontRole).value<QFont>(), FormFont(8));
}

// 50 wide letters in 400 pixels leave 8 for each: those of 11 points are wider.
TEST_F(PriceTableViewTest, ALongHeadMakesThemSmallerToo) {
  PriceTable table = Table();
  table.Head.Caption = QString(50, 'M').toStdString();
  view.Show({table});

  EXPECT_LT(view.model()->index(1, 0).data(Qt::FontRole).value<QFont>().pixelSize(),
            FormFont(11).pixelSize());
}

// 210 twips are 14 pixels: lower than a line of 11 points, which are 15 pixels.
TEST_F(PriceTableViewTest, LowRowsHaveLowerLetters) {
  PriceTable table = Table();
  table.Head.Place.Height = 210;
  view.Show({table});

  EXPECT_LT(view.model()->index(1, 0).data(Qt::FontRole).value<QFont>().pixelSize(),
            FormFont(11).pixelSize());
}

TEST_F(PriceTableViewTest, ARowHasTheColoursOfItsGroup) {
  view.Show({Table()});

  const QModelIndex cell = view.model()->index(1, 0);
  EXPECT_EQ(cell.data(Qt::BackgroundRole).value<QColor>(), PriceRowColors(2).Ground);
  EXPECT_EQ(cell.data(Qt::ForegroundRole).value<QColor>(), PriceRowColors(2).Letters);
}

TEST_F(PriceTableViewTest, ATextThatDoesNotFitLeavesTheMarginsFree) {
  PriceTable table = Table();
  table.Rows[0].Price.Caption = "MMMMMMMMMMMMMMMM";  // 16 of 11 points and more, in 100 pixels
  view.Show({table});

  const QImage image = view.grab().toImage();

  for (int y = 48; y < 95; ++y) {
    for (const int x : {401, 402, 403, 497, 498, 499}) {  // at 400 a line parts the columns
      EXPECT_EQ(image.pixelColor(x, y), PriceRowColors(2).Ground) << x << ", " << y;
    }
  }
}

TEST_F(PriceTableViewTest, EachCellTellsItsWholeTextInATip) {
  view.Show({Table()});

  EXPECT_EQ(view.model()->index(1, 0).data(Qt::ToolTipRole).toString(), "<span>Gold</span>");
  EXPECT_EQ(view.model()->index(1, 1).data(Qt::ToolTipRole).toString(), "<span>50</span>");
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
  auto* inWindow = new PriceTableView(english, &window);

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
