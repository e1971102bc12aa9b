// SPDX-License-Identifier: MIT
#include "derived/trade_lanes.h"

#include <gmock/gmock.h>

#include "derived/universe_builders.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TradeLanes : public DerivedFixture {
 protected:
  TradeLanes() { System("li01", "7, 4"); }

  struct RingFields {
    std::string_view Prev = "";
    std::string_view Next = "";
    std::string_view Name = "";
    std::string_view Pos = "0, 0, 0";
  };
  void Ring(std::string_view nickname, const RingFields& ring) {
    Object(nickname,
           {.Pos = ring.Pos, .PrevRing = ring.Prev, .NextRing = ring.Next, .SpaceName = ring.Name});
  }

  void Calculate() { CalcTradeLanes(universe, host); }

  std::vector<std::string> Lanes() {
    std::vector<std::string> lanes;
    for (Row& row : Rows("TradeLanes")) {
      lanes.push_back(row["nickname"].Text() + ">" + row["nickname2"].Text());
    }
    return lanes;
  }
};

TEST_F(TradeLanes, TwoRingsMakeALane) {
  Ring("r1", {.Next = "r2", .Name = "Jetty", .Pos = "20000, 0, 0"});
  Ring("r2", {.Prev = "r1", .Name = "Harbour", .Pos = "0, 0, -100000"});

  Calculate();

  ASSERT_THAT(Lanes(), ElementsAre("r1>r2"));
  Row row = Rows("TradeLanes").front();
  EXPECT_EQ(row["realname"], Value("Jetty"));
  EXPECT_EQ(row["realname2"], Value("Harbour"));
  EXPECT_EQ(row["MapX1"], Value(7));
  EXPECT_EQ(row["MapY2"], Value(4));
  EXPECT_DOUBLE_EQ(row["PosX1"].Number(), 0.575);
  EXPECT_DOUBLE_EQ(row["PosY1"].Number(), 0.5);
  EXPECT_DOUBLE_EQ(row["PosX2"].Number(), 0.5);
  EXPECT_DOUBLE_EQ(row["PosY2"].Number(), 0.125);
}

TEST_F(TradeLanes, ALaneRunsFromItsFirstRingToItsLast) {
  Ring("r1", {.Next = "r2"});
  Ring("r2", {.Prev = "r1", .Next = "r3"});
  Ring("r3", {.Prev = "r2"});

  Calculate();

  EXPECT_THAT(Lanes(), ElementsAre("r1>r3"));
}

TEST_F(TradeLanes, ARingWithAPreviousOneStartsNoLane) {
  Ring("r2", {.Prev = "r1"});

  Calculate();

  EXPECT_THAT(Lanes(), IsEmpty());
}

TEST_F(TradeLanes, ARingWithNeitherNeighbourIsNoLane) {
  Ring("r1", {});

  Calculate();

  EXPECT_THAT(Lanes(), IsEmpty());
}

TEST_F(TradeLanes, AChainThatMeetsItselfEndsThereWithoutAMessage) {
  // r2 and r3 enter the list; r3 leads back to r2, so r3 is the end.
  Ring("r1", {.Next = "r2"});
  Ring("r2", {.Prev = "r1", .Next = "r3"});
  Ring("r3", {.Prev = "r2", .Next = "r2"});

  Calculate();

  EXPECT_THAT(Lanes(), ElementsAre("r1>r3"));
  EXPECT_THAT(DataLog(), IsEmpty());
}

TEST_F(TradeLanes, AChainBackToItsStartRunsFromTheStartToTheStart) {
  Ring("r1", {.Next = "r2"});
  Ring("r2", {.Prev = "r1", .Next = "r1"});

  Calculate();

  EXPECT_THAT(Lanes(), ElementsAre("r1>r1"));
}

TEST_F(TradeLanes, EndsWithoutANameAreUnknown) {
  Ring("r1", {.Next = "r2"});
  Ring("r2", {.Prev = "r1"});

  Calculate();

  EXPECT_THAT(Column("TradeLanes", "realname"), ElementsAre("Unknown"));
  EXPECT_THAT(Column("TradeLanes", "realname2"), ElementsAre("Unknown"));
}

TEST_F(TradeLanes, TheNextRingIsFoundWhateverTheCaseOfItsName) {
  Ring("r1", {.Next = "R2"});
  Ring("r2", {.Prev = "r1", .Next = " R3 "});
  Ring("r3", {.Prev = "r2"});

  Calculate();

  EXPECT_THAT(Lanes(), ElementsAre("r1>r3"));
}

TEST_F(TradeLanes, TheNextRingOfTheStartIsTakenAsItStands) {
  Ring("r1", {.Next = "r2 "});
  Ring("r2", {.Prev = "r1"});

  Calculate();

  EXPECT_THAT(DataLog(), ElementsAre("FL-MOD-ERROR Searching target Tradelane <r2 > for <r1>"));
}

TEST_F(TradeLanes, ARingThatIsMissingDropsTheLaneAndIsLogged) {
  Ring("r1", {.Next = "r2"});
  Ring("r2", {.Prev = "r1", .Next = "r3"});

  Calculate();

  EXPECT_THAT(Lanes(), IsEmpty());
  EXPECT_THAT(DataLog(), ElementsAre("FL-MOD-ERROR Searching target Tradelane <r3> for <r1>"));
}

TEST_F(TradeLanes, ALaneThatEndsWhereARecordedOneBeginsIsNotRecorded) {
  // r1 walks m, r1 and meets m again: it runs from r1 to r1. r5 walks m, r1 and ends there, too.
  Ring("r1", {.Next = "m"});
  Ring("m", {.Prev = "r1", .Next = "r1"});
  Ring("r5", {.Next = "m"});

  Calculate();

  EXPECT_THAT(Lanes(), ElementsAre("r1>r1"));
}

TEST_F(TradeLanes, TwoLanesMayEndAtTheSameRing) {
  Ring("r1", {.Next = "r2"});
  Ring("r2", {.Prev = "r1"});
  Ring("r5", {.Next = "r1"});

  Calculate();

  EXPECT_THAT(Lanes(), ElementsAre("r1>r2", "r5>r2"));
}

TEST_F(TradeLanes, APositionWithoutACommaIsAFailureWithoutAnInfoText) {
  Ring("r1", {.Next = "r2", .Pos = "5"});
  Ring("r2", {.Prev = "r1"});

  Calculate();

  EXPECT_THAT(FailureNumbers(), ElementsAre(5));
  EXPECT_EQ(log.Failures().front().Source, "OrrerixMain.CalcTradeLanes");
  EXPECT_EQ(log.Failures().front().Info, "");
  EXPECT_THAT(Lanes(), ElementsAre("r1>r2"));
}

}  // namespace
}  // namespace orrerix
