// SPDX-License-Identifier: MIT
#include "routes/why_no_way.h"

#include <gmock/gmock.h>

#include "routes/travel_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// Three systems in a row: a gate from the first to the second, a hole from there to the third.
class WhyNoWayTest : public TravelFixture {
 protected:
  WhyNoWayTest() {
    System("li01", "1, 1");
    System("li02", "4, 1");
    System("li03", "4, 5");
    Dock("pier", "li01", "0, 0, 0");
    Dock("quay", "li03", "0, 0, 0", "li_grp");
    Jump("a_out", "li01", "300, 0, 0", "li02, a_in, tunnel");
    Jump("a_in", "li02", "300, 0, 0", "li01, a_out, tunnel");
    Jump("b_out", "li02", "600, 0, 0", "li03, b_in, tunnel", true);
    Jump("b_in", "li03", "300, 0, 0", "li02, b_out, tunnel", true);
  }

  WhyNoWay Why() {
    return ExplainNoWay(Graph(), model, wishes, locked, PlaceOfWay(Graph(), "pier"),
                        PlaceOfWay(Graph(), "quay"));
  }
  static std::vector<std::string> Options(const WhyNoWay& why) {
    std::vector<std::string> options;
    for (const WishItem& item : why.Items) {
      options.push_back(item.Option + (item.Value ? " " + *item.Value : ""));
    }
    return options;
  }
};

TEST_F(WhyNoWayTest, NamesTheWishThatAloneStandsInTheWay) {
  wishes.NoHoles = true;

  const WhyNoWay why = Why();

  EXPECT_THAT(Options(why), ElementsAre("no-holes"));
  EXPECT_TRUE(why.AllTogether);
  ASSERT_THAT(why.Blocked, SizeIs(1));
  EXPECT_EQ(Nickname(why.Blocked[0].Object), "b_out");
  EXPECT_EQ(why.Blocked[0].Goto, "b_in");
  EXPECT_EQ(why.Blocked[0].Because, JumpObstacle::NoHoles);
  EXPECT_EQ(why.Entrances, 1);
}

TEST_F(WhyNoWayTest, TellsWhenOnlyAllWishesTogetherStandInTheWay) {
  wishes.NoHoles = true;
  wishes.NoGates = true;

  const WhyNoWay why = Why();

  EXPECT_THAT(Options(why), IsEmpty());
  EXPECT_TRUE(why.AllTogether);
}

TEST_F(WhyNoWayTest, NamesTheNearestSystemThatIsReached) {
  wishes.NoHoles = true;

  const WhyNoWay why = Why();

  // From li02 (4, 1) to li03 (4, 5) there are four cells, from li01 (1, 1) five.
  ASSERT_TRUE(why.Nearest);
  EXPECT_EQ(Graph().Systems[why.Nearest->System].Nickname, "li02");
  EXPECT_EQ(Nickname(why.Nearest->Object), "a_in");
  EXPECT_EQ(why.Nearest->Cells, 4);
  EXPECT_EQ(why.Nearest->Time, 26000);  // 5 + 300 / 300 + 20
}

TEST_F(WhyNoWayTest, EachNameThatIsAvoidedIsLookedAtAlone) {
  wishes.Avoid = {"li02", "nothing"};

  const WhyNoWay why = Why();

  EXPECT_THAT(Options(why), ElementsAre("avoid li02"));
  ASSERT_THAT(why.Blocked, SizeIs(1));
  EXPECT_EQ(why.Blocked[0].Because, JumpObstacle::Avoided);
}

TEST_F(WhyNoWayTest, AJumpToNowhereIsMissing) {
  Jump("lost", "li01", "900, 0, 0", "li09, no_such_gate, tunnel");
  wishes.NoHoles = true;

  const WhyNoWay why = Why();

  ASSERT_THAT(why.Blocked, SizeIs(2));
  EXPECT_EQ(Nickname(why.Blocked[1].Object), "lost");
  EXPECT_EQ(why.Blocked[1].Goto, "no_such_gate");
  EXPECT_EQ(why.Blocked[1].Because, JumpObstacle::Missing);
}

TEST_F(WhyNoWayTest, AMissingTargetIsInNoSystemEvenIfAReachedOneIsWritten) {
  Jump("lost", "li01", "900, 0, 0", "li01, no_such_gate, tunnel");
  wishes.NoHoles = true;

  const WhyNoWay why = Why();

  ASSERT_THAT(why.Blocked, SizeIs(2));
  EXPECT_EQ(Nickname(why.Blocked[1].Object), "lost");
  EXPECT_EQ(why.Blocked[1].Because, JumpObstacle::Missing);
}

TEST_F(WhyNoWayTest, ATargetThatLetsNobodyInIsReachedAsASystem) {
  wishes.AvoidFactions = {"li_grp"};

  const WhyNoWay why = Why();

  EXPECT_THAT(Options(why), ElementsAre("avoid-faction li_grp"));
  EXPECT_THAT(why.Blocked, IsEmpty());
  ASSERT_TRUE(why.Nearest);
  EXPECT_EQ(why.Nearest->Cells, 0);
}

}  // namespace
}  // namespace orrerix
