// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/way_page.h"

#include <gmock/gmock.h>

#include "travel_page_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

// Besides the docks of the fixture: dock cliff in another system, to which a jump hole leads.
class WayPageTest : public TravelPageFixture {
 protected:
  WayPageTest() {
    Add("Systems", {{"nickname", "li02"}, {"realname", "Outback"}, {"pos", "5, 4"}});
    Hole("hole1", "li01", "0, 0, 3000", "li02, hole2, tunnel");
    Hole("hole2", "li02", "0, 0, 0", "li01, hole1, tunnel");
    Dock("cliff", "li02", "6000, 0, 0", "");
  }

  void Hole(std::string_view nickname, std::string_view system, std::string_view pos,
            std::string_view destination) {
    Add("Objects", {{"nickname", nickname},
                    {"realname", nickname},
                    {"sys_nick", system},
                    {"pos", pos},
                    {"goto", destination},
                    {"jump_effect", "jump_effect_hole"}});
  }
  void Ask(const char* from, const char* to) {
    Find<QComboBox>(page, "From").setEditText(from);
    Find<QComboBox>(page, "To").setEditText(to);
    Search(page);
  }
  QTableView& Legs() { return Find<QTableView>(page, "Legs"); }
  std::string Reasons() {
    return Find<QPlainTextEdit>(page, "Reasons").toPlainText().toStdString();
  }

  WayPage page{travel};
};

// 5 s launch, 15 s to the hole, 15 s through it, 5 + 6000 / 300 = 25 s to the dock, 10 s docking.
TEST_F(WayPageTest, ShowsTheLegsOfTheFastestWay) {
  Open(page);

  Ask("anvil", "cliff");

  EXPECT_EQ(State(page), "anvil to cliff: 1:10 min, 9,000 units, jumps: 1");
  ASSERT_EQ(Legs().model()->rowCount(), 5);
  EXPECT_THAT(RowOf(Legs(), 1),
              ElementsAre("Free flight", "Liberty", "hole1", "", "0", "3,000", "0:15"));
  EXPECT_THAT(RowOf(Legs(), 2), ElementsAre("Jump hole", "Liberty", "hole2", "", "1", "0", "0:15"));
  EXPECT_THAT(RowOf(Legs(), 3),
              ElementsAre("Free flight", "Outback", "cliff", "", "1", "6,000", "0:25"));
  Find<QPushButton>(page, "ShowWay").click();
  ASSERT_EQ(host.Way.size(), 5u);
  EXPECT_EQ(host.Way[2].Kind, LegKind::Hole);
}

TEST_F(WayPageTest, SaysWhyThereIsNoWay) {
  Open(page);
  Find<QCheckBox>(page, "NoHoles").click();

  Ask("anvil", "cliff");

  EXPECT_EQ(State(page), "There is no way from anvil to cliff.");
  EXPECT_EQ(Legs().model()->rowCount(), 0);
  EXPECT_EQ(Reasons(),
            "There is one without: No jump holes\n"
            "hole1 in li01 leads to hole2: No jump holes\n"
            "Nearest system that is reached: li01\n");
  EXPECT_FALSE(Find(page, "ShowWay").isEnabled());
}

TEST_F(WayPageTest, KeepsAwayFromWhatIsNamed) {
  Open(page);
  Find<QLineEdit>(page, "KeepAway").setText("hole1, hole2");

  Ask("anvil", "cliff");

  EXPECT_THAT(Reasons(), HasSubstr("kept away from"));
}

TEST_F(WayPageTest, APlaceThatIsNotThereIsNamed) {
  Open(page);

  Ask("anvil", "nowhere");

  EXPECT_EQ(State(page), "There is no place 'nowhere'.");
}

TEST_F(WayPageTest, OffersDocksAndSystemsByTheirNames) {
  Open(page);
  auto& from = Find<QComboBox>(page, "From");

  ASSERT_EQ(from.count(), 5);
  EXPECT_EQ(from.itemText(0), "anvil, Liberty (anvil)");
  EXPECT_EQ(from.itemText(4), "Outback (li02)");
  from.setCurrentIndex(4);
  Find<QComboBox>(page, "To").setEditText("Cliff");
  Search(page);

  EXPECT_THAT(State(page), HasSubstr("to cliff"));
}

TEST_F(WayPageTest, ShowsTheWayToAPlaceFromWhereThePlayerIs) {
  host.Start = "anvil";
  Open(page);

  page.ShowWayTo("brook");

  ASSERT_TRUE(WaitUntil([&] { return !Find(page, "Cancel").isEnabled(); }));
  EXPECT_THAT(State(page), HasSubstr("anvil to brook"));
}

TEST_F(WayPageTest, AsksFromWhereIfThePlayerIsThereAlready) {
  host.Start = "brook";
  Open(page);

  page.ShowWayTo("brook");

  EXPECT_TRUE(Find<QComboBox>(page, "From").currentText().isEmpty());
  EXPECT_TRUE(State(page).empty());
}

TEST_F(WayPageTest, WithoutAnEndNothingIsSought) {
  Open(page);

  Ask("anvil", "");

  EXPECT_TRUE(State(page).empty());
}

}  // namespace
}  // namespace orrerix
