// SPDX-License-Identifier: MIT
#include "check/rules/shapes.h"

#include "check/game_fixture.h"

namespace orrerix::check {
namespace {

class ShapeRules : public CheckedGameTest {};

TEST_F(ShapeRules, TwoNumbersWithBlanksBetweenLackAComma) {
  OneSystem("[Object]\nnickname = a\npos = 0 0, 5\nrotate = 1, 2 -3\n");

  EXPECT_THAT(Found("missing-comma"), ElementsAre("li01:3 pos", "li01:4 rotate"));
  EXPECT_THAT(Found("value-count"), IsEmpty());
}

TEST_F(ShapeRules, OnlyTheLeftmostFaultIsReported) {
  OneSystem("[Object]\nnickname = a\npos = x, 0 0\n[Object]\nnickname = b\npos = 0 0, x\n");

  EXPECT_THAT(Found("number-expected"), ElementsAre("li01:3 pos"));
  EXPECT_THAT(Found("missing-comma"), ElementsAre("li01:6 pos"));
}

TEST_F(ShapeRules, ANumberHasASignDigitsAPointAndAnExponent) {
  OneSystem(R"(
[Object]
nickname = a
pos = +1, -.5, 2.
rotate = 1e5, 1.5E-3, 0
[Object]
nickname = b
pos = 1, 0x10, 2
rotate = 1, ., 2
[Object]
nickname = c
pos = 1, , 2
rotate = 1, 2, 1f
)");

  EXPECT_THAT(Found("number-expected"),
              ElementsAre("li01:7 pos", "li01:8 rotate", "li01:11 pos", "li01:12 rotate"));
}

TEST_F(ShapeRules, EmptyValuesAtTheEndDoNotCount) {
  OneSystem(R"(
[Object]
nickname = a
pos = 1, 2, 3, ,
rotate = 1, 2,
[Zone]
nickname = z
size = 5
[Zone]
nickname = y
size = 5, 6, 7
[Zone]
nickname = x
size = 5, 6, 7, 8
[Zone]
nickname = w
size =
)");

  EXPECT_THAT(Found("value-count"), ElementsAre("li01:4 rotate", "li01:13 size", "li01:16 size"));
  EXPECT_THAT(Found("number-expected"), IsEmpty());
}

TEST_F(ShapeRules, ATextThatMustBeThereMayNotBeEmpty) {
  Data("loadouts", R"(
[Loadout]
nickname = a
equip = , HpWeapon01
equip = gun,
equip = gun, HpWeapon01, 3
cargo = gold
cargo = gold, 5, HpCargo
)");

  EXPECT_THAT(Found("value-count"),
              ElementsAre("loadouts:3 equip", "loadouts:5 equip", "loadouts:6 cargo"));
}

TEST_F(ShapeRules, TheLastTypeOfHardpointsRepeats) {
  Data("ships", R"(
[Ship]
nickname = a
hp_type = gun_1, Hp1
hp_type = gun_1, Hp1, Hp2, Hp3
hp_type = gun_1
hp_type = gun_1, , Hp2
)");

  EXPECT_THAT(Found("value-count"), ElementsAre("ships:5 hp_type", "ships:6 hp_type"));
}

TEST_F(ShapeRules, AMarketLineHasSevenOrEightValues) {
  Data("markets", R"(
[BaseGood]
base = b
marketgood = a, 0 -1, 1, 1, 0, 1, 1
marketgood = a, 0, -1, 1, 1, 0, 1
marketgood = a, 0, -1, 1, 1, 0, 1, 1
marketgood = a, 0, -1, 1, 1, 0, 1, 1, 1
marketgood = a, 0, -1, 1, 1, 0
)");

  EXPECT_THAT(Found("missing-comma"), ElementsAre("markets:3 marketgood"));
  EXPECT_THAT(Found("value-count"), ElementsAre("markets:6 marketgood", "markets:7 marketgood"));
}

TEST_F(ShapeRules, TheLifetimeOfAnExplosionHasOneOrTwoNumbers) {
  Data("explosions", "[Explosion]\nnickname = a\nlifetime = 0, 1\n");
  Data("equipment",
       "[Munition]\nnickname = b\nlifetime = 0, 1\n[Gun]\nnickname = c\nmass = light\n");

  EXPECT_THAT(Found("value-count"), ElementsAre("equipment:3 lifetime"));
  EXPECT_THAT(Found("number-expected"), ElementsAre("equipment:6 mass"));
}

TEST_F(ShapeRules, AKeyOfAnotherSectionOrRoleHasNoShape) {
  Data("constants", "[Object]\nnickname = a\npos = x\n");
  OneSystem("[TexturePanels]\npos = x\nmass = y\n");

  EXPECT_THAT(Found("number-expected"), IsEmpty());
}

TEST_F(ShapeRules, NumbersHaveRanges) {
  Data("equipment", R"(
[Gun]
nickname = a
refire_delay = 0
mass = -1
hit_pts = 0
[Munition]
nickname = b
lifetime = 0
radius = -0.5
[Engine]
nickname = c
lifetime = 0
refire_delay = 0
)");
  Data("goods", "[Good]\nnickname = g\nprice = -5\n");
  Data("groups", "[Group]\nnickname = f\nrep = -1.01, f\nrep = 1, f\n");
  Data("markets", "[BaseGood]\nbase = b\nmarketgood = a, 0, 1.5, 1, 1, 0, 1\n");
  Data("ships", "[Ship]\nnickname = s\nhold_size = -1\nradius = -1\n");

  EXPECT_THAT(Found("number-range"),
              ElementsAre("equipment:3 refire_delay", "equipment:4 mass", "equipment:8 lifetime",
                          "equipment:9 radius", "goods:3 price", "groups:3 rep",
                          "markets:3 marketgood", "ships:3 hold_size"));
}

}  // namespace
}  // namespace orrerix::check
