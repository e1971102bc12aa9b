// SPDX-License-Identifier: MIT
#include "routes/travel_graph.h"

#include <gmock/gmock.h>

#include "routes/travel_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class TravelGraphTest : public TravelFixture {
 protected:
  std::vector<std::string> Nicknames() {
    std::vector<std::string> names;
    for (const TravelObject& object : Graph().Objects) names.push_back(object.Nickname);
    return names;
  }
  const TravelObject& At(std::string_view nickname) {
    return Graph().Objects[Graph().FindObject(nickname).value()];
  }
};

TEST_F(TravelGraphTest, ObjectsWithoutAPlaceTakeNoPart) {
  Object("b", "li01", "1, 2, 3");
  Object("A", "li01", "1, 2, 3");
  Object("two_numbers", "li01", "1, 2");
  Object("far", "li01", "2e9, 0, 0");
  Object("nowhere", "", "1, 2, 3");
  Object("", "li01", "1, 2, 3");

  EXPECT_THAT(Nicknames(), ElementsAre("A", "b"));
}

TEST_F(TravelGraphTest, TheFirstOfANicknameCounts) {
  // A finished file has no keys.
  Database finished = DBEngine::CreateInMemory(mustWork);
  for (TableDef& table : db.TableDefs(mustWork)) {
    table.PrimaryKey.reset();
    finished.CreateTable(mustWork, table);
  }
  for (const auto& [nickname, x] : {std::pair("twin", "1, 0, 0"), std::pair("TWIN", "2, 0, 0")}) {
    Recordset rows = finished.OpenTable(mustWork, "Objects");
    rows.AddNew();
    rows["nickname"] = nickname;
    rows["sys_nick"] = "li01";
    rows["pos"] = x;
    rows.Update();
  }

  const TravelGraph graph = ReadTravelGraph(mustWork, finished);

  ASSERT_THAT(graph.Objects, SizeIs(1));
  EXPECT_EQ(graph.Objects[0].Point.X, 1);
}

TEST_F(TravelGraphTest, ADockHasABaseAndARowOfTheDocks) {
  Dock("pier", "li01", "0, 0, 0", "li_grp");
  Object("rock", "li01", "0, 0, 0", {{"dock_with", "rock_base"}});
  Object("fake", "li01", "0, 0, 0", {{"dock_with", "b"}, {"archetype", "Station_NoDock"}});
  Add("DockObjects", {{"nickname", "fake"}, {"realname", "Fake"}});

  EXPECT_TRUE(At("PIER").IsDock);
  EXPECT_EQ(At("pier").Owner, "li_grp");
  EXPECT_FALSE(At("rock").IsDock);
  EXPECT_FALSE(At("fake").IsDock);
}

TEST_F(TravelGraphTest, AJumpLeadsOneWayToTheObjectThatItNames) {
  Jump("out", "li01", "0, 0, 0", "Li02, IN , tunnel");
  Jump("in", "li02", "0, 0, 0", "li01, nothing, tunnel", true);

  ASSERT_TRUE(At("out").JumpsTo);
  EXPECT_EQ(At("out").JumpsTo->Kind, JumpKind::Gate);
  EXPECT_EQ(Nickname(At("out").JumpsTo->Target), "in");
  EXPECT_FALSE(At("in").JumpsTo);
  EXPECT_TRUE(At("in").IsNode());  // one can arrive there
}

TEST_F(TravelGraphTest, AnEffectOfAHoleMakesAHole) {
  Jump("a", "li01", "0, 0, 0", "li02, b", true);
  Jump("b", "li02", "0, 0, 0", "li01, a", true);

  EXPECT_EQ(At("a").JumpsTo->Kind, JumpKind::Hole);
}

TEST_F(TravelGraphTest, ALaneEndsBeforeWhatDoesNotBelongToIt) {
  Lane("li01", {{"r1", 0}, {"r2", 100}, {"r3", 300}});
  Object("s1", "li01", "0, 0, 0", {{"next_ring", "s2"}});
  Object("s2", "li02", "0, 0, 0", {{"prev_ring", "s1"}});
  Object("c1", "li01", "0, 0, 0", {{"next_ring", "c2"}});
  Object("c2", "li01", "9, 0, 0", {{"prev_ring", "c1"}, {"next_ring", "c1"}});

  ASSERT_THAT(Graph().Lanes, SizeIs(2));
  EXPECT_THAT(Graph().Lanes[0].Rings, SizeIs(3));
  EXPECT_EQ(Graph().Lanes[0].Between(2, 0), 300);
  EXPECT_THAT(Graph().Lanes[1].Rings, SizeIs(2));  // the circle is walked once
  EXPECT_THAT(At("s1").Rings, IsEmpty());          // a single ring is no lane
}

}  // namespace
}  // namespace orrerix
