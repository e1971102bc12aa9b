// SPDX-License-Identifier: MIT
#include "check/rules/faction_rules.h"

#include "check/game_fixture.h"

namespace orrerix::check {
namespace {

class FactionRules : public CheckedGameTest {};

TEST_F(FactionRules, AFactionNeedsAnOpinionOfEachOneAndItself) {
  Data("groups",
       "[Group]\nnickname = a\nrep = 0, B\n[Group]\nnickname = b\nrep = 0, a\nrep = 1, b\n"
       "[Group]\nnickname = c\n");

  EXPECT_THAT(Found("relation-missing"), ElementsAre("groups:1 -", "groups:1 -", "groups:4 -",
                                                     "groups:8 -", "groups:8 -", "groups:8 -"));
  EXPECT_EQ(Messages("relation-missing").front(), "rep is missing for faction: a");
}

TEST_F(FactionRules, DifferentOpinionsAreFoundAtTheLesserNickname) {
  Data("groups", R"(
[Group]
nickname = B
rep = 0.5, a
rep = 0.30, c
[Group]
nickname = a
rep = 0.3, b
rep = 0.6, b
[Group]
nickname = c
rep = 0.3, b
rep = 1, a
)");

  EXPECT_THAT(Found("relation-asymmetric"), ElementsAre("groups:8 rep"));
}

}  // namespace
}  // namespace orrerix::check
