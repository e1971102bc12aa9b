// SPDX-License-Identifier: MIT
#include "info/station/station_layout.h"

#include <stdexcept>

#include <gmock/gmock.h>

#include "support/station_fixture.h"

namespace orrerix {
namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;

class StationLayout : public StationFixture {
 protected:
  // A view in a window that leaves 9000 x 5000 twips to it.
  StationPicture LayOut(StationMode mode, int width = 9000, int height = 5000) {
    const StationTexts texts = ReadStationTexts({}, mode, english);
    return LayOutStation(universe, words, measure,
                         {data, texts, mode, kStationMargin + 50 + width, height + 200});
  }

  Wording words{english, {}};
  FixedTextMeasure measure;
  StationData data;
};

TEST_F(StationLayout, TheInfoIsWrappedToTheWindow) {
  data.Info = "\r\nabcd efgh\r\n";

  const ControlList info = LayOut(StationMode::Info).Controls;
  ASSERT_THAT(info, SizeIs(1));
  EXPECT_EQ(info[0].Id, ControlId::BoxText);
  EXPECT_EQ(info[0].Place, (TwipRect{kStationMargin + 50, 0, 9000, 5000}));
  EXPECT_EQ(info[0].Caption, "\r\nabcd efgh \r\n");

  // With 1200 - 300 twips there is room for less than 900 / 108 = 8.3 characters.
  EXPECT_EQ(LayOut(StationMode::Info, 1200).Controls[0].Caption, "\r\nabcd\r\nefgh \r\n");
}

TEST_F(StationLayout, AWindowThatIsTooSmallHasAnEmptyBox) {
  data.Info = "a b";

  const ControlList info = LayOut(StationMode::Info, -5000, -5000).Controls;

  EXPECT_EQ(info[0].Place.Width, 0);
  EXPECT_EQ(info[0].Place.Height, 0);
}

TEST_F(StationLayout, AListStandsBesideTheTextOfItsFirstRow) {
  data.Ships = {{"comet_package", "Long Comet"}, {"arrow_package", "Arrow"}};
  Add("Ships", {{"NickName", "comet"},
                {"packagename", "Comet_Package"},
                {"price", 700},
                {"ids_info1", 8},
                {"ids_info", 9},
                {"mass", 12.5}});
  Info(8, "First.");
  Info(9, "Second.");

  const ControlList list = LayOut(StationMode::Ships).Controls;

  ASSERT_THAT(list, SizeIs(3));
  EXPECT_EQ(list[0].Id, ControlId::ForSaleFrame);
  EXPECT_EQ(list[0].Caption, "Select a Ship");
  // Ten characters: 1080, and 200; the frame has a margin of 120 on both sides.
  EXPECT_EQ(list[0].Place, (TwipRect{kStationMargin, 0, 1520, 5000}));
  EXPECT_EQ(list[1].Id, ControlId::ForSaleList);
  EXPECT_EQ(list[1].Place, (TwipRect{120, 240, 1280, 4520}));
  EXPECT_EQ(list[2].Place, (TwipRect{kStationMargin + 1520.0, 0, 9000 - 1520, 5000}));
  EXPECT_THAT(*list[2].Caption,
              ::testing::StartsWith("\r\n   Price: 700   -  First.Second.\r\n\r\n\r\n"
                                    " Extra-Stats\r\n Mass:    \t12.5\r\n Steering:\t\t\t\r\n"));
  EXPECT_THAT(*list[2].Caption, ::testing::EndsWith(" Strafe-Force/-Powerusage: \t/"));
}

TEST_F(StationLayout, AShipThatIsGoneLeavesALineEnd) {
  data.Ships = {{"arrow_package", "Arrow"}};

  EXPECT_EQ(LayOut(StationMode::Ships).Controls[2].Caption, "\r\n");
}

TEST_F(StationLayout, EquipmentHasItsInfoText) {
  data.Equipment = {{"lamp", "Lamp"}};
  Good("lamp", "Lamp", 12);

  const ControlList list = LayOut(StationMode::Equipment).Controls;

  EXPECT_EQ(list[0].Caption, "Select Equipment");
  EXPECT_THAT(*list[2].Caption, HasSubstr("Price: 12  -  "));
}

class PriceTableTest : public StationLayout {
 protected:
  using Tables = std::vector<PriceTable>;

  Tables Show(StationMode mode) { return LayOut(mode).Prices; }

  static std::size_t RowsOf(const Tables& tables) {
    std::size_t rows = 0;
    for (const PriceTable& table : tables) rows += table.Rows.size();
    return rows;
  }

  // The head of a group; a row by its number.
  static const PriceLabel& Head(const Tables& tables, int group) {
    for (const PriceTable& table : tables) {
      if (table.Group == group) return table.Head;
    }
    throw std::runtime_error("no group " + std::to_string(group));
  }
  static const PriceRow& Row(const Tables& tables, int number) {
    for (const PriceTable& table : tables) {
      for (const PriceRow& row : table.Rows) {
        if (row.Number == number) return row;
      }
    }
    throw std::runtime_error("no row " + std::to_string(number));
  }
};

TEST_F(PriceTableTest, WithoutRowsTheHeadsStandOneBelowTheOther) {
  const Tables table = Show(StationMode::Prices);

  ASSERT_THAT(table, SizeIs(3));  // rows of 5000 / 5
  EXPECT_EQ(RowsOf(table), 0u);
  EXPECT_EQ(Head(table, 2).Place, (TwipRect{kStationMargin + 50, 0, 9000, 1000}));
  EXPECT_EQ(Head(table, 1).Place.Top, 1000);
  EXPECT_EQ(Head(table, 0).Place.Top, 2000);
  EXPECT_EQ(Head(table, 2).Caption, "Commodities Buy Prices");
  EXPECT_EQ(Head(table, 1).Caption, "Commodities Sell Prices");
  EXPECT_EQ(Head(table, 0).Caption, "Commodities Standard Sell Prices");
  EXPECT_EQ(Head(table, 0).BackColor, Color{0x400000});
  EXPECT_EQ(Head(table, 0).ForeColor, Color{0x00FFFF});
}

TEST_F(PriceTableTest, RowsStandBelowTheirHeadsInThreeColumns) {
  data.Prices = {{2, "commodity_gold", "50", "10"}, {1, "commodity_food", "20", "-5"}};
  Add("commodity", {{"nickname", "commodity_gold"}, {"realname", "Gold"}});
  Add("commodity", {{"nickname", "commodity_food"}, {"realname", "Food"}});

  const Tables table = Show(StationMode::Prices);

  // 5000 / (2 + 5) = 714.29; a sixth of the width is 1500.
  ASSERT_THAT(table, SizeIs(3));
  ASSERT_EQ(RowsOf(table), 2u);
  EXPECT_EQ(Row(table, 1).Name.Place, (TwipRect{kStationMargin + 50, 714, 6000, 714}));
  EXPECT_EQ(Row(table, 1).Price.Place, (TwipRect{kStationMargin + 6050, 714, 1500, 714}));
  EXPECT_EQ(Row(table, 1).Difference.Place, (TwipRect{kStationMargin + 7550, 714, 1500, 714}));
  EXPECT_EQ(Head(table, 1).Place.Top, 1428);
  EXPECT_EQ(Row(table, 2).Name.Place.Top, 2142);
  EXPECT_EQ(Head(table, 0).Place.Top, 2856);
  EXPECT_EQ(Row(table, 1).Name.Caption, "Gold");
  EXPECT_EQ(Row(table, 1).Good, "commodity_gold");
  EXPECT_EQ(Row(table, 2).Price.Caption, "20");
  EXPECT_EQ(Row(table, 2).Difference.Caption, "-5");
}

TEST_F(PriceTableTest, EachGroupHasItsColour) {
  data.Prices = {{2, "a", "1", ""}, {1, "b", "2", ""}, {0, "c", "3", ""}};

  const Tables table = Show(StationMode::Prices);

  const auto expectBack = [&](int number, Color back) {
    const PriceRow& row = Row(table, number);
    EXPECT_EQ(row.Name.BackColor, back);
    EXPECT_EQ(row.Price.BackColor, back);
    EXPECT_EQ(row.Difference.BackColor, back);
  };
  expectBack(1, {0x00C000});
  expectBack(2, {0x0000FF});
  expectBack(3, {0xFFC0C0});
}

TEST_F(PriceTableTest, EachTextHasTheLargestFontThatFitsItsLabel) {
  data.Prices = {{2, "commodity_gold", "50", ""}};
  Add("commodity", {{"nickname", "commodity_gold"}, {"realname", "Gold"}});

  const Tables table = Show(StationMode::Prices);

  // Rows are 5000 / 6 = 833 high: 34 x 24 = 816. Heads: "Commodities Buy Prices" has 22
  // characters: 34 x 12 x 22 = 8976.
  EXPECT_EQ(Row(table, 1).Name.FontSize, 34);
  EXPECT_EQ(Head(table, 2).FontSize, 34);
  // "Commodities Standard Sell Prices" has 32 characters: 23 x 12 x 32 = 8832.
  EXPECT_EQ(Head(table, 0).FontSize, 23);
}

TEST_F(PriceTableTest, RowsBeforeACancelledFailureStay) {
  messages.Answer = MessageAnswer::Cancel;
  data.Prices = {{2, "commodity_gold", "50", "10"}, {1, "sys'a,mole,commodity_gold", "90", "40"}};

  const Tables table = Show(StationMode::Trades);

  // Two heads and the row between them; the quote breaks the query for the next one's system.
  ASSERT_THAT(table, SizeIs(2));
  EXPECT_THAT(table[0].Rows, SizeIs(1));
  EXPECT_THAT(table[1].Rows, SizeIs(0));
}

TEST_F(PriceTableTest, TradesAreNamedByGoodSystemAndStation) {
  data.Prices = {{2, "commodity_gold", "50", ""},
                 {1, "sys_a,pier,commodity_gold", "90", "40"},
                 {0, "sys_b,nowhere,commodity_gold", "70", "20"}};
  Add("commodity", {{"nickname", "commodity_gold"}, {"realname", "Gold"}});
  Add("Systems", {{"nickname", "SYS_A"}, {"realname", "Lantern"}});
  Add("Systems", {{"nickname", "sys_b"}, {"realname", "Wick"}});
  Dock("Pier", "Pier Nine");

  const Tables table = Show(StationMode::Trades);

  EXPECT_EQ(Row(table, 1).Name.Caption, "Gold");
  EXPECT_FALSE(Row(table, 1).IsTrade);
  EXPECT_EQ(Row(table, 2).Name.Caption, "Gold Lantern, Pier Nine");
  EXPECT_TRUE(Row(table, 2).IsTrade);
  EXPECT_EQ(Row(table, 3).Name.Caption, "Gold Wick");
  EXPECT_EQ(Head(table, 1).Caption, "Best Trades inside System");
  EXPECT_EQ(Head(table, 0).Caption, "Best Trades outside System");
}

}  // namespace
}  // namespace orrerix
