// SPDX-License-Identifier: MIT
// The map and its panel by the keyboard.
#include <gmock/gmock.h>

#include "map_controller_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class MapKeysTest : public MapControllerFixture {
 protected:
  MapKeysTest() {
    form.activateWindow();
    map.Frame().setFocus();
    PassEvents();
  }

  // Top left corner of the cursor's cell, pixels.
  QPointF Cursor() {
    const Control* top = Shown(ControlId::CellCursor, 0);
    return top == nullptr ? QPointF(-1, -1)
                          : QPointF(Pixels(top->Ends.X1) - 0.5, Pixels(top->Ends.Y1) - 0.5);
  }

  // The button that the Tab key stops at for a control of the panel.
  QAbstractButton& Button(ControlId id, int index) {
    return Find<QAbstractButton>(form, id, index);
  }
};

TEST_F(MapKeysTest, AnArrowKeyShowsTheCursorAndFurtherOnesMoveIt) {
  EXPECT_THAT(Shown(ControlId::CellCursor), IsEmpty());

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

TEST_F(MapKeysTest, EnterZoomsIntoItsCellAndBackspaceGoesBack) {
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

TEST_F(MapKeysTest, EscapeGoesBackToo) {
  Zoom({7, 9, 9, 11});

  Key(Qt::Key_Escape);

  EXPECT_EQ(Visible(), ZoomRectangle{});
}

TEST_F(MapKeysTest, WithoutACursorEnterDoesNothing) {
  Key(Qt::Key_Enter);

  EXPECT_EQ(redraws, 0);
}

TEST_F(MapKeysTest, TheCursorLetsTheMouseThroughAndGoesWithAPress) {
  Zoom({8, 10, 8, 10});
  Key(Qt::Key_Up);
  ASSERT_EQ(Cursor(), QPointF(0, 0));

  Move(At("li01_nw_base"));
  EXPECT_THAT(Shown(ControlId::BoxShape), SizeIs(1));
  Press(At("li01_nw_base"));
  EXPECT_THAT(Shown(ControlId::CellCursor), IsEmpty());
}

TEST_F(MapKeysTest, TheSystemUnderTheCursorIsToldToScreenReaders) {
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);

  EXPECT_EQ(map.Frame().accessibleDescription(), "New York");
  EXPECT_FALSE(map.Frame().accessibleName().isEmpty());
}

TEST_F(MapKeysTest, TabGoesThroughThePanelAndBackToTheMap) {
  play.UnfoldOptions();
  std::vector<std::string> stops;
  for (int i = 0; i < 14; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    stops.push_back(QApplication::focusWidget()->objectName().toStdString());
  }

  EXPECT_THAT(
      stops,
      ElementsAre(ObjectName(ControlId::Tool, 0), ObjectName(ControlId::Tool, 1),
                  ObjectName(ControlId::Tool, 2), ObjectName(ControlId::Tool, 3),
                  ObjectName(ControlId::Tool, 4), ObjectName(ControlId::OptionsCaption, 0),
                  ObjectName(ControlId::OptionLabel, 6), ObjectName(ControlId::OptionSwitch, 0),
                  ObjectName(ControlId::OptionSwitch, 1), ObjectName(ControlId::OptionSwitch, 2),
                  ObjectName(ControlId::OptionSwitch, 3), ObjectName(ControlId::OptionSwitch, 4),
                  ObjectName(ControlId::OptionSwitch, 5), ObjectName(ControlId::NewsLabel, 0)));
}

TEST_F(MapKeysTest, FoldedOptionsAreNoStops) {
  EXPECT_FALSE(Button(ControlId::OptionSwitch, 0).isVisible());
  EXPECT_TRUE(Button(ControlId::OptionLabel, 6).isVisible());
}

TEST_F(MapKeysTest, EnterAndSpaceActivateAStop) {
  QTest::keyClick(&Button(ControlId::Tool, 1), Qt::Key_Return);
  QTest::keyClick(&Button(ControlId::Tool, 2), Qt::Key_Space);
  EXPECT_THAT(searches, ElementsAre(1, 2));

  QTest::keyClick(&Button(ControlId::OptionsCaption, 0), Qt::Key_Space);
  EXPECT_THAT(Shown(ControlId::OptionSwitch), SizeIs(6));
  QTest::keyClick(&Button(ControlId::OptionSwitch, 0), Qt::Key_Enter);
  EXPECT_EQ(settings.ReadSetting("SET1-0"), "1");
  EXPECT_TRUE(Button(ControlId::OptionSwitch, 0).isChecked());
  QTest::keyClick(&Button(ControlId::OptionLabel, 6), Qt::Key_Return);
  EXPECT_EQ(settings.ReadSetting("LANG"), "2");
  QTest::keyClick(&Button(ControlId::OptionsCaption, 0), Qt::Key_Return);
  EXPECT_THAT(Shown(ControlId::OptionSwitch), IsEmpty());
}

TEST_F(MapKeysTest, EveryStopHasANameInTheLanguageInUse) {
  play.UnfoldOptions();
  for (const QAbstractButton* button : form.findChildren<QAbstractButton*>()) {
    EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
  }

  play.ActivateOptionLabel(6);

  EXPECT_EQ(Button(ControlId::OptionSwitch, 5).accessibleName().toStdString(),
            FixedLanguage(Language::French).Text(TextId::SystemNames));
  EXPECT_EQ(Button(ControlId::Tool, 0).accessibleName().toStdString(),
            FixedLanguage(Language::French).Text(TextId::SearchPlaces));
}

TEST_F(MapKeysTest, AStopStandsOverItsControlAndLetsTheMouseThrough) {
  const QPoint tool = OnPanel(ControlId::Tool, 3);

  EXPECT_TRUE(Button(ControlId::Tool, 3).geometry().contains(tool));
  EXPECT_TRUE(Button(ControlId::Tool, 3).testAttribute(Qt::WA_TransparentForMouseEvents));
}

}  // namespace
}  // namespace orrerix
