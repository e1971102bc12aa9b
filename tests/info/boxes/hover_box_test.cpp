// SPDX-License-Identifier: MIT
#include "info/boxes/hover_box.h"

#include <gmock/gmock.h>

#include "support/universe_fixture.h"

namespace orrerix {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

MapDrawing MapWithPanel() {
  MapDrawing drawing;
  drawing.Frame = {50, 50, 20000, 12000};
  drawing.Panel = PanelPlace::Right;
  drawing.PanelBox = {14000, 0, 6000, 12000};
  return drawing;
}

constexpr TextExtent kText{2000, 400};

TEST(HoverBoxPlace, TheBoxIsThreeHundredTwipsLargerThanItsText) {
  const TwipRect box = HoverBoxPlace({1000, 1000, 600, 600}, kText, MapWithPanel());

  EXPECT_EQ(box.Width, 2300);
  EXPECT_EQ(box.Height, 700);
}

TEST(HoverBoxPlace, InTheUpperHalfItStandsBelowTheIcon) {
  const TwipRect box = HoverBoxPlace({1000, 1000, 600, 600}, kText, MapWithPanel());

  EXPECT_EQ(box.Left, 1000);
  EXPECT_EQ(box.Top, 1700);  // 1000 + 600 + 100
}

TEST(HoverBoxPlace, InTheLowerHalfItStandsAboveTheIcon) {
  const TwipRect box = HoverBoxPlace({1000, 6001, 600, 600}, kText, MapWithPanel());

  EXPECT_EQ(box.Top, 5201);  // 6001 - 100 - 700
}

TEST(HoverBoxPlace, AtHalfTheHeightItStandsBelowTheIcon) {
  EXPECT_EQ(HoverBoxPlace({1000, 6000, 600, 600}, kText, MapWithPanel()).Top, 6700);
}

TEST(HoverBoxPlace, WithoutRoomBesideThePanelItEndsWithTheIcon) {
  EXPECT_EQ(HoverBoxPlace({11700, 0, 600, 600}, kText, MapWithPanel()).Left, 11700);  // up to 14000
  // 11701 + 600 - 2300
  EXPECT_EQ(HoverBoxPlace({11701, 0, 600, 600}, kText, MapWithPanel()).Left, 10001);
}

TEST(HoverBoxPlace, ItNeverStartsLeftOfAHundredTwipsForWantOfRoom) {
  // 12000 + 600 - 13300 is below 0.
  EXPECT_EQ(HoverBoxPlace({12000, 0, 600, 600}, {13000, 400}, MapWithPanel()).Left, 100);
}

TEST(HoverBoxPlace, AnIconFurtherLeftKeepsItsPlaceWhereThereIsRoom) {
  EXPECT_EQ(HoverBoxPlace({-20, 0, 600, 600}, kText, MapWithPanel()).Left, -20);
}

TEST(HoverBoxPlace, APanelBelowLeavesTheWholeWidth) {
  MapDrawing drawing = MapWithPanel();
  drawing.Panel = PanelPlace::Below;
  drawing.PanelBox = {0, 9000, 20000, 3000};

  EXPECT_EQ(HoverBoxPlace({17700, 0, 600, 600}, kText, drawing).Left, 17700);  // up to 20000
  EXPECT_EQ(HoverBoxPlace({17701, 0, 600, 600}, kText, drawing).Left, 16001);
}

class HoverBoxTest : public UniverseFixture {
 protected:
  HoverBoxTest() {
    db.CreateTable(mustWork, DockObjectsTable());
    names.Set({7, 4}, "Lantern");
  }

  static Control Icon(std::string nickname, float size) {
    Control icon = MakePicture(ControlId::MapIcon, 12, {1000, 1000, size, size}, "Outpost");
    icon.Subject = DockableObject{std::move(nickname)};
    return icon;
  }
  HoverBox Open(const Control& icon) {
    return OpenHoverBox(universe, names, english, measure, MapWithPanel(), icon);
  }

  FixedLanguage english{Language::English};
  CellNames names;
  FixedTextMeasure measure;
};

TEST_F(HoverBoxTest, TheIconGrowsFromItsCorner) {
  EXPECT_EQ(Open(Icon("pier", 40)).Icon.Place, (TwipRect{1000, 1000, 600, 600}));
}

TEST_F(HoverBoxTest, TheBoxHoldsItsTextWithinAMargin) {
  const HoverBox hover = Open(Icon("pier", 40));

  ASSERT_THAT(hover.Box, SizeIs(2));
  EXPECT_EQ(hover.Box[0].Id, ControlId::BoxShape);
  EXPECT_EQ(hover.Box[1].Id, ControlId::BoxText);
  // Four characters of 9 points: 4 x 12 x 9 = 432 wide and 24 x 9 = 216 high.
  EXPECT_EQ(hover.Box[0].Place, (TwipRect{1000, 1700, 732, 516}));
  EXPECT_EQ(hover.Box[1].Place, (TwipRect{1150, 1850, 432, 216}));
  EXPECT_EQ(hover.Box[1].Caption, "pier");
  EXPECT_EQ(hover.Box[1].FontSize, 9);
}

TEST_F(HoverBoxTest, TheBoxRemembersTheIconAndItsOwnSize) {
  const Control icon = Icon("pier", 200.0F / 3);
  const HoverBox hover = Open(icon);

  const auto before = std::get<HoveredIcon>(hover.Box[0].Subject);
  EXPECT_EQ(before, (HoveredIcon{12, 200.0F / 3}));
  EXPECT_EQ(RestoredIcon(hover.Icon, before).Place, icon.Place);
}

TEST_F(HoverBoxTest, TheLongestLineGivesTheWidthAndAllLinesTheHeight) {
  // The first line is empty, the longest has 10 characters: 10 x 108 = 1080; 4 x 216 = 864.
  const HoverBox hover = Open(Icon("\r\n  Jumpgate\r\n  a TO\r\n  b", 40));

  EXPECT_EQ(hover.Box[1].Place.Width, 1080);
  EXPECT_EQ(hover.Box[1].Place.Height, 864);
}

TEST_F(HoverBoxTest, GivenUpAfterAFailureTheBoxStaysAway) {
  messages.Answer = MessageAnswer::Cancel;

  const HoverBox hover = Open(Icon("a'b", 40));

  EXPECT_THAT(hover.Box, IsEmpty());
  EXPECT_EQ(hover.Icon.Place.Width, 600);
}

TEST_F(HoverBoxTest, ALineEndAtTheEndAddsNoLine) {
  Routine routine(log, "test");
  routine.Run([&] {
    EXPECT_EQ(MeasureLines(routine, "a\r\nb\r\n", measure, 1).Height, 48);
    EXPECT_EQ(MeasureLines(routine, "a\r\nb", measure, 1).Height, 48);
    EXPECT_EQ(MeasureLines(routine, "", measure, 1).Height, 24);
  });
}

TEST_F(HoverBoxTest, ASizeBeyondSixteenBitsIsAFailureAndTheSizeStays) {
  Routine routine(log, "test");
  routine.Run([&] {
    // 304 x 108 = 32832 does not fit, the second line does.
    const TextExtent extent =
        MeasureLines(routine, std::string(304, 'x') + "\r\nxx", measure, kBoxFont);
    EXPECT_EQ(extent.Width, 216);
    EXPECT_EQ(extent.Height, 432);
  });
  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].What.Number, 6);
}

}  // namespace
}  // namespace orrerix
