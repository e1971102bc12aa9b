// SPDX-License-Identifier: MIT
#include "check/rules/universe_rules.h"

#include "check/game_fixture.h"

namespace orrerix::check {
namespace {

class UniverseRules : public CheckedGameTest {};

TEST_F(UniverseRules, ABaseNeedsAnObject) {
  Data("universe", R"(
[System]
nickname = s
file = s.ini
[Base]
nickname = docked
[Base]
nickname = named
[Base]
nickname = lonely
)");
  File("DATA/universe/s.ini",
       "[Object]\nnickname = a\ndock_with = DOCKED\n[Object]\nnickname = b\nbase = named\n");

  EXPECT_THAT(Found("base-no-object"), ElementsAre("universe:9 nickname"));
}

TEST_F(UniverseRules, NothingIsSaidAboutBasesAndWaysUnlessAllSystemsAreRead) {
  Data("universe", R"(
[System]
nickname = s
file = s.ini
[System]
nickname = t
file = absent.ini
[Base]
nickname = lonely
)");
  File("DATA/universe/s.ini", "");

  EXPECT_THAT(Found("base-no-object"), IsEmpty());
  EXPECT_THAT(Found("system-unreachable"), IsEmpty());
}

TEST_F(UniverseRules, ASystemNeedsAWayOfJumpsFromTheFirst) {
  Data("universe", R"(
[System]
nickname = Rh01
file = rh01.ini
[System]
nickname = Li01
file = li01.ini
[System]
nickname = Br01
file = br01.ini
)");
  File("DATA/universe/li01.ini", "[Object]\nnickname = a\ngoto = BR01, b, x\n");
  File("DATA/universe/br01.ini", "");
  File("DATA/universe/rh01.ini", "[Object]\nnickname = c\ngoto = Li01, a, x\n");

  EXPECT_THAT(Found("system-unreachable"), ElementsAre("universe:2 nickname"));
}

TEST_F(UniverseRules, WithoutTheUsualFirstSystemTheFirstOneCounts) {
  Data("universe", "[System]\nnickname = a\nfile = a.ini\n[System]\nnickname = b\nfile = b.ini\n");
  File("DATA/universe/a.ini", "");
  File("DATA/universe/b.ini", "");

  EXPECT_THAT(Found("system-unreachable"), ElementsAre("universe:5 nickname"));
}

TEST_F(UniverseRules, AnObjectShouldLieOnTheMap) {
  Data("universe", R"(
[System]
nickname = a
file = a.ini
[System]
nickname = b
file = b.ini
navmapscale = 2
[System]
nickname = c
file = c.ini
navmapscale = 0
)");
  // 0.75 * 133333 = 99999.75, 0.75 * 133334 = 100000.5
  const char* const objects = R"(
[Object]
nickname = o1
pos = 133333, 900000, -133333
[Object]
nickname = o2
pos = 133334, 0, 0
[Object]
nickname = o3
pos = 0, 0, -133334
)";
  File("DATA/universe/a.ini", objects);
  File("DATA/universe/b.ini", "[Object]\nnickname = o4\npos = 66667, 0, 66667\n");
  File("DATA/universe/c.ini", "[Object]\nnickname = o5\npos = 66667, 0, 66667\n");

  EXPECT_THAT(Found("object-outside-map"), ElementsAre("a:6 pos", "a:9 pos", "b:3 pos"));
}

TEST_F(UniverseRules, ACellOfTheMapHoldsOneSystem) {
  Data("universe", R"(
[System]
nickname = a
pos = 0.5, -0.5
[System]
nickname = b
pos = 1, -1
[System]
nickname = c
pos = 0, 0
[System]
nickname = d
pos = 0.4, -0.4
)");

  EXPECT_THAT(Found("map-cell-shared"), ElementsAre("universe:6 pos", "universe:12 pos"));
}

}  // namespace
}  // namespace orrerix::check
