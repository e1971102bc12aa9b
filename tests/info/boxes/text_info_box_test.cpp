// SPDX-License-Identifier: MIT
#include "info/boxes/text_info_box.h"

#include <gmock/gmock.h>

#include "support/universe_fixture.h"

namespace orrerix {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

MapDrawing Drawing() {
  MapDrawing drawing;
  drawing.Frame = {50, 50, 20000, 12000};
  drawing.Panel = PanelPlace::Right;
  drawing.PanelBox = {14000, 0, 6000, 12000};
  return drawing;
}

class TextInfoBox : public UniverseFixture {
 protected:
  ControlList Show(const std::string& text, const MapDrawing& drawing = Drawing()) {
    return ShowTextInfoBox(log, text, measure, drawing);
  }

  FixedTextMeasure measure;
};

TEST_F(TextInfoBox, ItStandsAgainstThePanelAsHighAsTheMap) {
  const ControlList box = Show("\r\n0123456789\r\nab");

  ASSERT_THAT(box, SizeIs(2));
  EXPECT_EQ(box[0].Id, ControlId::BoxShape);
  EXPECT_EQ(box[1].Id, ControlId::BoxText);
  // Ten characters of 9 points: 10 x 108 = 1080, and 400; its left side is 14000 - 1480.
  EXPECT_EQ(box[0].Place, (TwipRect{12520, 0, 1480, 12000}));
  EXPECT_EQ(box[1].Place, (TwipRect{12720, 150, 1030, 11700}));
  EXPECT_EQ(box[1].Caption, "\r\n0123456789\r\nab");
  EXPECT_EQ(box[1].FontSize, 9);
}

TEST_F(TextInfoBox, ATextThatIsTooWideFillsTheMapUpToThePanel) {
  const ControlList box = Show(std::string(200, 'x'));  // 200 x 108 = 21600

  EXPECT_EQ(box[0].Place, (TwipRect{0, 0, 14000, 12000}));
}

TEST_F(TextInfoBox, WithThePanelBelowItEndsAtTheFramesEdge) {
  MapDrawing drawing = Drawing();
  drawing.Panel = PanelPlace::Below;

  EXPECT_EQ(Show("0123456789", drawing)[0].Place.Left, 18520);  // 20000 - 1480
}

TEST_F(TextInfoBox, ALineEndAtTheEndIsNoWiderLine) {
  EXPECT_EQ(Show("0123456789\r\n")[0].Place, Show("0123456789")[0].Place);
}

TEST_F(TextInfoBox, AMapWithoutRoomHasABoxWithoutSize) {
  MapDrawing drawing = Drawing();
  drawing.Frame = {50, 50, 100, 100};
  drawing.PanelBox = {100, 0, 0, 100};

  const ControlList box = Show("0123456789", drawing);

  EXPECT_EQ(box[0].Place, (TwipRect{0, 0, 100, 100}));
  EXPECT_EQ(box[1].Place.Width, 0);
  EXPECT_EQ(box[1].Place.Height, 0);
}

TEST_F(TextInfoBox, WithoutATextThereIsNoBox) {
  FixedLanguage english{Language::English};

  EXPECT_THAT(ShowInfoTextType(universe, Wording{english, {}}, measure, Drawing(), "nothing",
                               InfoType::Ship),
              IsEmpty());
}

TEST_F(TextInfoBox, AFactionsBoxHasItsText) {
  FixedLanguage english{Language::English};
  Add("Groups", {{"NickName", "lamp_grp"}, {"Name", "The Lamps"}, {"ids_info", 0}});

  const ControlList box = ShowInfoTextType(universe, Wording{english, {}}, measure, Drawing(),
                                           "lamp_grp", InfoType::Group);

  ASSERT_THAT(box, SizeIs(2));
  EXPECT_THAT(*box[1].Caption, ::testing::StartsWith("\r\nThe Lamps\r\n"));
}

}  // namespace
}  // namespace orrerix
