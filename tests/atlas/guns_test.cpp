// SPDX-License-Identifier: MIT
#include "atlas/atlas_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

class Guns : public AtlasFixture {
 protected:
  struct Shot {
    std::string_view Hull = "100";
    std::string_view Energy = "";
    std::string_view Blast = "";
    std::string_view Motor = "";
    std::string_view NeedsAmmo = "false";
  };
  struct Mount {
    std::string_view Hardpoint = "hp_gun_special_1";
    std::string_view AutoTurret = "false";
    std::string_view Refire = "0.2";
    std::string_view Power = "10";
  };

  void Gun(std::string_view nickname, const Shot& shot, const Mount& mount) {
    Section("gun", {{"nickname", nickname},
                    {"ids_name", "7"},
                    {"hp_gun_type", mount.Hardpoint},
                    {"auto_turret", mount.AutoTurret},
                    {"refire_delay", mount.Refire},
                    {"power_usage", mount.Power},
                    {"muzzle_velocity", "600"},
                    {"turn_rate", "90"},
                    {"projectile_archetype", std::string(nickname) + "_AMMO"}});
    Section("munition", {{"nickname", std::string(nickname) + "_ammo"},
                         {"hull_damage", shot.Hull},
                         {"energy_damage", shot.Energy},
                         {"lifetime", "1.5"},
                         {"explosion_arch", shot.Blast},
                         {"motor", shot.Motor},
                         {"requires_ammo", shot.NeedsAmmo}});
  }
};

TEST_F(Guns, HaveTheDamageOfTheInfoTexts) {
  Gun("laser", {.Hull = "100"}, {.Refire = "0.2", .Power = "10"});

  // A shot: 100 a second * 0.2 s; shields take half of it; 10 units of energy each.
  ExpectFields(TheOnly("guns"), {{"hull_damage_shot", 20},
                                 {"shield_damage_shot", 10},
                                 {"hull_damage_second", 100},
                                 {"shield_damage_second", 50},
                                 {"hull_damage_energy", 2},
                                 {"shield_damage_energy", 1},
                                 {"refire_rate", 5},
                                 {"energy_shot", 10},
                                 {"energy_second", 50},
                                 {"range", 900},
                                 {"speed", 600},
                                 {"lifetime", 1.5},
                                 {"turn_rate", 90}});
}

TEST_F(Guns, DoTheirEnergyDamageToShieldsIfTheyHaveAny) {
  Gun("ion", {.Hull = "10", .Energy = "80"}, {.Refire = "0.5", .Power = "4"});

  ExpectFields(TheOnly("guns"), {{"shield_damage_shot", 40},
                                 {"shield_damage_second", 80},
                                 {"shield_damage_energy", 10},
                                 {"hull_damage_shot", 5}});
}

TEST_F(Guns, LeaveEmptyWhatIsMissing) {
  Gun("dud", {.Hull = ""}, {.Refire = "0", .Power = "0"});

  ExpectFields(TheOnly("guns"), {{"hull_damage_shot", {}},
                                 {"shield_damage_shot", {}},
                                 {"hull_damage_second", {}},
                                 {"hull_damage_energy", {}},
                                 {"refire_rate", {}},
                                 {"energy_second", {}},
                                 {"hit_points", {}},
                                 {"name", {}},
                                 {"price", {}},
                                 {"sellers", {}},
                                 {"sold_at", {}},
                                 {"ammo_price", {}},
                                 {"ammo_price_per_damage", {}}});
}

TEST_F(Guns, PayForAmmunitionByTheDamageOfAShot) {
  Gun("cannon", {.Hull = "100", .NeedsAmmo = "true"}, {.Refire = "0.2"});
  Good("cannon_ammo", 30);

  ExpectFields(TheOnly("guns"), {{"ammo_price", 30}, {"ammo_price_per_damage", 1.5}});
}

TEST_F(Guns, AreNamedAndSoldAsTheirGoods) {
  Gun("laser", {}, {});
  Name(7, "Big Laser");
  Good("laser", 500);
  System("Li01", "New York");
  Base("fort");
  Base("yard");
  Line("FORT", "LASER");
  Line("yard", "laser", 1);
  Line("nowhere", "laser");

  ExpectFields(TheOnly("guns"), {{"name", "Big Laser"},
                                 {"nickname", "laser"},
                                 {"price", 500},
                                 {"sellers", 1},
                                 {"sold_at", "fort (New York)"}});
}

TEST_F(Guns, AreTurretsByHardpointOrElseByTurningThemselves) {
  Gun("fixed", {}, {.Hardpoint = "hp_gun_special_1", .AutoTurret = "true"});
  Gun("turret", {}, {.Hardpoint = "HP_Turret_special_1"});
  Gun("station", {}, {.Hardpoint = "", .AutoTurret = "true"});
  Gun("bare", {}, {.Hardpoint = ""});

  EXPECT_THAT(Nicknames("guns"), ElementsAre("fixed", "bare"));
  EXPECT_THAT(Nicknames("turrets"), ElementsAre("turret", "station"));
}

TEST_F(Guns, WithABlastOrAMotorAreMissiles) {
  Gun("blasting", {.Blast = "boom"}, {});
  Gun("driven", {.Motor = "drive"}, {});

  EXPECT_TRUE(Atlas("guns").empty());
  EXPECT_THAT(Nicknames("missiles"), ElementsAre("blasting", "driven"));
}

}  // namespace
}  // namespace orrerix
