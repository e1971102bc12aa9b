// SPDX-License-Identifier: MIT
#include "check/rules/lane_rules.h"

#include "check/game_fixture.h"

namespace orrerix::check {
namespace {

class LaneRules : public CheckedGameTest {};

TEST_F(LaneRules, RingsNameEachOther) {
  OneSystem(R"(
[Object]
nickname = ring_1
next_ring = Ring_2
[Object]
nickname = ring_2
prev_ring = RING_1
next_ring = ring_3
[Object]
nickname = ring_3
prev_ring = ring_1
next_ring = ring_4
)");

  // Ring 2 and ring 3 do not agree, ring 1 does not name ring 3, ring 4 is not there.
  EXPECT_THAT(Found("lane-broken"),
              ElementsAre("li01:7 next_ring", "li01:10 prev_ring", "li01:11 next_ring"));
}

TEST_F(LaneRules, AJumpLeadsBack) {
  Data("universe", R"(
[System]
nickname = Li01
file = systems\li01.ini
[System]
nickname = Li02
file = systems\li02.ini
)");
  File("DATA/UNIVERSE/SYSTEMS/li01.ini", R"(
[Object]
nickname = a
goto = Li02, b, tunnel
[Object]
nickname = c
goto = Li02, b, tunnel
[Object]
nickname = d
goto = li02, E, tunnel
)");
  File("DATA/UNIVERSE/SYSTEMS/li02.ini",
       "[Object]\nnickname = b\ngoto = li01, A, tunnel\n[Object]\nnickname = e\n");

  EXPECT_THAT(Found("jump-one-way"), ElementsAre("li01:6 goto", "li01:9 goto"));
}

}  // namespace
}  // namespace orrerix::check
