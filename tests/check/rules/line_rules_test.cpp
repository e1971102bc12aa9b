// SPDX-License-Identifier: MIT
#include "check/rules/line_rules.h"

#include "check/game_fixture.h"

namespace orrerix::check {
namespace {

class LineRules : public CheckedGameTest {};

TEST_F(LineRules, AnAssetMustBeThereInAWholeGameWithModels) {
  isWhole = true;
  File("DATA/SHIPS/a.cmp", "");
  File("DATA/SHIPS/a.mat", "");
  Data("ships", R"(
[Ship]
nickname = a
DA_archetype = ships\A.cmp
material_library = ships\a.mat
material_library = ships\b.mat
cockpit = cockpits\a.ini
[CollisionGroup]
pilot_mesh = a
)");
  Data("goods", "[Good]\nnickname = a\nmaterial_library = ships\\b.mat\n");

  EXPECT_THAT(Found("asset-missing"),
              ElementsAre("ships:5 material_library", "ships:6 cockpit", "ships:8 pilot_mesh"));
  isWhole = false;
  EXPECT_THAT(Found("asset-missing"), IsEmpty());
}

TEST_F(LineRules, NothingIsSaidAboutAssetsOfAGameWithoutModels) {
  isWhole = true;
  Data("ships", "[Ship]\nnickname = a\nDA_archetype = ships\\a.cmp\n");

  EXPECT_THAT(Found("asset-missing"), IsEmpty());
}

TEST_F(LineRules, AKeyThatARuleKnowsStandsOnce) {
  Data("ships",
       "[Ship]\nnickname = a\nmass = 1\nMASS = 2\nmass = 3\nhp_type = a, b\nhp_type = c, d\n"
       "da_archetype = a\nda_archetype = b\n");
  Data("equipment",
       "[ShieldGenerator]\nnickname = a\nconst_effect = a\nconst_effect = b\n"
       "effect = a\neffect = b\n");
  OneSystem("[Zone]\nnickname = z\nfaction = a, 1\nfaction = b, 1\nsize = 1\nsize = 2\n");
  Data("mbases", "[GF_NPC]\nnickname = n\nbribe = a, 1, 2\nbribe = b, 1, 2\nroom = a\nroom = b\n");

  EXPECT_THAT(Found("key-duplicate"), ElementsAre("li01:6 size", "equipment:4 const_effect",
                                                  "mbases:6 room", "ships:4 MASS", "ships:5 mass"));
}

}  // namespace
}  // namespace orrerix::check
