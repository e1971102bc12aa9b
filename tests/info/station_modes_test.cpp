// SPDX-License-Identifier: MIT
#include "info/station_modes.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

StationData Shop() {
  StationData data;
  data.Ships = {{"a_package", "A"}, {"b_package", "B"}};
  data.Equipment = {{"lamp", "Lamp"}};
  return data;
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
  FixedLanguage english{0};
  StationModes modes;
  modes.Click(0, Shop());

  EXPECT_EQ(modes.Click(1, Shop()), ModeAnswer::Resize);
  EXPECT_EQ(modes.Mode(), StationMode::Info);
  EXPECT_EQ(modes.Buttons(Shop(), english)[0].Caption, "$");
  EXPECT_EQ(modes.Buttons(Shop(), english)[0].ToolTip, "Click to switch to Pricelist.");
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
  FixedLanguage english{0};

  const auto full = StationModes().Buttons(Shop(), english);
  EXPECT_EQ(full[0].Caption, "#");
  EXPECT_EQ(full[1].Caption, "I");
  EXPECT_EQ(full[2].Caption, "2");
  EXPECT_EQ(full[2].FontSize, 18);
  EXPECT_EQ(full[3].Caption, "1");

  const auto empty = StationModes().Buttons({}, english);
  EXPECT_EQ(empty[2].Caption, "X");
  EXPECT_EQ(empty[2].FontSize, 36);
}

}  // namespace
}  // namespace orrerix
