// SPDX-License-Identifier: MIT
// The map and its panel by the keyboard.
#include <gmock/gmock.h>

#include "map_play_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class MapPlayKeysTest : public MapPlayFixture {
 protected:
  MapPlayKeysTest() {
    form.activateWindow();
    map.Frame().setFocus();
    PassEvents();
  }

  // Top left corner of the cursor's cell, pixels.
  QPointF Cursor() {
    const Control* top = Shown("CellCursor", 0);
    return top == nullptr ? QPointF(-1, -1)
                          : QPointF(Pixels(top->Ends.X1) - 0.5, Pixels(top->Ends.Y1) - 0.5);
  }

  // The button that the Tab key stops at for a control of the panel.
  QAbstractButton& Button(const char* name) { return Find<QAbstractButton>(form, name); }
};

TEST_F(MapPlayKeysTest, AnArrowKeyShowsTheCursorAndFurtherOnesMoveIt) {
  EXPECT_THAT(Shown("CellCursor"), IsEmpty());

  Key(Qt::Key_Left);
  EXPECT_EQ(Cursor(), QPointF(240, 270));  // the middle: column 8, row 9
  Key(Qt::Key_Left);
  EXPECT_EQ(Cursor(), QPointF(210, 270));
  Key(Qt::Key_Down);
  EXPECT_EQ(Cursor(), QPointF(210, 300));
  Key(Qt::Key_Right);
  Key(Qt::Key_Up);
  EXPECT_EQ(Cursor(), QPointF(240, 270));
}

TEST_F(MapPlayKeysTest, EnterZoomsIntoItsCellAndBackspaceGoesBack) {
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);

  Key(Qt::Key_Return);
  EXPECT_EQ(Visible(), (ZoomRectangle{8, 10, 8, 10}));
  EXPECT_THAT(Sounds(), ElementsAre("ui_nav_map_fade"));
  EXPECT_EQ(Cursor(), QPointF(0, 0));

  Key(Qt::Key_Backspace);
  EXPECT_EQ(Visible(), ZoomRectangle{});
  EXPECT_EQ(Cursor(), QPointF(240, 300));
}

TEST_F(MapPlayKeysTest, EscapeGoesBackToo) {
  Zoom({7, 9, 9, 11});

  Key(Qt::Key_Escape);

  EXPECT_EQ(Visible(), ZoomRectangle{});
}

TEST_F(MapPlayKeysTest, WithoutACursorEnterDoesNothing) {
  Key(Qt::Key_Enter);

  EXPECT_EQ(redraws, 0);
}

TEST_F(MapPlayKeysTest, TheCursorLetsTheMouseThroughAndGoesWithAPress) {
  Zoom({8, 10, 8, 10});
  Key(Qt::Key_Up);
  ASSERT_EQ(Cursor(), QPointF(0, 0));

  Move(At("li01_nw_base"));
  EXPECT_THAT(Shown("Shape1"), SizeIs(1));
  Press(At("li01_nw_base"));
  EXPECT_THAT(Shown("CellCursor"), IsEmpty());
}

TEST_F(MapPlayKeysTest, TheSystemUnderTheCursorIsToldToScreenReaders) {
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);

  EXPECT_EQ(map.Frame().accessibleDescription(), "New York");
  EXPECT_FALSE(map.Frame().accessibleName().isEmpty());
}

TEST_F(MapPlayKeysTest, TabGoesThroughThePanelAndBackToTheMap) {
  play.ShowOptionsLabelMouseMove();
  std::vector<std::string> stops;
  for (int i = 0; i < 14; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    stops.push_back(QApplication::focusWidget()->objectName().toStdString());
  }

  EXPECT_THAT(stops, ElementsAre("StationSearch_0", "StationSearch_1", "StationSearch_2",
                                 "StationSearch_3", "StationSearch_4", "ShowOptionsLabel_0",
                                 "SetLabel_6", "SetImage_0", "SetImage_1", "SetImage_2",
                                 "SetImage_3", "SetImage_4", "SetImage_5", "InfoBoxLabel_0"));
}

TEST_F(MapPlayKeysTest, FoldedOptionsAreNoStops) {
  EXPECT_FALSE(Button("SetImage_0").isVisible());
  EXPECT_TRUE(Button("SetLabel_6").isVisible());
}

TEST_F(MapPlayKeysTest, EnterAndSpaceActivateAStop) {
  QTest::keyClick(&Button("StationSearch_1"), Qt::Key_Return);
  QTest::keyClick(&Button("StationSearch_2"), Qt::Key_Space);
  EXPECT_THAT(searches, ElementsAre(1, 2));

  QTest::keyClick(&Button("ShowOptionsLabel_0"), Qt::Key_Space);
  EXPECT_THAT(Shown("SetImage"), SizeIs(6));
  QTest::keyClick(&Button("SetImage_0"), Qt::Key_Enter);
  EXPECT_EQ(settings.ReadSetting("SET1-0"), "1");
  EXPECT_TRUE(Button("SetImage_0").isChecked());
  QTest::keyClick(&Button("SetLabel_6"), Qt::Key_Return);
  EXPECT_EQ(settings.ReadSetting("LANG"), "2");
  QTest::keyClick(&Button("ShowOptionsLabel_0"), Qt::Key_Return);
  EXPECT_THAT(Shown("SetImage"), IsEmpty());
}

TEST_F(MapPlayKeysTest, EveryStopHasANameInTheLanguageInUse) {
  play.ShowOptionsLabelMouseMove();
  for (const QAbstractButton* button : form.findChildren<QAbstractButton*>()) {
    EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
  }

  play.SetLabelClick(6);

  EXPECT_EQ(Button("SetImage_5").accessibleName().toStdString(),
            FixedLanguage(Language::French).Text(TextId::SystemNames));
  EXPECT_EQ(Button("StationSearch_0").accessibleName().toStdString(),
            FixedLanguage(Language::French).Text(TextId::SearchPlaces));
}

TEST_F(MapPlayKeysTest, AStopStandsOverItsControlAndLetsTheMouseThrough) {
  const QPoint tool = OnPanel("StationSearch", 3);

  EXPECT_TRUE(Button("StationSearch_3").geometry().contains(tool));
  EXPECT_TRUE(Button("StationSearch_3").testAttribute(Qt::WA_TransparentForMouseEvents));
}

}  // namespace
}  // namespace orrerix
