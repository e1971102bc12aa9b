// SPDX-License-Identifier: MIT
// Hovers and clicks on icons.
#include <gmock/gmock.h>

#include "map_controller_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// One cell of 8550 twips, icons of 200; the panel begins at 8550 + 100 twips.
class MapHoverTest : public MapControllerFixture {
 protected:
  MapHoverTest() { Zoom({8, 10, 8, 10}); }

  TwipRect Hover(std::string_view nickname) {
    Move(At(nickname));
    return Shown(ControlId::BoxShape).empty() ? TwipRect{}
                                              : Shown(ControlId::BoxShape).front()->Place;
  }
};

TEST_F(MapHoverTest, TheIconGrowsFromItsCornerAndItsBoxOpens) {
  Hover("li01_nw_base");

  // 0.1 x 8550 - 100
  EXPECT_EQ(Icon("li01_nw_base").Place, (TwipRect{755, 755, 600, 600}));
  EXPECT_EQ(Shown(ControlId::BoxText, 0)->Caption, "li01_nw_base");
  EXPECT_EQ(Shown(ControlId::BoxShape, 0)->Shape, ShapeForm::RoundedRectangle);
  EXPECT_THAT(Sounds(), ElementsAre("ui_secondary_window_open"));
}

TEST_F(MapHoverTest, TheBoxKeepsClearOfTheIconInAllFourCorners) {
  EXPECT_EQ(Hover("li01_nw_base").Top, 1455);  // 755 + 600 + 100
  EXPECT_EQ(Hover("li01_nw_base").Left, 755);
  Move({300, 300});

  // A line as long as this does not fit between 7595 and the panel at 8650.
  const TwipRect ne = Hover("li01_ne_base");
  EXPECT_EQ(ne.Top, 1455);
  EXPECT_EQ(ne.Right(), 8195);  // 7595 + 600
  Move({300, 300});

  const TwipRect sw = Hover("li01_sw_base");
  EXPECT_EQ(sw.Bottom(), 7495);  // 7595 - 100
  EXPECT_EQ(sw.Left, 755);
  Move({300, 300});

  const TwipRect se = Hover("li01_se_base");
  EXPECT_EQ(se.Bottom(), 7495);
  EXPECT_EQ(se.Right(), 8195);  // 7595 + 600
}

TEST_F(MapHoverTest, TheBoxIsAsLargeAsItsLettersOfOneWidthNeed) {
  const TwipRect box = Hover("li01_nw_base");

  const QtTextMeasure measure(FixedFont);
  EXPECT_EQ(box.Width, measure.TextWidth("li01_nw_base", 9) + 300);
  EXPECT_EQ(box.Height, measure.TextHeight("li01_nw_base", 9) + 300);
}

TEST_F(MapHoverTest, WhileABoxIsUpOtherIconsStayAsTheyAre) {
  Hover("li01_nw_base");

  Hover("li01_se_base");

  EXPECT_EQ(Icon("li01_se_base").Place.Width, 200);
  EXPECT_EQ(Shown(ControlId::BoxText, 0)->Caption, "li01_nw_base");
  EXPECT_THAT(Sounds(), SizeIs(1));
}

TEST_F(MapHoverTest, AMoveOnTheMapEndsIt) {
  Hover("li01_nw_base");

  Move({300, 300});

  EXPECT_THAT(Shown(ControlId::BoxShape), IsEmpty());
  EXPECT_THAT(Shown(ControlId::BoxText), IsEmpty());
  EXPECT_EQ(Icon("li01_nw_base").Place, (TwipRect{755, 755, 200, 200}));
  EXPECT_EQ(redraws, 0);
}

TEST_F(MapHoverTest, AMoveOntoTheBoxEndsIt) {
  const TwipRect box = Hover("li01_nw_base");

  Move(Pixels(box).center().toPoint());

  EXPECT_THAT(Shown(ControlId::BoxShape), IsEmpty());
}

TEST_F(MapHoverTest, AMoveOnThePanelLeavesItUp) {
  Hover("li01_ne_base");

  Move(OnPanel(ControlId::Tool, 2));

  EXPECT_THAT(Shown(ControlId::BoxShape), SizeIs(1));
}

TEST_F(MapHoverTest, ItGoesOnThroughARedrawWithItsBoxPlacedAnew) {
  Hover("li01_nw_base");
  const TwipRect before = Shown(ControlId::BoxShape).at(0)->Place;
  const std::optional<std::string> text = Shown(ControlId::BoxText).at(0)->Caption;

  map.Redraw(universe, 14200, 6550);  // the cell is 6000 instead of 8550 twips wide
  play.MapRedrawn();

  ASSERT_THAT(Shown(ControlId::BoxShape), SizeIs(1));
  const TwipRect icon = Icon("li01_nw_base").Place;
  EXPECT_EQ(icon.Width, 600);
  EXPECT_FLOAT_EQ(static_cast<float>(icon.Left), 500);  // 6000 x 0.1 - 100
  const TwipRect box = Shown(ControlId::BoxShape).at(0)->Place;
  EXPECT_FLOAT_EQ(static_cast<float>(box.Top), 1200);  // 500 + 600 + 100
  EXPECT_EQ(box.Width, before.Width);
  EXPECT_EQ(Shown(ControlId::BoxText).at(0)->Caption, text);

  Move({300, 300});

  EXPECT_THAT(Shown(ControlId::BoxShape), IsEmpty());
  EXPECT_EQ(Icon("li01_nw_base").Place.Width, 200);
}

TEST_F(MapHoverTest, ItsBoxStaysWhenTheIconIsNoLongerThereUntilTheMouseMoves) {
  Hover("li01_nw_base");
  Key(Qt::Key_Backspace);
  ASSERT_EQ(Visible(), ZoomRectangle{});

  EXPECT_THAT(Shown(ControlId::BoxShape), SizeIs(1));
  Move({300, 300});
  EXPECT_THAT(Shown(ControlId::BoxShape), IsEmpty());
}

TEST_F(MapHoverTest, ARedrawWhileAQuestionIsOpenLeavesNoIconBehind) {
  const QPoint at = At("li01_nw_base");
  db.Execute(mustWork, "DROP TABLE Objects");
  messages.WhileShown = [this] { DrawMap(); };

  Move(at);

  EXPECT_FALSE(log.Failures().empty());
  EXPECT_EQ(Icon("li01_nw_base").Place.Width, 600);
}

TEST_F(MapHoverTest, AnotherBoxStaysThroughMovesAndRedrawsAndKeepsHoversAway) {
  Control shape = MakeFrame(ControlId::BoxShape, std::nullopt, {5000, 0, 3650, 8550}, {0x400000});
  shape.Shape = ShapeForm::Rectangle;
  play.Box().Show({shape});

  Move({100, 300});
  DrawMap();
  Move(At("li01_nw_base"));

  EXPECT_THAT(Shown(ControlId::BoxShape), SizeIs(1));
  EXPECT_EQ(Icon("li01_nw_base").Place.Width, 200);
  play.Box().Hide();
  EXPECT_THAT(Shown(ControlId::BoxShape), IsEmpty());
}

TEST_F(MapHoverTest, WithoutSoundFilesNothingIsSaidOfThem) {
  std::filesystem::remove_all(folder.Path() / "DATA");

  Hover("li01_nw_base");

  EXPECT_THAT(Shown(ControlId::BoxShape), SizeIs(1));
  EXPECT_THAT(Sounds(), IsEmpty());
  EXPECT_TRUE(messages.Shown.empty());
}

TEST_F(MapHoverTest, AClickOnAnObjectOpensItsStation) {
  Click(At("li01_nw_base"));

  ASSERT_THAT(stations, SizeIs(1));
  EXPECT_EQ(stations[0].first, "li01_nw_base");
  EXPECT_EQ(stations[0].second, "WaterlooStation");
  EXPECT_THAT(Sounds(), ElementsAre("ui_open_infocard_button"));
  EXPECT_EQ(Visible(), (ZoomRectangle{8, 10, 8, 10}));
}

TEST_F(MapHoverTest, EachClickOpensOneMore) {
  Click(At("li01_nw_base"));
  Click(At("li01_nw_base"));

  EXPECT_THAT(stations, SizeIs(2));
}

TEST_F(MapHoverTest, APressThatIsReleasedElsewhereIsNoClickAndNoDrag) {
  Press(At("li01_nw_base"));
  Move({300, 300});
  Release({300, 300});

  EXPECT_THAT(stations, IsEmpty());
  EXPECT_EQ(sound.Beeps, 0);
}

TEST_F(MapHoverTest, ARightClickOnAnIconIsNeitherAClickNorAStepBack) {
  Click(At("li01_nw_base"), Qt::RightButton);

  EXPECT_THAT(stations, IsEmpty());
  EXPECT_EQ(Visible(), (ZoomRectangle{8, 10, 8, 10}));
}

TEST_F(MapHoverTest, AnIconThatTheMapDoesNotKnowOpensNothing) {
  const QPoint at = At("li01_nw_base");
  db.Execute(mustWork, "DELETE FROM DockObjects");

  Click(at);

  EXPECT_THAT(stations, IsEmpty());
  EXPECT_THAT(Sounds(), IsEmpty());
}

TEST_F(MapHoverTest, IconsAnswerByTheirIndexAndUnknownOnesDoNothing) {
  const int index = *Icon("li01_se_base").Index;

  play.HoverIcon(0);
  play.OpenStationOf(999);
  EXPECT_THAT(Shown(ControlId::BoxShape), IsEmpty());

  play.MoveOverMap(PointerButton::None, 0, 0);
  play.HoverIcon(index);
  play.OpenStationOf(index);

  EXPECT_EQ(Shown(ControlId::BoxText, 0)->Caption, "li01_se_base");
  ASSERT_THAT(stations, SizeIs(1));
  EXPECT_EQ(stations[0].first, "li01_se_base");
}

}  // namespace
}  // namespace orrerix
