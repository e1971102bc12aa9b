// SPDX-License-Identifier: MIT
// What a redraw shows when something in it fails.
#include <gmock/gmock.h>

#include "redraw_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(Redraw, APointTooFarOffForAControlIsAFailureAndItsNumberStaysZero) {
  // 1e40 times any cell leaves 32-bit floats.
  GateFrom(7, 1e40);

  const MapDrawing drawing = Draw();

  ASSERT_EQ(log.Failures().size(), 1u);
  EXPECT_EQ(log.Failures().front().What.Number, 6);
  EXPECT_EQ(Named(drawing, ControlId::MapLine).at(0).Ends.X1, 0);
  EXPECT_GT(Named(drawing, ControlId::MapLine).at(0).Ends.Y1, 0);
  EXPECT_GT(Named(drawing, ControlId::MapLine).at(0).Ends.X2, 0);
}

TEST_F(Redraw, ANumberThatARowLacksIsAFailureOfEachStatementThatNeedsIt) {
  Zoom(kTwoCells);
  GateFrom(7, {});

  const MapDrawing drawing = Draw();

  const Control line = Named(drawing, ControlId::MapLine).at(0);
  EXPECT_EQ(line.Ends.X1, 0);
  EXPECT_GT(line.Ends.Y1, 0);
  EXPECT_EQ(IconText(Named(drawing, ControlId::MapIcon).at(0)), "");
  // Of the line, of its icon, and of the tags of both icons.
  EXPECT_EQ(log.Failures().size(), 4u);
  for (const FailureEntry& entry : log.Failures()) EXPECT_EQ(entry.What.Number, 94);
}

TEST_F(Redraw, AConnectionWhoseKindIsBeyondAnyIntegerHasNoLine) {
  Jump(kJumpGate);
  db.Execute(mustWork, "UPDATE JumpNodes SET Type = -1e300");

  EXPECT_THAT(Named(Draw(), ControlId::MapLine), IsEmpty());
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(Redraw, ACancelledRedrawShowsWhatItHadComeTo) {
  messages.Answer = MessageAnswer::Cancel;
  Jump(kJumpGate);
  Lane();
  Add("TradeLanes", {{"MapX1", 7}, {"MapY1", 4}, {"MapX2", 7}, {"MapY2", 4}, {"PosX1", 1e40}});
  Lane();

  const MapDrawing drawing = Draw();

  // The second lane ends the redraw; the border is shown after the lines only.
  EXPECT_EQ(Named(drawing, ControlId::MapLine).size(), 2u);
  EXPECT_THAT(Layers(drawing),
              ElementsAre(ControlId::BackgroundTile, ControlId::PaintedUniverse,
                          ControlId::SystemLabel, ControlId::MapLine, ControlId::PanelFrame));
}

// A map of a gate and two lanes that was drawn once; the gate's row cannot be drawn any more.
class RedrawnWithAFailure : public Redraw {
 protected:
  RedrawnWithAFailure() {
    Jump(kJumpGate);
    Lane();
    Lane();
    before = Draw();
    db.Execute(mustWork, "UPDATE JumpNodes SET PosX1 = 1e40");
    messages.Answer = MessageAnswer::Cancel;
  }

  MapDrawing before;
};

TEST_F(RedrawnWithAFailure, CancelledItKeepsTheBorderAndTheLinesItDidNotReach) {
  const MapDrawing drawing = Draw();

  EXPECT_EQ(Named(drawing, ControlId::Border), Named(before, ControlId::Border));
  EXPECT_EQ(Named(drawing, ControlId::MapLine), Named(before, ControlId::MapLine));
}

TEST_F(RedrawnWithAFailure, CancelledItsBorderSurroundsTheCellsThatAreShownNow) {
  Zoom(kTwoCells);

  const ControlList border = Named(Draw(), ControlId::Border);

  ASSERT_EQ(border.size(), 8u);
  EXPECT_EQ(border.at(7).Place.Right(), 2 * 11900 + 100);
}

TEST_F(RedrawnWithAFailure, ObjectsThatWereUnloadedDoNotComeBack) {
  UnloadObjects(state);

  EXPECT_THAT(Named(Draw(), ControlId::MapLine), IsEmpty());
}

// Fails to measure one name.
class FailingMeasure : public FixedTextMeasure {
 public:
  int TextWidth(std::string_view text, int fontSize) const override {
    if (text == "Lantern") throw RuntimeFailure(failure_number::kOverflow);
    return FixedTextMeasure::TextWidth(text, fontSize);
  }
};

TEST_F(Redraw, AFailureAmongTheCellsIsOneOfZoomCalcAndTheNextStepRuns) {
  const FailingMeasure failing;
  const MapDrawing drawing = DrawMap(
      universe, state, {formWidth, formHeight, MapOptions::Defaults(false), failing, panel});

  ASSERT_EQ(log.Failures().size(), 1u);
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.ZoomCalc");
  EXPECT_EQ(Named(drawing, ControlId::SystemLabel).size(), 2u);
  EXPECT_EQ(Named(drawing, ControlId::PanelFrame).size(), 1u);
}

TEST_F(Redraw, CancelledInZoomCalcTheRedrawGoesOn) {
  messages.Answer = MessageAnswer::Cancel;
  Lane();
  const FailingMeasure failing;
  const MapDrawing drawing = DrawMap(
      universe, state, {formWidth, formHeight, MapOptions::Defaults(false), failing, panel});

  EXPECT_THAT(Named(drawing, ControlId::SystemLabel), IsEmpty());
  EXPECT_EQ(Named(drawing, ControlId::MapLine).size(), 1u);
}

TEST_F(Redraw, ACellBeyondTheGridIsAFailureOnceForEachStatement) {
  GateFrom(18, 0.5);

  const MapDrawing drawing = Draw();

  for (const FailureEntry& entry : log.Failures()) {
    EXPECT_EQ(entry.What.Number, 9);
    EXPECT_EQ(entry.Source, "OrrerixMain.Form_Resize");
  }
  // The line's tag, and both numbers of its first end.
  EXPECT_EQ(log.Failures().size(), 3u);
  EXPECT_TRUE(
      std::holds_alternative<std::monostate>(Named(drawing, ControlId::MapLine).at(0).Subject));
}

}  // namespace
}  // namespace orrerix
