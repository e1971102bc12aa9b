// SPDX-License-Identifier: MIT
#include "forms/layers/map_actions.h"

#include "forms/layers/layers_fixture.h"

namespace orrerix {
namespace {

class MapActionsTest : public LayersFixture {
 protected:
  MapActionsTest() {
    Read(space);
    ShowSystem(space);
  }

  MapSpace space{map, remembered, choice};
  MapActions actions{map, space, log, choice};
};

// One system: 570 pixels for 200,000 units. 8 * 0.5 - 0.35 = 3.65 and 8 * 0.5 - 0.5 = 3.5.
TEST_F(MapActionsTest, CoordinatesAreThoseOfThePlaceNearBy) {
  const std::string text = actions.CoordinatesAt({287, 285});

  EXPECT_TRUE(text.starts_with("Sol, New York [X=D.")) << text;
  EXPECT_TRUE(text.ends_with("(0, 0, 0)")) << text;
  EXPECT_TRUE(actions.CoordinatesAt({570 * 0.75, 285}).ends_with("(50000, 0, 0)"));
  EXPECT_EQ(actions.CoordinatesAt({-5, 285}), "");
}

TEST_F(MapActionsTest, BookmarksNameThePlaceOrTheSystem) {
  EXPECT_EQ(actions.BookmarkAt({285, 285}),
            (Bookmark{"Sol (New York)", "", "sun", {8, 10, 8, 10}}));
  EXPECT_EQ(actions.BookmarkAt({500, 500}), (Bookmark{"New York", "", "", {8, 10, 8, 10}}));
}

TEST_F(MapActionsTest, ThePartThatIsShownEndsAtThePanel) {
  EXPECT_EQ(actions.ShownPart().width(), static_cast<int>(Pixels(map.Drawing().PanelBox).left()));
}

}  // namespace
}  // namespace orrerix
