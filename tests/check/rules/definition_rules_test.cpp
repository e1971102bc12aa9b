// SPDX-License-Identifier: MIT
#include "check/rules/definition_rules.h"

#include "check/game_fixture.h"

namespace orrerix::check {
namespace {

class DefinitionRules : public CheckedGameTest {};

TEST_F(DefinitionRules, ASectionNeedsANickname) {
  Data("equipment", "[Gun]\nmass = 1\n[Engine]\nnickname =\n[Armour]\nmass = 1\n");
  Data("fuses", "[Fuse]\nnickname = a\n");
  Data("voices", "[Voice]\nscript = a\n");
  Data("bodyparts", "[Body]\nmesh = a\n");
  Data("sounds", "[Gun]\nmass = 1\n");

  EXPECT_THAT(Found("nickname-missing"),
              ElementsAre("equipment:1 -", "equipment:4 nickname", "fuses:1 -"));
}

TEST_F(DefinitionRules, ANicknameIsTakenOnceForEachKind) {
  Data("equipment", "[Gun]\nnickname = a\n[Engine]\nnickname = A\n[Motor]\nnickname = a\n");
  Data("explosions", "[Explosion]\nnickname = a\n");
  Data("equipment", "[Explosion]\nnickname = a\n");
  Data("voices", "[Voice]\nnickname = a\n[Voice]\nnickname = a\n");

  // The explosions of both files are of one kind.
  EXPECT_THAT(Found("nickname-duplicate"),
              ElementsAre("equipment:4 nickname", "equipment:2 nickname"));
  EXPECT_EQ(Messages("nickname-duplicate").front(),
            "the nickname is taken at DATA/equipment1.ini:2: A");
}

TEST_F(DefinitionRules, SomeNicknamesAreUniqueWhereTheyStand) {
  Data("universe", R"(
[System]
nickname = a
file = a.ini
[System]
nickname = b
file = b.ini
)");
  const char* const system = "[Object]\nnickname = o\n[Zone]\nnickname = z\n[Zone]\nnickname = z\n";
  File("DATA/universe/a.ini", system);
  File("DATA/universe/b.ini", system);
  Data("mbases", R"(
[MBase]
nickname = a
[MRoom]
nickname = bar
[GF_NPC]
nickname = bar
[MBase]
nickname = b
[MRoom]
nickname = bar
[MRoom]
nickname = bar
)");

  EXPECT_THAT(Found("nickname-duplicate"),
              ElementsAre("mbases:12 nickname", "a:6 nickname", "b:2 nickname", "b:6 nickname"));
}

TEST_F(DefinitionRules, WhatPlayersSeeNeedsAName) {
  Data("groups", "[Group]\nnickname = a\nids_name = 0\n[Group]\nnickname = b\nids_name = 5\n");
  Data("universe", R"(
[System]
nickname = s
file = s.ini
[Base]
nickname = b
strid_name =
)");
  File("DATA/universe/s.ini", R"(
[Object]
nickname = a
goto = s, a, x
[Object]
nickname = b
base = b
ids_name = 7
[Object]
nickname = c
dock_with = b
ids_name = 0
[Object]
nickname = rock
)");

  EXPECT_THAT(Found("name-missing"), ElementsAre("groups:3 ids_name", "s:1 -", "s:11 ids_name",
                                                 "universe:1 -", "universe:6 strid_name"));
}

}  // namespace
}  // namespace orrerix::check
