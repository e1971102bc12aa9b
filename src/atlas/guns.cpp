// SPDX-License-Identifier: MIT
// Guns and turrets: what fires shots without a motor and without a blast.
#include "atlas/equipment.h"
#include "atlas/families.h"

namespace orrerix {
namespace {

constexpr std::string_view kTurret = "turret";

// Of each shot. The files count the damage of guns by the second.
Figure HullPerShot(const Equipment& gun) {
  return Product(gun.Shot.Number("hull_damage"), gun.Number("refire_delay"));
}
Figure ShieldPerShot(const Equipment& gun) {
  return Product(ShieldDamage(gun.Shot), gun.Number("refire_delay"));
}

EquipmentColumns DamageColumns() {
  return {FigureColumn("hull_damage_shot", "Hull damage (points/shot)",
                       "hull_damage of [Munition] * refire_delay", HullPerShot),
          FigureColumn("shield_damage_shot", "Shield damage (points/shot)",
                       "energy_damage * refire_delay; without energy damage half the hull damage",
                       ShieldPerShot),
          FigureColumn("hull_damage_second", "Hull damage (points/s)",
                       "hull_damage of [Munition], which counts by the second",
                       [](const Equipment& gun) { return gun.Shot.Number("hull_damage"); }),
          FigureColumn("shield_damage_second", "Shield damage (points/s)",
                       "energy_damage of [Munition]; without it half the hull damage",
                       [](const Equipment& gun) { return ShieldDamage(gun.Shot); }),
          FigureColumn("hull_damage_energy", "Hull damage per energy (points/unit)",
                       "hull damage of a shot / power_usage",
                       [](const Equipment& gun) {
                         return Quotient(HullPerShot(gun), gun.Number("power_usage"));
                       }),
          FigureColumn("shield_damage_energy", "Shield damage per energy (points/unit)",
                       "shield damage of a shot / power_usage", [](const Equipment& gun) {
                         return Quotient(ShieldPerShot(gun), gun.Number("power_usage"));
                       })};
}

EquipmentColumns FiringColumns() {
  return {
      FigureColumn("refire_rate", "Refire rate (shots/s)", "1 / refire_delay",
                   [](const Equipment& gun) { return Quotient(1.0, gun.Number("refire_delay")); }),
      FieldColumn("energy_shot", "Energy (units/shot)", "Gun", "power_usage"),
      FigureColumn("energy_second", "Energy (units/s)", "power_usage / refire_delay",
                   [](const Equipment& gun) {
                     return Quotient(gun.Number("power_usage"), gun.Number("refire_delay"));
                   }),
      FigureColumn("range", "Range (m)", "muzzle_velocity * lifetime",
                   [](const Equipment& gun) {
                     return Product(gun.Number("muzzle_velocity"), gun.Shot.Number("lifetime"));
                   }),
      FieldColumn("speed", "Projectile speed (m/s)", "Gun", "muzzle_velocity"),
      FigureColumn("lifetime", "Lifetime (s)", "lifetime of [Munition]",
                   [](const Equipment& gun) { return gun.Shot.Number("lifetime"); }),
      FieldColumn("turn_rate", "Turn rate (degrees/s)", "Gun", "turn_rate"),
      FieldColumn("hit_points", "Hit points (points)", "Gun", "hit_pts")};
}

EquipmentColumns GunColumns() {
  return Joined<Equipment>(
      {NameColumns(),
       {HardpointColumn("hp_gun_type of [Gun]"),
        TextColumn("weapon_type", "Weapon type", "weapon_type of [Munition]",
                   [](const Equipment& gun) { return gun.Shot.Text("weapon_type"); })},
       DamageColumns(),
       FiringColumns(),
       AmmoColumns(HullPerShot),
       MarketColumns()});
}

// Without a hardpoint type a gun that turns by itself counts as a turret.
bool IsTurret(const SourceRow& gun) {
  const std::string hardpoint = FoldAscii(gun.Text("hp_gun_type"));
  return hardpoint.empty() ? IsTrue(gun.Text("auto_turret")) : Contains(hardpoint, kTurret);
}

std::function<std::vector<Equipment>(const AtlasSource&)> GunReader(bool areTurrets) {
  return [areTurrets](const AtlasSource& source) {
    std::vector<Equipment> guns;
    const SourceTable& rows = source.Tables["gun"];
    for (std::size_t i = 0; i < rows.RowCount(); ++i) {
      if (IsTurret(rows.Row(i)) != areTurrets) continue;
      Equipment gun = DescribeLauncher(source, rows.Row(i), "hp_gun_type", {}, "munition");
      if (!IsGuidedOrBlasting(gun.Shot)) guns.push_back(std::move(gun));
    }
    return guns;
  };
}

}  // namespace

bool IsGuidedOrBlasting(const SourceRow& munition) {
  return !munition.Text("explosion_arch").empty() || !munition.Text("motor").empty();
}

AtlasTable GunsTable() {
  return MakeTable<Equipment>({"guns", "Guns", "Guns of fixed hardpoints."}, GunColumns(),
                              GunReader(false));
}

AtlasTable TurretsTable() {
  return MakeTable<Equipment>(
      {"turrets", "Turrets",
       "Guns of turret hardpoints, and those without a hardpoint type whose auto_turret is true."},
      GunColumns(), GunReader(true));
}

}  // namespace orrerix
