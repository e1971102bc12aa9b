// SPDX-License-Identifier: MIT
#include "info/station/station_modes.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

StationData Shop() {
  StationData data;
  data.Ships = {{"a_package", "A"}, {"b_package", "B"}};
  data.Equipment = {{"lamp", "Lamp"}};
  return data;
}

TEST(StationTexts, AreSetForThePriceViewThatIsRead) {
  FixedLanguage english{Language::English};

  const StationTexts prices = ReadStationTexts({}, StationMode::Prices, english);
  EXPECT_EQ(prices.Heads,
            (std::array<std::string, 3>{"Commodities Standard Sell Prices",
                                        "Commodities Sell Prices", "Commodities Buy Prices"}));
  EXPECT_EQ(prices.PriceTip,
            "U r in Pricelist - Click to switch to best Traderunnlist for System.");

  const StationTexts trades = ReadStationTexts({}, StationMode::Trades, english);
  EXPECT_EQ(trades.Heads,
            (std::array<std::string, 3>{"Best Trades outside System", "Best Trades inside System",
                                        "Commodities Buy Prices"}));
  EXPECT_EQ(trades.PriceTip, "Click to switch to Pricelist.");
}

TEST(StationTexts, TheOtherViewsLeaveAllButTheHeadOfWhatIsSold) {
  FixedLanguage english{Language::English};
  FixedLanguage german{Language::German};

  const StationTexts before = ReadStationTexts({}, StationMode::Trades, english);
  const StationTexts after = ReadStationTexts(before, StationMode::Info, german);

  EXPECT_EQ(after.Heads[0], "Best Trades outside System");
  EXPECT_EQ(after.Heads[1], "Best Trades inside System");
  EXPECT_EQ(after.Heads[2], "Waren Einkaufspreise");
  EXPECT_EQ(after.PriceTip, "Click to switch to Pricelist.");
}

TEST(StationModes, AWindowOpensWithItsInfo) {
  EXPECT_EQ(StationModes().Mode(), StationMode::Info);
}

TEST(StationModes, ThePriceButtonOpensTheOtherPriceView) {
  StationModes modes;

  EXPECT_EQ(modes.Click(0, Shop()), ModeAnswer::Read);
  EXPECT_EQ(modes.Mode(), StationMode::Trades);
  EXPECT_EQ(modes.Click(0, Shop()), ModeAnswer::Read);
  EXPECT_EQ(modes.Mode(), StationMode::Prices);
}

TEST(StationModes, TheOtherViewsLeaveThePriceButtonAsItIs) {
  StationModes modes;
  modes.Click(0, Shop());

  EXPECT_EQ(modes.Click(1, Shop()), ModeAnswer::Resize);
  EXPECT_EQ(modes.Mode(), StationMode::Info);
  EXPECT_EQ(modes.Buttons(Shop(), {{}, "To prices"})[0].Caption, "$");
  EXPECT_EQ(modes.Buttons(Shop(), {{}, "To prices"})[0].ToolTip, "To prices");
}

TEST(StationModes, ListsOpenIfThereIsSomethingToList) {
  StationModes modes;

  EXPECT_EQ(modes.Click(2, Shop()), ModeAnswer::Resize);
  EXPECT_EQ(modes.Mode(), StationMode::Ships);
  EXPECT_EQ(modes.Click(3, Shop()), ModeAnswer::Resize);
  EXPECT_EQ(modes.Mode(), StationMode::Equipment);
}

TEST(StationModes, AnEmptyListOnlyBeepsAndTheModeStays) {
  StationModes modes;

  EXPECT_EQ(modes.Click(2, {}), ModeAnswer::Beep);
  EXPECT_EQ(modes.Click(3, {}), ModeAnswer::Beep);
  EXPECT_EQ(modes.Mode(), StationMode::Info);
}

TEST(StationModes, ListButtonsCountTheirRows) {
  const auto full = StationModes().Buttons(Shop(), {});
  EXPECT_EQ(full[0].Caption, "#");
  EXPECT_EQ(full[1].Caption, "I");
  EXPECT_EQ(full[2].Caption, "2");
  EXPECT_EQ(full[2].FontSize, 18);
  EXPECT_EQ(full[3].Caption, "1");

  const auto empty = StationModes().Buttons({}, {});
  EXPECT_EQ(empty[2].Caption, "X");
  EXPECT_EQ(empty[2].FontSize, 36);
}

}  // namespace
}  // namespace orrerix
