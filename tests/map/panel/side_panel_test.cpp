// SPDX-License-Identifier: MIT
#include "map/panel/side_panel.h"

#include <gmock/gmock.h>

#include "map/layers/borders.h"
#include "support/fake_message_boxes.h"

namespace orrerix {
namespace {

const Control* Find(const ControlList& list, ControlId id, std::optional<int> index) {
  for (const Control& control : list) {
    if (control.Id == id && control.Index == index) return &control;
    if (const Control* inner = Find(control.Children, id, index)) return inner;
  }
  return nullptr;
}

int CountOf(const ControlList& list, ControlId id) {
  int count = 0;
  for (const Control& control : list) {
    count += (control.Id == id ? 1 : 0) + CountOf(control.Children, id);
  }
  return count;
}

// Where the panel stood at the right of a map 17450 high.
constexpr TwipRect kAtRight{10000, 0, 7100, 17450};

class Panel : public ::testing::Test {
 protected:
  SidePanel LayOut(double width, double height = 17450, bool open = false) {
    return LayOutPanelRight({0, 0, width, height}, View(open));
  }
  PanelView View(bool open = false) { return {log, content, switches, open, printMode, measure}; }

  FakeMessageBoxes messages;
  ErrorLog log{messages, AppVersion{1, 0, 0}};
  const MapOptions switches = MapOptions::Defaults(false);
  bool printMode = false;
  FixedLanguage english{Language::English};
  PanelContent content = PanelTexts(english);
  FixedTextMeasure measure;
};

TEST_F(Panel, FiveToolsShareTheWidth) {
  // (7100 - 100) / 5 = 1400
  const SidePanel panel = LayOut(7100);

  EXPECT_EQ(Find(panel.Controls, ControlId::Tool, 0)->Place, (TwipRect{50, 50, 1400, 1400}));
  EXPECT_EQ(Find(panel.Controls, ControlId::Tool, 4)->Place, (TwipRect{5650, 50, 1400, 1400}));
}

TEST_F(Panel, OptionsStandBelowTheToolsAndTheInfoBoxBelowThem) {
  const SidePanel panel = LayOut(7100);

  const Control& options = *Find(panel.Controls, ControlId::PanelFrame, 1);
  const Control& info = *Find(panel.Controls, ControlId::PanelFrame, 2);
  EXPECT_EQ(options.Place.Top, 1500);
  EXPECT_EQ(info.Place.Top, options.Place.Bottom());
  EXPECT_EQ(info.Place.Bottom(), 17450);
  EXPECT_EQ(info.Place.Left, options.Place.Left);
}

TEST_F(Panel, TheCreditLineMayTakeHalfTheInfoBoxRoundedToTheEvenTwip) {
  content.Credit = std::string(28, 'x');

  // Half of the info box's 6107 - 60 = 6047 twips is 3023.5, so 3024: 28 letters of 9 points.
  EXPECT_EQ(Find(LayOut(6107).Controls, ControlId::InfoBoxLine, 1)->FontSize, 9);
  // Half of 6045 is 3022.5, so 3022.
  EXPECT_EQ(Find(LayOut(6105).Controls, ControlId::InfoBoxLine, 1)->FontSize, 8);
}

TEST_F(Panel, SwitchesAreThereOnlyWhenUnfolded) {
  EXPECT_EQ(Find(LayOut(7100).Controls, ControlId::OptionSwitch, 0), nullptr);

  const SidePanel open = LayOut(7100, 17450, true);

  EXPECT_EQ(*Find(open.Controls, ControlId::OptionSwitch, 0)->Picture, "tools/check_off.svg");
  EXPECT_EQ(*Find(open.Controls, ControlId::OptionSwitch, 5)->Picture, "tools/check_on.svg");
  EXPECT_EQ(*Find(open.Controls, ControlId::OptionLabel, 4)->Caption, "Tradelane Lines");
}

TEST_F(Panel, AWidePanelHasItsSwitchesInTwoColumns) {
  const SidePanel open = LayOut(7100, 17450, true);

  const TwipRect first = Find(open.Controls, ControlId::OptionSwitch, 0)->Place;
  const TwipRect second = Find(open.Controls, ControlId::OptionSwitch, 1)->Place;
  const TwipRect third = Find(open.Controls, ControlId::OptionSwitch, 2)->Place;
  EXPECT_EQ(second.Top, first.Top);
  EXPECT_GT(second.Left, first.Left);
  EXPECT_EQ(third.Left, first.Left);
  EXPECT_EQ(third.Top, first.Top + 495);
}

TEST_F(Panel, ANarrowPanelHasItsSwitchesInOneColumn) {
  const SidePanel open = LayOut(2000, 17450, true);

  const TwipRect first = Find(open.Controls, ControlId::OptionSwitch, 0)->Place;
  const TwipRect second = Find(open.Controls, ControlId::OptionSwitch, 1)->Place;
  EXPECT_EQ(second.Left, first.Left);
  EXPECT_EQ(second.Top, first.Top + 495);
}

TEST_F(Panel, TheLanguageStandsInTheCornerOfTheCaption) {
  const SidePanel panel = LayOut(7100);

  const TwipRect caption = Find(panel.Controls, ControlId::OptionsCaption, std::nullopt)->Place;
  const Control& language = *Find(panel.Controls, ControlId::OptionLabel, 6);
  EXPECT_EQ(*language.Caption, "English");
  EXPECT_EQ(language.Place.Right(), caption.Right());
  EXPECT_EQ(language.Place.Bottom(), caption.Bottom());
}

TEST_F(Panel, TheHeadBandKeepsItsProportions) {
  const SidePanel panel = LayOut(8175);

  // The info box is 8175 - 60 = 8115 wide.
  EXPECT_EQ(Find(panel.Controls, ControlId::InfoBoxPicture, 0)->Place,
            (TwipRect{0, 60, 8115, 615}));
}

TEST_F(Panel, NewsThatFitsDoesNotScroll) {
  EXPECT_FALSE(LayOut(7100).NewsScrolls);
}

TEST_F(Panel, NewsThatReachesTheSloganScrolls) {
  for (int i = 0; i < 100; ++i) content.News.push_back({"News", "", ""});

  EXPECT_TRUE(LayOut(7100).NewsScrolls);
}

TEST_F(Panel, TheLogoShrinksAndIsCentredWhereThePanelIsLow) {
  const SidePanel panel = LayOut(7100, 5000);

  const TwipRect info = Find(panel.Controls, ControlId::PanelFrame, 2)->Place;
  const TwipRect logo = Find(panel.Controls, ControlId::Logo, std::nullopt)->Place;
  EXPECT_LT(logo.Width, info.Width);
  EXPECT_DOUBLE_EQ(logo.Left, info.Width / 2 - logo.Width / 2);
}

TEST_F(Panel, ATinyPanelHasNoNegativeSizes) {
  const SidePanel panel = LayOut(10, 10, true);

  const std::function<void(const ControlList&)> check = [&](const ControlList& list) {
    for (const Control& control : list) {
      EXPECT_GE(control.Place.Width, 0) << PrintedName(control.Id);
      EXPECT_GE(control.Place.Height, 0) << PrintedName(control.Id);
      check(control.Children);
    }
  };
  check(panel.Controls);
}

TEST_F(Panel, TheReducedPanelShowsNewsAndLogo) {
  const SidePanel panel = LayOutPanelBelow({0, 9000, 12000, 3000}, kAtRight, View());

  EXPECT_EQ(Find(panel.Controls, ControlId::PanelFrame, 2)->Place, (TwipRect{0, 0, 12000, 3000}));
  EXPECT_EQ(Find(panel.Controls, ControlId::NewsLabel, 0)->Place.Top, 0);
  // 3000 - 100 high, 4 : 1; its right edge 50 twips from the panel's.
  EXPECT_DOUBLE_EQ(Find(panel.Controls, ControlId::Logo, std::nullopt)->Place.Height, 2900);
}

TEST_F(Panel, BelowToolsAndOptionsStayInFrontWhereTheyWereAtTheRight) {
  const ControlList right = LayOutPanelRight(kAtRight, View()).Controls;

  const SidePanel below = LayOutPanelBelow({0, 9000, 12000, 3000}, kAtRight, View());

  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(*Find(below.Controls, ControlId::Tool, i), *Find(right, ControlId::Tool, i));
  }
  EXPECT_EQ(*Find(below.Controls, ControlId::PanelFrame, 1),
            *Find(right, ControlId::PanelFrame, 1));
  EXPECT_EQ(below.Controls.front().Index, 2);
  EXPECT_FALSE(below.Overhangs);
}

TEST_F(Panel, BelowTheOptionsUnfoldToo) {
  const SidePanel below = LayOutPanelBelow({0, 4000, 12000, 9000}, kAtRight, View(true));

  EXPECT_NE(Find(below.Controls, ControlId::OptionSwitch, 5), nullptr);
}

TEST_F(Panel, APanelTooLowForToolsAndOptionsLetsThemReachUp) {
  // Five icons of (3000 - 100) / 5 = 580: the options begin at 680 and are 675 high.
  const SidePanel below = LayOutPanelBelow({0, 9000, 12000, 175}, kAtRight, View());

  EXPECT_TRUE(below.Overhangs);
  EXPECT_EQ(Find(below.Controls, ControlId::PanelFrame, 1)->Place.Bottom(), 175);
  EXPECT_EQ(Find(below.Controls, ControlId::Tool, 0)->Place.Top, 50 - 1180);
}

TEST_F(Panel, InALowPanelTheToolsAreAsLargeAsItsHeightAllows) {
  const PanelView unfolded = View(true);
  const SidePanel below = LayOutPanelBelow({0, 9000, 12000, 1600}, kAtRight, View());

  // 1600 - 675 for the options - 100
  EXPECT_EQ(Find(below.Controls, ControlId::Tool, 0)->Place, (TwipRect{50, 50, 825, 825}));
  EXPECT_FALSE(below.Overhangs);
  // Unfolded they stay as wide and reach up.
  const SidePanel open = LayOutPanelBelow({0, 9000, 12000, 1600}, kAtRight, unfolded);
  EXPECT_EQ(Find(open.Controls, ControlId::Tool, 0)->Place.Width, 825);
  EXPECT_TRUE(open.Overhangs);
}

TEST_F(Panel, ToolsNeverReachUpBeyondTheMap) {
  const SidePanel below = LayOutPanelBelow({0, 1000, 12000, 0}, kAtRight, View());

  EXPECT_EQ(Find(below.Controls, ControlId::Tool, 0)->Place.Top, 50 - 1000);
}

TEST_F(Panel, ANarrowerFormHasNarrowerToolsBelow) {
  // (6100 - 100) / 5 = 1200
  const SidePanel below = LayOutPanelBelow({0, 4000, 6100, 9000}, kAtRight, View());

  EXPECT_EQ(Find(below.Controls, ControlId::Tool, 4)->Place.Right(), 5 * 1200 + 50);
}

TEST_F(Panel, InPrintNoneOfItsBordersIsVisible) {
  printMode = true;

  EXPECT_EQ(CountOf(LayOut(7100, 17450, true).Controls, ControlId::Border), 0);
  printMode = false;
  // Those of the tools, the options and the info box.
  EXPECT_EQ(CountOf(LayOut(7100, 17450, true).Controls, ControlId::Border), 3 * 8);
}

TEST_F(Panel, ABorderThatFailsLeavesTheRestOfThePanel) {
  const SidePanel panel = LayOut(1e11);

  EXPECT_FALSE(log.Failures().empty());
  for (const FailureEntry& entry : log.Failures()) {
    EXPECT_EQ(entry.Source, "OrrerixMain.SetRahmen");
  }
  EXPECT_NE(Find(panel.Controls, ControlId::Logo, std::nullopt), nullptr);
}

class CompactPanel : public Panel {
 protected:
  PanelView Compact() {
    PanelView view = View();
    view.Compact = true;
    return view;
  }
  SidePanel Below(double width, double height) {
    return LayOutPanelBelow({0, 9000, width, height}, kAtRight, Compact());
  }
};

// The logo is four times as wide as high. 3000 high it would be 2900 high and 11600 wide.
TEST_F(CompactPanel, BelowToolsNewsAndLogoStandSideBySide) {
  const SidePanel panel = Below(12000, 3000);

  const TwipRect& tools = Find(panel.Controls, ControlId::PanelFrame, 1)->Place;
  const TwipRect& news = Find(panel.Controls, ControlId::NewsLabel, 0)->Place;
  const TwipRect& logo = Find(panel.Controls, ControlId::Logo, std::nullopt)->Place;
  EXPECT_GE(news.Left, tools.Right());
  EXPECT_GE(news.Width, 3000);
  EXPECT_GE(logo.Left, news.Right());
  EXPECT_LE(logo.Right(), 12000);
}

// 1750 high the logo is 1650 high and 6600 wide: beside it, the news' 3000 and three gaps of 50
// twips 14000 - 6600 - 3000 - 150 = 4250 are left for the tools, which are 5 x 830 + 100 with it.
TEST_F(CompactPanel, ToolsBecomeSmallerBeforeTheLogoDoes) {
  const SidePanel panel = Below(14000, 1750);

  EXPECT_EQ(Find(panel.Controls, ControlId::Logo, std::nullopt)->Place.Width, 6600);
  EXPECT_LT(Find(panel.Controls, ControlId::Tool, 0)->Place.Width, 840);
}

// Beside the narrowest tools' 3000 and the news' 3000, 7400 leaves 1250: too little for a logo.
TEST_F(CompactPanel, TheLogoGoesBeforeTheNews) {
  const SidePanel panel = Below(7400, 3000);

  EXPECT_EQ(Find(panel.Controls, ControlId::Logo, std::nullopt), nullptr);
  EXPECT_EQ(CountOf(panel.Controls, ControlId::Tool), 5);
  EXPECT_GE(Find(panel.Controls, ControlId::NewsLabel, 0)->Place.Width, 3000);
}

TEST_F(CompactPanel, APanelTooNarrowForToolsHasThemOverTheMap) {
  const SidePanel panel = LayOutPanelRight({9000, 0, 1000, 9000}, Compact());

  EXPECT_TRUE(panel.Overhangs);
  // 3000 wide: the icons are (3000 - 100) / 5 = 580, the first 50 off the left edge at 7000.
  EXPECT_EQ(Find(panel.Controls, ControlId::Tool, 0)->Place, (TwipRect{-1950, 50, 580, 580}));
  EXPECT_NE(Find(panel.Controls, ControlId::OptionsCaption, std::nullopt), nullptr);
  EXPECT_NE(Find(panel.Controls, ControlId::NewsLabel, 0), nullptr);
  EXPECT_EQ(Find(panel.Controls, ControlId::Logo, std::nullopt), nullptr);
}

TEST_F(CompactPanel, AtTheRightTheLogoGoesWhereTheNewsHaveNoRoom) {
  const SidePanel high = LayOutPanelRight({0, 0, 4000, 12000}, Compact());
  const SidePanel low = LayOutPanelRight({0, 0, 4000, 4600}, Compact());

  EXPECT_NE(Find(high.Controls, ControlId::Logo, std::nullopt), nullptr);
  EXPECT_EQ(Find(low.Controls, ControlId::Logo, std::nullopt), nullptr);
  EXPECT_NE(Find(low.Controls, ControlId::NewsLabel, 0), nullptr);
}

TEST_F(CompactPanel, WithRoomForAllItIsLikeAnyOther) {
  const SidePanel compact = LayOutPanelRight({0, 0, 7100, 17450}, Compact());
  const SidePanel other = LayOut(7100);

  for (const auto& [id, index] :
       {std::pair{ControlId::Logo, std::optional<int>()}, {ControlId::Tool, 4}}) {
    EXPECT_EQ(Find(compact.Controls, id, index)->Place, Find(other.Controls, id, index)->Place);
  }
}

}  // namespace
}  // namespace orrerix
