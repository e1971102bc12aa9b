// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "redraw_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

class Print : public Redraw {
 protected:
  Print() { state.PrintMode = true; }
};

TEST_F(Print, PaperIsWhiteWithBlackNamesAndGates) {
  Jump(kJumpGate);
  Jump(kJumpHole);

  const MapDrawing drawing = Draw();

  EXPECT_EQ(drawing.FrameColor.Text(), "0xFFFFFF");
  EXPECT_EQ(Named(drawing, ControlId::SystemLabel).at(0).ForeColor->Text(), "0x000000");
  EXPECT_EQ(Named(drawing, ControlId::MapLine).at(0).BorderColor.Text(), "0x000000");
  EXPECT_EQ(Named(drawing, ControlId::MapLine).at(1).BorderColor.Text(), "0x808080");
}

TEST_F(Print, PicturesTilesFillersAndBordersAreLeftOutAndThePanelLiesAtTheBack) {
  Zoom(kTwoCells);
  formHeight = 40000;
  formWidth = 90000;
  switches = MapOptions::Defaults(true);
  Jump(kJumpGate);
  Dock("dock", "depot");

  EXPECT_THAT(Layers(Draw()), ElementsAre(ControlId::PanelFrame, ControlId::SystemLabel,
                                          ControlId::MapLine, ControlId::MapIcon));
}

TEST_F(Print, NoBorderIsVisibleInThePanelEither) {
  const MapDrawing drawing = Draw();

  ASSERT_EQ(drawing.Panel, PanelPlace::Right);
  EXPECT_FALSE(PlaceOf(drawing.Controls, ControlId::Border));
  EXPECT_TRUE(PlaceOf(drawing.Controls, ControlId::Tool));
  EXPECT_TRUE(drawing.PrintMode);
}

TEST_F(Print, ThePanelOfTheScreenIsNotMovedByAPrint) {
  Draw();

  EXPECT_FALSE(state.PanelAtRight);
}

TEST_F(Print, TheInfoBoxKeepsTheBackgroundOfTheScreen) {
  const auto background = [this] {
    return PlaceOf(Draw().Controls, ControlId::InfoBoxPicture)->Height;
  };
  state.PrintMode = false;
  const double onScreen = background();

  formHeight -= 2000;
  const double onLowScreen = background();
  ASSERT_LT(onLowScreen, onScreen);
  state.PrintMode = true;
  formHeight += 2000;

  EXPECT_EQ(background(), onLowScreen);
}

TEST_F(Print, ThereIsNoPanelBelow) {
  Zoom(kTwoCells);
  formWidth = 12000;
  formHeight = 18000;

  EXPECT_EQ(Draw().Panel, PanelPlace::None);
}

}  // namespace
}  // namespace orrerix
