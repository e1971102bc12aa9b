// SPDX-License-Identifier: MIT
#include "check/rules/shape_table.h"

namespace orrerix::check {
namespace {

constexpr bool kRepeatsLast = true;

SectionSelector Anywhere() {
  return {kKnownRoles, {}};
}

// Adds a row "one number" for each key.
void AddNumbers(std::vector<Shape>& table, const SectionSelector& sections,
                std::initializer_list<std::string_view> keys) {
  for (const std::string_view key : keys) table.push_back({sections, key, "N", ""});
}

std::vector<Shape> ShapeTable() {
  const SectionSelector equipment = Of(Kind::Equipment);
  const SectionSelector ship = Of(Kind::Ship);
  std::vector<Shape> table = {
      {Of(Kind::System), "pos", "NN", ""},
      {ship, "steering_torque", "NNN", ""},
      {ship, "angular_drag", "NNN", ""},
      {ship, "rotation_inertia", "NNN", ""},
      {ship, "hp_type", "TT", "", kRepeatsLast},
      {Of(Kind::Loadout), "equip", "T", "T"},
      {Of(Kind::Loadout), "cargo", "TN", "T"},
      {Of(Kind::Zone), "size", "N", "NN"},
      {Of(Kind::Zone), "faction", "TN", ""},
      {Of(Kind::Explosion), "lifetime", "N", "N"},
      {Anywhere(), "marketgood", "TNNNNNN", "N"},
      {Anywhere(), "addon", "TTN", ""},
      {Anywhere(), "free_ammo", "TN", ""},
      {Anywhere(), "shield_mod", "TN", ""},
      {Anywhere(), "rep", "NT", ""},
      {Anywhere(), "density_restriction", "NT", ""},
      {Anywhere(), "bribe", "TNN", ""},
      {Anywhere(), "encounter", "TNN", ""},
      {Anywhere(), "fixture", "TTTT", ""},
      {Anywhere(), "goto", "TTT", ""},
  };
  const SectionSelector lightSource = {{Role::System}, {"lightsource"}};
  for (const SectionSelector& placed : {Of(Kind::Object), Of(Kind::Zone), lightSource}) {
    table.push_back({placed, "pos", "NNN", ""});
    table.push_back({placed, "rotate", "NNN", ""});
  }
  for (const SectionSelector& named : {Of(Kind::Good), Of(Kind::Object), ship, Of(Kind::Zone),
                                       Of(Kind::Faction), Of(Kind::System), equipment}) {
    AddNumbers(table, named, {"ids_name", "ids_info"});
  }
  AddNumbers(table, Anywhere(), {"navmapscale", "individual_name", "weight", "price"});
  AddNumbers(table, Of(Kind::Zone),
             {"toughness", "density", "repop_time", "max_battle_size", "relief_time", "damage"});
  AddNumbers(table, ship,
             {"mass", "hold_size", "hit_pts", "linear_drag", "ship_class", "nanobot_limit",
              "shield_battery_limit", "nudge_force", "strafe_force"});
  for (const SectionSelector& gear : {equipment, Of(Kind::Motor), Of(Kind::Explosion)}) {
    AddNumbers(table, gear,
               {"mass",
                "volume",
                "hit_pts",
                "refire_delay",
                "muzzle_velocity",
                "power_usage",
                "lifetime",
                "hull_damage",
                "energy_damage",
                "detonation_dist",
                "capacity",
                "charge_rate",
                "max_capacity",
                "regeneration_rate",
                "toughness",
                "units_per_container",
                "max_force",
                "linear_drag",
                "range",
                "radius"});
  }
  return table;
}

std::vector<Range> RangeTable() {
  using Limit = Range::Limit;
  std::vector<Range> table = {
      {OfEquipment({"gun", "minedropper", "countermeasuredropper"}), "refire_delay",
       Limit::Positive},
      {OfEquipment({"munition", "mine", "countermeasure"}), "lifetime", Limit::Positive},
      {Of(Kind::Faction), "rep", Limit::Reputation, 1},
      {Anywhere(), "marketgood", Limit::Reputation, 3},
  };
  for (const std::string_view key :
       {"mass", "volume", "hit_pts", "power_usage", "capacity", "charge_rate", "max_capacity",
        "regeneration_rate", "hold_size", "price", "radius", "range"}) {
    table.push_back({Anywhere(), key, Limit::NotNegative, 1, true});
  }
  return table;
}

}  // namespace

std::span<const Shape> Shapes() {
  static const std::vector<Shape> table = ShapeTable();
  return table;
}

std::span<const Range> Ranges() {
  static const std::vector<Range> table = RangeTable();
  return table;
}

}  // namespace orrerix::check
