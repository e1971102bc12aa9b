// SPDX-License-Identifier: MIT
#include "forms/map/summary_view.h"

#include <QTest>

#include <gmock/gmock.h>

#include "forms/form_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

// A panel at the right of the map, 4500 twips wide, with room for news of 4000 by 6000 at 9000,
// 2000: 20 pixels of it are taken by the program's own line, and the slogan begins at 400 pixels.
MapDrawing WithRoom() {
  MapDrawing drawing;
  drawing.Frame = {0, 0, 13500, 9000};
  drawing.Panel = PanelPlace::Right;
  drawing.PanelBox = {9000, 0, 4500, 9000};
  Control info = MakeFrame(ControlId::PanelFrame, 2, {0, 1500, 4500, 7500}, {0});
  info.Children.push_back(MakeLabel(ControlId::NewsLabel, 0, {0, 0, 4500, 300}, "own"));
  info.Children.push_back(MakeLabel(ControlId::InfoBoxLine, 0, {0, 6000, 4500, 300}, "slogan"));
  Control panel = MakeFrame(ControlId::PanelFrame, 0, drawing.PanelBox, {0});
  panel.Children = {info};
  drawing.Controls = {panel};
  return drawing;
}

class SummaryViewTest : public ::testing::Test {
 protected:
  SummaryViewTest() {
    frame.resize(900, 600);
    frame.show();
  }

  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    for (int row = 0; row < view.count(); ++row) {
      lines.push_back(view.item(row)->text().trimmed().toStdString());
    }
    return lines;
  }

  LanguageChoice choice;
  QWidget frame;
  std::vector<SummaryKind> followed;
  SummaryView view{&frame, choice,
                   [this](const SummaryLine& line) { followed.push_back(line.Kind); }};
  const std::vector<SummaryLine> counts = {{SummaryKind::Systems, 54, "", ""},
                                           {SummaryKind::Bases, 227, "", ""}};
  const std::vector<SummaryLine> system = {{SummaryKind::System, 0, "Home", "home"},
                                           {SummaryKind::Owner, 0, "", ""},
                                           {SummaryKind::Base, 0, "Pier", "pier"},
                                           {SummaryKind::Gate, 0, "Away", "", MapCell{5, 6}}};
};

// 9000 / 15 = 600 and (1500 + 300) / 15 = 120 to (1500 + 6000) / 15 = 500, less 8 on each side.
TEST_F(SummaryViewTest, ItStandsBetweenTheOwnLineAndTheSlogan) {
  view.Show(counts, true, WithRoom());

  EXPECT_TRUE(view.isVisible());
  EXPECT_EQ(view.geometry(), QRect(608, 128, 284, 364));
}

TEST_F(SummaryViewTest, TheUniverseIsToldInNumbersInTheLanguageInUse) {
  view.Show(counts, true, WithRoom());
  EXPECT_THAT(Lines(), ElementsAre("The universe in numbers", "Systems: 54", "Bases: 227"));

  choice.Current = Language::German;
  view.Show(counts, true, WithRoom());
  EXPECT_THAT(Lines(), ElementsAre("Das Universum in Zahlen", "Systeme: 54", "Basen: 227"));
}

TEST_F(SummaryViewTest, ASystemIsToldByNames) {
  view.Show(system, false, WithRoom());

  EXPECT_THAT(Lines(), ElementsAre("Home", "no owner", "Pier", "\u2192 Away"));
}

TEST_F(SummaryViewTest, AClickAndEnterFollowALine) {
  view.Show(system, false, WithRoom());

  QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                    view.visualItemRect(view.item(2)).center());
  view.setCurrentRow(3);
  QTest::keyClick(&view, Qt::Key_Return);

  EXPECT_THAT(followed, ElementsAre(SummaryKind::Base, SummaryKind::Gate));
}

TEST_F(SummaryViewTest, TheHeadLeadsNowhere) {
  view.Show(counts, true, WithRoom());

  view.setCurrentRow(0);
  QTest::keyClick(&view, Qt::Key_Return);

  EXPECT_TRUE(followed.empty());
}

TEST_F(SummaryViewTest, InPrintAndWithoutRoomItIsNotThere) {
  view.Show(counts, true, WithRoom());
  MapDrawing print = WithRoom();
  print.PrintMode = true;
  view.Show(counts, true, print);
  EXPECT_FALSE(view.isVisible());

  view.Show(counts, true, WithRoom());
  MapDrawing low = WithRoom();
  low.Controls[0].Children[0].Children[1].Place.Top = 700;
  view.Show(counts, true, low);
  EXPECT_FALSE(view.isVisible());
}

}  // namespace
}  // namespace orrerix
