// SPDX-License-Identifier: MIT
#include "map/control_id.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

// Scripts read them: they never change.
TEST(ControlNames, TheCommandLinePrintsTheNamesOfTheMapsControls) {
  EXPECT_EQ(PrintedName(ControlId::BackgroundTile), "Hintergrund");
  EXPECT_EQ(PrintedName(ControlId::PaintedUniverse), "StarMapPic");
  EXPECT_EQ(PrintedName(ControlId::SystemPicture), "SysMapGfx");
  EXPECT_EQ(PrintedName(ControlId::EmptyCell), "Blanko");
  EXPECT_EQ(PrintedName(ControlId::SystemLabel), "SysmapLabel");
  EXPECT_EQ(PrintedName(ControlId::MapLine), "Line1");
  EXPECT_EQ(PrintedName(ControlId::MapIcon), "Image1");
  EXPECT_EQ(PrintedName(ControlId::Border), "Rahmen");
  EXPECT_EQ(PrintedName(ControlId::PanelFrame), "MenuFrame");
  EXPECT_EQ(PrintedName(ControlId::BoxShape), "Shape1");
  EXPECT_EQ(PrintedName(ControlId::BoxText), "InfoText");
}

TEST(ControlNames, TheCommandLinePrintsTheNamesOfAStationsControls) {
  EXPECT_EQ(PrintedName(ControlId::PriceHead), "PricesHead");
  EXPECT_EQ(PrintedName(ControlId::PriceName), "PricesField0");
  EXPECT_EQ(PrintedName(ControlId::Price), "PricesField1");
  EXPECT_EQ(PrintedName(ControlId::PriceDifference), "PricesField2");
  EXPECT_EQ(PrintedName(ControlId::ForSaleFrame), "SearchFrame");
  EXPECT_EQ(PrintedName(ControlId::ForSaleList), "SearchList");
}

TEST(ControlNames, AnElementOfAnArrayIsNamedWithItsIndex) {
  EXPECT_EQ(ObjectName(ControlId::OptionSwitch, 3), "SetImage_3");
}

}  // namespace
}  // namespace orrerix
