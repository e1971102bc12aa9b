// SPDX-License-Identifier: MIT
#include "info/station_layout.h"

#include <gmock/gmock.h>

#include "support/station_fixture.h"

namespace orrerix {
namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;

class StationLayout : public StationFixture {
 protected:
  // A view in a window that leaves 9000 x 5000 twips to it.
  ControlList LayOut(StationMode mode, int width = 9000, int height = 5000) {
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

  const ControlList info = LayOut(StationMode::Info);
  ASSERT_THAT(info, SizeIs(1));
  EXPECT_EQ(info[0].Name, "InfoText");
  EXPECT_EQ(info[0].Place, (Box{kStationMargin + 50, 0, 9000, 5000}));
  EXPECT_EQ(info[0].Caption, "\r\nabcd efgh \r\n");

  // With 1200 - 300 twips there is room for less than 900 / 108 = 8.3 characters.
  EXPECT_EQ(LayOut(StationMode::Info, 1200)[0].Caption, "\r\nabcd\r\nefgh \r\n");
}

TEST_F(StationLayout, AWindowThatIsTooSmallHasAnEmptyBox) {
  data.Info = "a b";

  const ControlList info = LayOut(StationMode::Info, -5000, -5000);

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

  const ControlList list = LayOut(StationMode::Ships);

  ASSERT_THAT(list, SizeIs(3));
  EXPECT_EQ(list[0].Name, "SearchFrame");
  EXPECT_EQ(list[0].Caption, "Select a Ship");
  // Ten characters: 1080, and 200; the frame has a margin of 120 on both sides.
  EXPECT_EQ(list[0].Place, (Box{kStationMargin, 0, 1520, 5000}));
  EXPECT_EQ(list[1].Name, "SearchList");
  EXPECT_EQ(list[1].Place, (Box{120, 240, 1280, 4520}));
  EXPECT_EQ(list[2].Place, (Box{kStationMargin + 1520.0, 0, 9000 - 1520, 5000}));
  EXPECT_THAT(*list[2].Caption,
              ::testing::StartsWith("\r\n   Price: 700   -  First.Second.\r\n\r\n\r\n"
                                    " Extra-Stats\r\n Mass:    \t12.5\r\n Steering:\t\t\t\r\n"));
  EXPECT_THAT(*list[2].Caption, ::testing::EndsWith(" Strafe-Force/-Powerusage: \t/"));
}

TEST_F(StationLayout, AShipThatIsGoneLeavesALineEnd) {
  data.Ships = {{"arrow_package", "Arrow"}};

  EXPECT_EQ(LayOut(StationMode::Ships)[2].Caption, "\r\n");
}

TEST_F(StationLayout, EquipmentHasItsInfoText) {
  data.Equipment = {{"lamp", "Lamp"}};
  Good("lamp", "Lamp", 12);

  const ControlList list = LayOut(StationMode::Equipment);

  EXPECT_EQ(list[0].Caption, "Select Equipment");
  EXPECT_THAT(*list[2].Caption, HasSubstr("Price: 12  -  "));
}

class PriceTableTest : public StationLayout {
 protected:
  const Control& Find(const ControlList& controls, std::string_view name, int index) {
    for (const Control& control : controls) {
      if (control.Name == name && control.Index == index) return control;
    }
    ADD_FAILURE() << "no " << name << "(" << index << ")";
    return controls.front();
  }
};

TEST_F(PriceTableTest, WithoutRowsTheHeadsStandOneBelowTheOther) {
  const ControlList table = LayOut(StationMode::Prices);

  ASSERT_THAT(table, SizeIs(3));  // rows of 5000 / 5
  EXPECT_EQ(Find(table, "PricesHead", 2).Place, (Box{kStationMargin + 50, 0, 9000, 1000}));
  EXPECT_EQ(Find(table, "PricesHead", 1).Place.Top, 1000);
  EXPECT_EQ(Find(table, "PricesHead", 0).Place.Top, 2000);
  EXPECT_EQ(Find(table, "PricesHead", 2).Caption, "Commodities Buy Prices");
  EXPECT_EQ(Find(table, "PricesHead", 1).Caption, "Commodities Sell Prices");
  EXPECT_EQ(Find(table, "PricesHead", 0).Caption, "Commodities Standard Sell Prices");
  EXPECT_EQ(Find(table, "PricesHead", 0).BackColor, Color{0x400000});
  EXPECT_EQ(Find(table, "PricesHead", 0).ForeColor, Color{0x00FFFF});
}

TEST_F(PriceTableTest, RowsStandBelowTheirHeadsInThreeColumns) {
  data.Prices = {{2, "commodity_gold", "50", "10"}, {1, "commodity_food", "20", "-5"}};
  Add("commodity", {{"nickname", "commodity_gold"}, {"realname", "Gold"}});
  Add("commodity", {{"nickname", "commodity_food"}, {"realname", "Food"}});

  const ControlList table = LayOut(StationMode::Prices);

  // 5000 / (2 + 5) = 714.29; a sixth of the width is 1500.
  ASSERT_THAT(table, SizeIs(3 + 2 * 3));
  EXPECT_EQ(Find(table, "PricesField0", 1).Place, (Box{kStationMargin + 50, 714, 6000, 714}));
  EXPECT_EQ(Find(table, "PricesField1", 1).Place, (Box{kStationMargin + 6050, 714, 1500, 714}));
  EXPECT_EQ(Find(table, "PricesField2", 1).Place, (Box{kStationMargin + 7550, 714, 1500, 714}));
  EXPECT_EQ(Find(table, "PricesHead", 1).Place.Top, 1428);
  EXPECT_EQ(Find(table, "PricesField0", 2).Place.Top, 2142);
  EXPECT_EQ(Find(table, "PricesHead", 0).Place.Top, 2856);
  EXPECT_EQ(Find(table, "PricesField0", 1).Caption, "Gold");
  EXPECT_EQ(Find(table, "PricesField0", 1).Tag, "commodity_gold");
  EXPECT_EQ(Find(table, "PricesField1", 2).Caption, "20");
  EXPECT_EQ(Find(table, "PricesField2", 2).Caption, "-5");
}

TEST_F(PriceTableTest, EachGroupHasItsColour) {
  data.Prices = {{2, "a", "1", ""}, {1, "b", "2", ""}, {0, "c", "3", ""}};

  const ControlList table = LayOut(StationMode::Prices);

  for (const char* column : {"PricesField0", "PricesField1", "PricesField2"}) {
    EXPECT_EQ(Find(table, column, 1).BackColor, Color{0x00C000});
    EXPECT_EQ(Find(table, column, 2).BackColor, Color{0x0000FF});
    EXPECT_EQ(Find(table, column, 3).BackColor, Color{0xFFC0C0});
  }
}

TEST_F(PriceTableTest, EachTextHasTheLargestFontThatFitsItsLabel) {
  data.Prices = {{2, "commodity_gold", "50", ""}};
  Add("commodity", {{"nickname", "commodity_gold"}, {"realname", "Gold"}});

  const ControlList table = LayOut(StationMode::Prices);

  // Rows are 5000 / 6 = 833 high: 34 x 24 = 816. Heads: "Commodities Buy Prices" has 22
  // characters: 34 x 12 x 22 = 8976.
  EXPECT_EQ(Find(table, "PricesField0", 1).FontSize, 34);
  EXPECT_EQ(Find(table, "PricesHead", 2).FontSize, 34);
  // "Commodities Standard Sell Prices" has 32 characters: 23 x 12 x 32 = 8832.
  EXPECT_EQ(Find(table, "PricesHead", 0).FontSize, 23);
}

TEST_F(PriceTableTest, RowsBeforeACancelledFailureStay) {
  messages.Answer = MessageAnswer::Cancel;
  data.Prices = {{2, "commodity_gold", "50", "10"}, {1, "sys'a,mole,commodity_gold", "90", "40"}};

  const ControlList table = LayOut(StationMode::Trades);

  // Two heads and the row between them; the quote breaks the query for the next one's system.
  EXPECT_THAT(table, SizeIs(5));
}

TEST_F(PriceTableTest, TradesAreNamedByGoodSystemAndStation) {
  data.Prices = {{2, "commodity_gold", "50", ""},
                 {1, "sys_a,pier,commodity_gold", "90", "40"},
                 {0, "sys_b,nowhere,commodity_gold", "70", "20"}};
  Add("commodity", {{"nickname", "commodity_gold"}, {"realname", "Gold"}});
  Add("Systems", {{"nickname", "SYS_A"}, {"realname", "Lantern"}});
  Add("Systems", {{"nickname", "sys_b"}, {"realname", "Wick"}});
  Dock("Pier", "Pier Nine");

  const ControlList table = LayOut(StationMode::Trades);

  EXPECT_EQ(Find(table, "PricesField0", 1).Caption, "Gold");
  EXPECT_EQ(Find(table, "PricesField0", 1).ToolTip, std::nullopt);
  EXPECT_EQ(Find(table, "PricesField0", 2).Caption, "Gold Lantern, Pier Nine");
  EXPECT_EQ(Find(table, "PricesField0", 2).ToolTip, "...");
  EXPECT_EQ(Find(table, "PricesField0", 3).Caption, "Gold Wick");
  EXPECT_EQ(Find(table, "PricesHead", 1).Caption, "Best Trades inside System");
  EXPECT_EQ(Find(table, "PricesHead", 0).Caption, "Best Trades outside System");
}

}  // namespace
}  // namespace orrerix
