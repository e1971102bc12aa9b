// SPDX-License-Identifier: MIT
#include "derived/jump_objects.h"

#include <gmock/gmock.h>

#include "derived/universe_builders.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class JumpObjects : public DerivedFixture {
 protected:
  JumpObjects() {
    System("li01", "7, 4");
    System("li02", "8, 5", "2");
    System("li03", "9, 6");
  }

  void Gate(std::string_view nickname, std::string_view system, std::string_view target,
            std::string_view pos = "0, 0, 0") {
    Object(nickname,
           {.Pos = pos, .System = system, .JumpEffect = "jump_effect_gate", .Goto = target});
  }

  void Calculate() { CalcJumpObjects(universe, host); }

  std::vector<std::string> Pairs() {
    std::vector<std::string> pairs;
    for (Row& row : Rows("JumpNodes")) {
      pairs.push_back(row["nickname"].Text() + ">" + row["nickname2"].Text());
    }
    return pairs;
  }
};

TEST_F(JumpObjects, APairOfGatesGivesOneRowFromTheFirstOne) {
  Gate("a", "li01", "li02, b, tunnel", "20000, 5, -100000");
  Gate("b", "li02", "li01, a, tunnel", "20000, 5, 20000");

  Calculate();

  ASSERT_THAT(Pairs(), ElementsAre("a>b"));
  Row row = Rows("JumpNodes").front();
  EXPECT_EQ(row["MapX1"], Value(7));
  EXPECT_EQ(row["MapY1"], Value(4));
  EXPECT_EQ(row["MapX2"], Value(8));
  EXPECT_EQ(row["MapY2"], Value(5));
  EXPECT_DOUBLE_EQ(row["PosX1"].Number(), 0.575);  // (15000 + 100000) / 200000
  EXPECT_DOUBLE_EQ(row["PosY1"].Number(), 0.125);  // (-75000 + 100000) / 200000
  EXPECT_DOUBLE_EQ(row["PosX2"].Number(), 0.65);   // (15000 * 2 + 100000) / 200000
  EXPECT_DOUBLE_EQ(row["PosY2"].Number(), 0.65);
  EXPECT_EQ(row["Type"], Value(1));
}

TEST_F(JumpObjects, TheEndThatComesFirstByEffectWritesTheRow) {
  Object("gate", {.System = "li01", .JumpEffect = "z_effect", .Goto = "li02, other, t"});
  Object("other", {.System = "li02", .JumpEffect = "A_effect", .Goto = "li01, gate, t"});

  Calculate();

  EXPECT_THAT(Pairs(), ElementsAre("other>gate"));
}

TEST_F(JumpObjects, ARingOfThreeGatesLacksItsLastLine) {
  Gate("a", "li01", "li02, b, t");
  Gate("b", "li02", "li03, c, t");
  Gate("c", "li03", "li01, a, t");

  Calculate();

  EXPECT_THAT(Pairs(), ElementsAre("a>b", "b>c"));
}

TEST_F(JumpObjects, AGateIntoAnUnknownSystemLeadsToTheTopLeftCorner) {
  Gate("a", "li01", "nowhere, b, t");
  Gate("b", "elsewhere", "x, y, z");

  Calculate();

  ASSERT_THAT(Pairs(), ElementsAre("a>b"));
  EXPECT_EQ(Rows("JumpNodes").front()["MapX2"], Value(0));
  EXPECT_EQ(Rows("JumpNodes").front()["MapY2"], Value(0));
}

TEST_F(JumpObjects, AnEffectNamedAfterAHoleInAnyCaseMakesAHole) {
  Object("a", {.JumpEffect = "My_Jump_Effect_Hole_2", .Goto = "li02, b, t"});
  Gate("b", "li02", "li03, c, t");

  Calculate();

  EXPECT_THAT(Column("JumpNodes", "Type"), ElementsAre("3"));
}

TEST_F(JumpObjects, AnEndThatLeadsNowhereHasNoRowAndNoMessage) {
  Gate("a", "li01", "li02, missing, t");

  Calculate();

  EXPECT_THAT(Pairs(), IsEmpty());
  EXPECT_THAT(DataLog(), IsEmpty());
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(JumpObjects, ATargetWithoutAPositionLiesInTheMiddleAndIsLogged) {
  Gate("a", "li01", "li02, B, t");
  Object("b", {.Pos = "", .System = "li02"});

  Calculate();

  Row row = Rows("JumpNodes").front();
  EXPECT_EQ(row["PosX2"].Number(), 0.5);
  EXPECT_EQ(row["PosY2"].Number(), 0.5);
  EXPECT_EQ(row["nickname2"], Value("b"));
  EXPECT_THAT(DataLog(), ElementsAre("*=== FL-MOD-ERROR: Objekt B has no POS = x,z,y! ===*"));
}

TEST_F(JumpObjects, AGotoWithoutASecondCommaIsAFailureAndStillFindsItsTarget) {
  Gate("a", "li01", "li02, b");
  Object("b", {.System = "li02"});

  Calculate();

  EXPECT_THAT(FailureNumbers(), ElementsAre(5));
  EXPECT_EQ(log.Failures().front().Source, "OrrerixMain.CalcJumpObjects");
  EXPECT_EQ(log.Failures().front().Info, "While calculating jump-gates/-holes");
  EXPECT_THAT(Pairs(), ElementsAre("a>b"));
}

TEST_F(JumpObjects, AnOwnPositionWithoutACommaIsAFailureAndCountsAsTheMiddle) {
  Gate("a", "li01", "li02, b, t", "12");
  Object("b", {.System = "li02"});

  Calculate();

  EXPECT_THAT(FailureNumbers(), ElementsAre(5));
  EXPECT_EQ(Rows("JumpNodes").front()["PosX1"].Number(), 0.5);
}

TEST_F(JumpObjects, AQuoteInATargetBreaksTheQueryAndGivesNoRow) {
  Gate("a", "li01", "li02, b'x, t");

  Calculate();

  EXPECT_THAT(FailureNumbers(), ElementsAre(3075));
  EXPECT_THAT(Pairs(), IsEmpty());
}

TEST_F(JumpObjects, CancelEndsTheStage) {
  messages.Answer = MessageAnswer::Cancel;
  Gate("a", "li01", "li02, b");
  Gate("c", "li01", "li02, b, t");
  Object("b", {.System = "li02"});

  Calculate();

  EXPECT_THAT(FailureNumbers(), ElementsAre(5));
  EXPECT_THAT(Pairs(), IsEmpty());
}

TEST_F(JumpObjects, ObjectsWithoutAnEffectTakeNoPart) {
  Object("a", {.Goto = "li02, b, t"});
  Object("b", {.System = "li02"});

  Calculate();

  EXPECT_THAT(Pairs(), IsEmpty());
}

}  // namespace
}  // namespace orrerix
