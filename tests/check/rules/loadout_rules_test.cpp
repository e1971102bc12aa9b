// SPDX-License-Identifier: MIT
#include "check/rules/loadout_rules.h"

#include "check/game_fixture.h"

namespace orrerix::check {
namespace {

class LoadoutRules : public CheckedGameTest {
 protected:
  void SetUp() override {
    Data("equipment",
         "[Gun]\nnickname = gun\n[Engine]\nnickname = engine\n"
         "[ShieldGenerator]\nnickname = shield\n");
    Data("ships",
         "[Ship]\nnickname = armed\nhp_type = gun_1, HpWeapon01, HpWeapon02\n"
         "hp_type = shield_1, HpShield01\n[Ship]\nnickname = unarmed\n");
  }
};

TEST_F(LoadoutRules, AnItemNeedsAHardpointOfItsShip) {
  Data("loadouts", R"(
[Loadout]
nickname = a
archetype = armed
equip = gun, hpweapon02
equip = gun, HpWeapon03
equip = shield, HpShield02
equip = gun
equip = engine, HpEngine01
equip = unknown, HpWeapon09
[Loadout]
nickname = b
archetype = unarmed
equip = gun, HpWeapon03
)");

  EXPECT_THAT(Found("hardpoint-unknown"), ElementsAre("loadouts:5 equip", "loadouts:6 equip"));
}

TEST_F(LoadoutRules, AHardpointTakesOneItem) {
  Data("loadouts", R"(
[Loadout]
nickname = a
archetype = depot
equip = gun, HpWeapon01
equip = engine, HpWeapon01
equip = shield, HPWEAPON01
equip = gun, HpWeapon02
[Loadout]
nickname = b
equip = gun, HpWeapon01
)");

  EXPECT_THAT(Found("hardpoint-twice"), ElementsAre("loadouts:6 equip"));
}

}  // namespace
}  // namespace orrerix::check
