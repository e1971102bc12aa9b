// SPDX-License-Identifier: MIT
#include "atlas/atlas_fixture.h"

namespace orrerix {
namespace {

class Launchers : public AtlasFixture {
 protected:
  void Missile(std::string_view hardpoint, std::string_view disruptor = "false") {
    Section("gun", {{"nickname", "missile"},
                    {"hp_gun_type", hardpoint},
                    {"refire_delay", "2"},
                    {"power_usage", "5"},
                    {"muzzle_velocity", "30"},
                    {"projectile_archetype", "missile_ammo"}});
    Section("munition", {{"nickname", "missile_ammo"},
                         {"explosion_arch", "boom"},
                         {"motor", "drive"},
                         {"lifetime", "10"},
                         {"seeker_range", "1000"},
                         {"seeker_fov_deg", "35"},
                         {"time_to_lock", "0"},
                         {"max_angular_velocity", "2.5"},
                         {"cruise_disruptor", disruptor},
                         {"requires_ammo", "TRUE"}});
    Boom();
    Good("missile_ammo", 25);
  }
  void Boom() {
    Section(
        "explosion",
        {{"nickname", "boom"}, {"hull_damage", "500"}, {"energy_damage", "0"}, {"radius", "16"}});
  }
  void Motor(std::string_view delay) {
    Section("motor", {{"nickname", "drive"}, {"accel", "20"}, {"lifetime", "2"}, {"delay", delay}});
  }
};

TEST_F(Launchers, OfMissilesDoTheDamageOfTheBlastWithEachShot) {
  Missile("hp_gun_special_1");

  ExpectFields(TheOnly("missiles"), {{"kind", "missile"},
                                     {"hull_damage_shot", 500},
                                     {"shield_damage_shot", 250},
                                     {"hull_damage_second", 250},
                                     {"shield_damage_second", 125},
                                     {"hull_damage_energy", 100},
                                     {"radius", 16},
                                     {"refire_rate", 0.5},
                                     {"seeker_range", 1000},
                                     {"seeker_cone", 35},
                                     {"lock_time", 0},
                                     {"turn_rate", 2.5},
                                     {"ammo_limit", {}},
                                     {"ammo_price", 25},
                                     {"ammo_price_per_damage", 0.05}});
}

TEST_F(Launchers, OfMissilesThrowThemAsFarAsTheirMotorsDrive) {
  Missile("hp_gun_special_1");
  Motor("0");

  // 30 m/s for 10 s, and 20 m/s^2 for 2 s: 40 m/s more after 40 m, for 8 s: 300 + 40 + 320.
  ExpectFields(TheOnly("missiles"), {{"speed", 70}, {"range", 660}, {"lifetime", 10}});
}

TEST_F(Launchers, OfMissilesCountAMotorOnlyUntilTheEnd) {
  Missile("hp_gun_special_1");
  Motor("9");

  // One second of thrust: 300 + 20 / 2.
  ExpectFields(TheOnly("missiles"), {{"speed", 50}, {"range", 310}});
}

TEST_F(Launchers, OfMissilesWithoutAMotorKeepTheMuzzleVelocity) {
  Missile("hp_gun_special_1");

  ExpectFields(TheOnly("missiles"), {{"speed", 30}, {"range", 300}});
}

TEST_F(Launchers, OfTorpedoesAreToldByTheirHardpoint) {
  Missile("hp_torpedo_special_2");

  ExpectFields(TheOnly("missiles"), {{"kind", "torpedo"}});
}

TEST_F(Launchers, OfDisruptorsAreToldByTheirMunition) {
  Missile("hp_torpedo_special_1", "true");

  ExpectFields(TheOnly("missiles"), {{"kind", "cruise disruptor"}});
}

TEST_F(Launchers, OfMinesNeedTheUsualHardpoint) {
  Section("minedropper", {{"nickname", "dropper"},
                          {"refire_delay", "0.5"},
                          {"power_usage", "0"},
                          {"projectile_archetype", "mine"}});
  Section("mine", {{"nickname", "mine"},
                   {"explosion_arch", "boom"},
                   {"seek_dist", "400"},
                   {"top_speed", "60"},
                   {"acceleration", "200"},
                   {"lifetime", "10"},
                   {"owner_safe_time", "4"},
                   {"requires_ammo", "true"}});
  Boom();
  Good("mine", 50);

  ExpectFields(TheOnly("mines"), {{"hardpoint", "hp_mine_dropper"},
                                  {"hull_damage_shot", 500},
                                  {"hull_damage_second", 1000},
                                  {"hull_damage_energy", {}},
                                  {"seek_range", 400},
                                  {"speed", 60},
                                  {"acceleration", 200},
                                  {"arming_time", 4},
                                  {"ammo_price_per_damage", 0.1}});
}

TEST_F(Launchers, OfCountermeasuresDivert) {
  Section("countermeasuredropper", {{"nickname", "dropper"},
                                    {"refire_delay", "0.25"},
                                    {"power_usage", "5"},
                                    {"muzzle_velocity", "10"},
                                    {"projectile_archetype", "flare"}});
  Section("countermeasure", {{"nickname", "flare"},
                             {"diversion_pctg", "70"},
                             {"range", "1000"},
                             {"lifetime", "5"},
                             {"ammo_limit", "80"},
                             {"requires_ammo", "true"}});
  Good("flare", 9);

  ExpectFields(TheOnly("countermeasures"), {{"hardpoint", "hp_countermeasure_dropper"},
                                            {"diversion", 70},
                                            {"range", 1000},
                                            {"lifetime", 5},
                                            {"refire_rate", 4},
                                            {"speed", 10},
                                            {"energy_shot", 5},
                                            {"ammo_limit", 80},
                                            {"ammo_price", 9}});
}

}  // namespace
}  // namespace orrerix
