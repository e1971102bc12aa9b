// SPDX-License-Identifier: MIT
#include "check/rules/references.h"

#include "check/game_fixture.h"

namespace orrerix::check {
namespace {

class ReferenceRules : public CheckedGameTest {};

TEST_F(ReferenceRules, APartOfAGoodMustExist) {
  Data("equipment", "[Gun]\nnickname = Laser\n");
  Data("ships", "[Ship]\nnickname = kestrel\n");
  Data("goods", R"(
[Good]
nickname = laser
category = equipment
equipment = LASER
addon = nothing, HpThruster01, 1
addon = laser, HpThruster01, 1
[Good]
nickname = hull
category = shiphull
ship = falcon
free_ammo = no_rocket, 5
[Good]
nickname = package
category = ship
hull = no_hull
)");

  EXPECT_THAT(Found("good-part"),
              ElementsAre("goods:5 addon", "goods:10 ship", "goods:11 free_ammo", "goods:15 hull"));
  EXPECT_THAT(Messages("good-part"),
              ElementsAre("equipment does not exist: nothing", "ship does not exist: falcon",
                          "good does not exist: no_rocket", "good does not exist: no_hull"));
}

TEST_F(ReferenceRules, NothingIsSaidAboutAKindWithAFileMissing) {
  Data("goods", "[Good]\nnickname = g\ncategory = equipment\nequipment = unknown\n");
  Data("equipment", "[Gun]\nnickname = laser\n");
  Configure("equipment = absent.ini");

  EXPECT_THAT(Found("good-part"), IsEmpty());
}

TEST_F(ReferenceRules, NothingIsSaidAboutAKindWithoutAFile) {
  Data("goods", "[Good]\nnickname = g\ncategory = equipment\nequipment = unknown\n");

  EXPECT_THAT(Found("good-part"), IsEmpty());
}

TEST_F(ReferenceRules, NothingIsSaidAboutAKindWithAnUnusableFile) {
  Data("goods", "[Good]\nnickname = g\ncategory = equipment\nequipment = unknown\n");
  Data("equipment", "BINI damaged");

  EXPECT_THAT(Found("good-part"), IsEmpty());
}

TEST_F(ReferenceRules, APartOfAnEquipmentMustExistAndBeOfItsSort) {
  Data("explosions", "[Explosion]\nnickname = boom\n[Debris]\nnickname = bits\n");
  Data("debris", "");
  Data("equipment", R"(
[Motor]
nickname = motor
[LootCrate]
nickname = crate
[CargoPod]
nickname = pod
[Munition]
nickname = shot
motor = motor
explosion_arch = boom
loot_appearance = crate
pod_appearance = pod
debris_type = bits, 1
[Gun]
nickname = gun
projectile_archetype = gun
loot_appearance = pod
pod_appearance = crate
explosion_arch = bang
debris_type = scrap, 1
[MineDropper]
nickname = dropper
projectile_archetype = SHOT
[Munition]
nickname = other
motor = none
)");

  EXPECT_THAT(Found("equipment-part"),
              ElementsAre("equipment:16 projectile_archetype", "equipment:17 loot_appearance",
                          "equipment:18 pod_appearance", "equipment:19 explosion_arch",
                          "equipment:20 debris_type", "equipment:26 motor"));
}

TEST_F(ReferenceRules, AnArchetypeOfAnyFileOfArchetypesIsLookedAt) {
  Data("explosions", "");
  Data("debris", "");
  Data("equipment", "");
  Data("asteroids", "[Asteroid]\nnickname = rock\nexplosion_arch = bang\n");
  Data("solar", "[CollisionGroup]\nobj = x\ndebris_type = scrap, 1\n");

  EXPECT_THAT(Found("equipment-part"),
              ElementsAre("asteroids:3 explosion_arch", "solar:3 debris_type"));
}

TEST_F(ReferenceRules, AWeaponTypeAndAShieldTypeMustExist) {
  Data("weaponmoddb", "[WeaponType]\nnickname = w_laser\nshield_mod = S_Graviton, 0.8\n");
  Data("equipment", R"(
[Munition]
nickname = a
weapon_type = W_LASER
[Mine]
nickname = b
weapon_type = w_none
[ShieldGenerator]
nickname = c
shield_type = s_graviton
[ShieldGenerator]
nickname = d
shield_type = s_none
shield_type = s_other
)");
  Data("explosions", "[Explosion]\nnickname = e\nweapon_type = w_no\n");

  EXPECT_THAT(Found("weapon-type-unknown"),
              ElementsAre("equipment:6 weapon_type", "equipment:12 shield_type",
                          "explosions:3 weapon_type"));
}

TEST_F(ReferenceRules, AnEffectOrFuseMustExist) {
  Data("effects", R"(
[VisEffect]
nickname = vis
[Effect]
nickname = fx
vis_effect = vis
vis_beam = fx
vis_generic = nothing
)");
  Data("fuses", "[Fuse]\nname = fuse\n");
  Data("ships", R"(
[Ship]
nickname = ship
fuse = fuse, 0, 400
fuse = no_fuse, 0, 400
surface_hit_effects = 0, fx, fx2
shield_hit_effects = 0, no_fx
)");
  Data("equipment", "[Gun]\nnickname = gun\nconst_effect = x\nparticles = y\nhit_effects = z\n");
  OneSystem("[Dust]\nspacedust = dust\n[Zone]\nnickname = z\nspacedust = fx\n");

  EXPECT_THAT(Found("effect-unknown"),
              ElementsAre("li01:2 spacedust", "effects:7 vis_generic", "equipment:3 const_effect",
                          "equipment:4 particles", "ships:4 fuse", "ships:6 shield_hit_effects"));
}

TEST_F(ReferenceRules, ASoundMustExist) {
  Data("sounds", "[Sound]\nnickname = hum\n");
  Data("effects", "[Effect]\nnickname = fx\nsnd_effect = none\n");
  Data("equipment", "[Engine]\nnickname = e\ncruise_start_sound = hum\nflame_snd = hiss\n");
  OneSystem(
      "[Music]\nspace = hum\ndanger = no1\nbattle = no2\n[Zone]\nnickname = z\nmusic = no3\n");

  EXPECT_THAT(Found("sound-unknown"), ElementsAre("li01:3 danger", "li01:4 battle", "li01:7 music",
                                                  "effects:3 snd_effect", "equipment:4 flame_snd"));
}

TEST_F(ReferenceRules, ALoadoutNeedsAnArchetypeAndItems) {
  Data("ships", "[Ship]\nnickname = ship\n[Simple]\nnickname = simple\n");
  Data("solar", "[Solar]\nnickname = depot\n");
  Data("equipment", "[Gun]\nnickname = gun\n");
  Data("loadouts", R"(
[Loadout]
nickname = a
archetype = simple
equip = gun, HpWeapon01
equip = no_gun, HpWeapon02
[Loadout]
nickname = b
archetype = depot
cargo = no_cargo, 3
[Loadout]
nickname = c
archetype = no_ship
)");

  EXPECT_THAT(Found("loadout-item"), ElementsAre("loadouts:5 equip", "loadouts:9 cargo"));
  EXPECT_THAT(Messages("loadout-archetype"),
              ElementsAre("ship, solar or simple does not exist: no_ship"));
}

TEST_F(ReferenceRules, AMarketNeedsABaseAndGoods) {
  Data("universe", "[Base]\nnickname = Li01_01_Base\nsystem = Li01\n");
  Data("goods", "[Good]\nnickname = gold\n");
  Data("markets", R"(
[BaseGood]
base = li01_01_base
MarketGood = gold, 0, -1, 1, 1, 0, 1
marketgood = silver, 0, -1, 1, 1, 0, 1
[BaseGood]
base = nowhere
)");

  EXPECT_THAT(Found("market-base"), ElementsAre("markets:6 base"));
  EXPECT_THAT(Found("market-good"), ElementsAre("markets:4 marketgood"));
}

TEST_F(ReferenceRules, TheSystemOfABaseMayNotBeMissingOrEmpty) {
  Data("universe", R"(
[Base]
nickname = a
system = LI01
[Base]
nickname = b
system = Li02
[Base]
nickname = c
[Base]
nickname = d
system =
[System]
nickname = Li01
)");

  EXPECT_THAT(Found("base-system"),
              ElementsAre("universe:6 system", "universe:7 -", "universe:11 system"));
}

TEST_F(ReferenceRules, WhatAnObjectNamesMustExist) {
  Data("solar", "[Solar]\nnickname = depot\n");
  Data("loadouts", "[Loadout]\nnickname = guns\n");
  Data("stars", "[Star]\nnickname = sun\n");
  OneSystem(R"(
[Object]
nickname = a
archetype = depot
loadout = guns
star = sun
[Object]
nickname = b
archetype = no_depot
loadout = no_guns
star = no_sun
base = no_base
dock_with = no_base
parent = c
[Object]
nickname = c
parent = A
loadout =
)");

  EXPECT_THAT(Found("object-archetype"), ElementsAre("li01:8 archetype"));
  EXPECT_THAT(Found("object-loadout"), ElementsAre("li01:9 loadout"));
  EXPECT_THAT(Found("object-star"), ElementsAre("li01:10 star"));
  EXPECT_THAT(Found("object-base"), ElementsAre("li01:11 base", "li01:12 dock_with"));
  EXPECT_THAT(Found("object-parent"), IsEmpty());
}

TEST_F(ReferenceRules, AParentIsAnObjectOfTheSameFile) {
  Data("universe", R"(
[System]
nickname = Li01
file = systems\li01.ini
[System]
nickname = Li02
file = systems\li02.ini
)");
  File("DATA/universe/SYSTEMS/li01.ini", "[Object]\nnickname = here\n");
  File("DATA/universe/SYSTEMS/li02.ini",
       "[Object]\nnickname = there\nparent = here\nparent = nobody\n");

  EXPECT_THAT(Found("object-parent"), ElementsAre("li02:3 parent"));
}

TEST_F(ReferenceRules, AFactionMustExist) {
  Data("groups", "[Group]\nnickname = navy\nrep = 1, navy\nrep = 0, thieves\n");
  Data("mbases", R"(
[MBase]
nickname = base
local_faction = none1
[BaseFaction]
faction = none2
[GF_NPC]
nickname = npc
affiliation = none3
bribe = none4, 100, 5
bribe = NAVY, 100, 5
)");
  Data("faction_props", "[FactionProps]\naffiliation = none5\n");
  OneSystem(R"(
[SystemInfo]
local_faction = none6
[Object]
nickname = o
reputation = none7
[Zone]
nickname = z
faction = none8, 1
)");

  EXPECT_THAT(Found("faction-unknown"),
              ElementsAre("li01:2 local_faction", "li01:5 reputation", "li01:8 faction",
                          "faction_props:2 affiliation", "groups:4 rep", "mbases:3 local_faction",
                          "mbases:5 faction", "mbases:8 affiliation", "mbases:9 bribe"));
}

TEST_F(ReferenceRules, PeopleNeedABaseAndTheirParts) {
  Data("universe", "[Base]\nnickname = b1\n[Base]\nnickname = b2\n");
  Data("bodyparts", "[Head]\nnickname = face\n[Accessory]\nnickname = hat\n[Body]\nmesh = x\n");
  Data("voices", "[Voice]\nnickname = deep\n");
  Data("mbases", R"(
[MBase]
nickname = b1
[MRoom]
nickname = bar
fixture = tom, Zs, script, bartender
fixture = kim, Zs, script, bartender
[BaseFaction]
faction = f
npc = tom
npc = kim
[GF_NPC]
nickname = tom
body = face
head = none
accessory = hat
voice = none
room = BAR
[MBase]
nickname = b2
[GF_NPC]
nickname = kim
room = bar
voice = DEEP
[MBase]
nickname = b3
)");

  EXPECT_THAT(Found("mbase-base"), ElementsAre("mbases:25 nickname"));
  EXPECT_THAT(Found("mbase-part"),
              ElementsAre("mbases:6 fixture", "mbases:10 npc", "mbases:14 head", "mbases:16 voice",
                          "mbases:22 room"));
}

TEST_F(ReferenceRules, AFactionsShipsMustExist) {
  Data("ships", "[Ship]\nnickname = ship\n");
  Data("loadouts", "[Loadout]\nnickname = guns\n");
  Data("npcships", R"(
[NPCShipArch]
nickname = a
loadout = guns
ship_archetype = ship
[NPCShipArch]
nickname = b
loadout = none
ship_archetype = none
)");
  Data("faction_props", "[FactionProps]\nnpc_ship = a\nnpc_ship = c\n");

  EXPECT_THAT(
      Found("npc-ship-unknown"),
      ElementsAre("faction_props:3 npc_ship", "npcships:7 loadout", "npcships:8 ship_archetype"));
}

TEST_F(ReferenceRules, AFieldNeedsAZoneAndAZoneItsEncounters) {
  OneSystem(R"(
[EncounterParameters]
nickname = patrol
[Asteroids]
file = a.ini
zone = rocks
[Asteroids]
file = a.ini
[Nebula]
file = a.ini
zone = clouds
[Zone]
nickname = Rocks
encounter = patrol, 1, 0.5
encounter = pirates, 1, 0.5
)");

  EXPECT_THAT(Found("field-zone"), ElementsAre("li01:6 -", "li01:10 zone"));
  EXPECT_THAT(Found("zone-encounter"), ElementsAre("li01:14 encounter"));
}

TEST_F(ReferenceRules, TheOtherEndOfAJumpMustExist) {
  Data("universe", R"(
[System]
nickname = Li01
file = systems\li01.ini
[System]
nickname = Li02
file = systems\li02.ini
[System]
nickname = Li03
)");
  File("DATA/universe/SYSTEMS/li01.ini", R"(
[Object]
nickname = a
goto = Li02, b, tunnel
[Object]
nickname = c
goto = Li02, nothing, tunnel
[Object]
nickname = d
goto = Li09, nothing, tunnel
[Object]
nickname = e
goto = Li03, unread, tunnel
)");
  File("DATA/universe/SYSTEMS/li02.ini", "[Object]\nnickname = b\ngoto = Li01, a, tunnel\n");

  EXPECT_THAT(Messages("goto-target"),
              ElementsAre("object does not exist: nothing", "system does not exist: Li09"));
  EXPECT_THAT(Found("goto-target"), ElementsAre("li01:6 goto", "li01:9 goto"));
}

}  // namespace
}  // namespace orrerix::check
