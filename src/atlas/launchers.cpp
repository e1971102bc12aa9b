// SPDX-License-Identifier: MIT
// What launches things that fly on: missiles and torpedoes, mines, countermeasures.
#include <algorithm>

#include "atlas/equipment.h"
#include "atlas/families.h"

namespace orrerix {
namespace {

constexpr std::string_view kTorpedo = "torpedo";

Figure BlastHull(const Equipment& launcher) {
  return launcher.Blast.Number("hull_damage");
}
Figure BlastShield(const Equipment& launcher) {
  return ShieldDamage(launcher.Blast);
}

// How a missile flies: with its muzzle velocity, and with its motor on from `delay` for `lifetime`
// seconds or until the missile ends. Without a motor only the muzzle velocity counts.
struct Flight {
  Figure Speed;  // once the motor has burnt out
  Figure Range;
};

Flight FlightOf(const Equipment& missile) {
  const Figure start = missile.Number("muzzle_velocity");
  const Figure life = missile.Shot.Number("lifetime");
  if (!missile.Motor.Exists()) return {start, Product(start, life)};
  const Figure push = missile.Motor.Number("accel");
  const Figure burning = missile.Motor.Number("lifetime");
  if (!start || !life || !push || !burning) return {};
  const double after = std::max(0.0, *life - missile.Motor.Number("delay").value_or(0));
  const double burn = std::min(*burning, after);
  return {*start + *push * burn, *start * *life + *push * burn * (after - burn / 2)};
}

Column<Equipment> ShotColumn(std::string id, std::string head, std::string formula,
                             std::string field) {
  return FigureColumn(
      std::move(id), std::move(head), std::move(formula),
      [field = std::move(field)](const Equipment& e) { return e.Shot.Number(field); });
}

EquipmentColumns BlastColumns() {
  return {
      FigureColumn("hull_damage_shot", "Hull damage (points/shot)", "hull_damage of [Explosion]",
                   BlastHull),
      FigureColumn("shield_damage_shot", "Shield damage (points/shot)",
                   "energy_damage of [Explosion]; without it half the hull damage", BlastShield),
      FigureColumn(
          "hull_damage_second", "Hull damage (points/s)", "hull damage of a shot / refire_delay",
          [](const Equipment& e) { return Quotient(BlastHull(e), e.Number("refire_delay")); }),
      FigureColumn(
          "shield_damage_second", "Shield damage (points/s)",
          "shield damage of a shot / refire_delay",
          [](const Equipment& e) { return Quotient(BlastShield(e), e.Number("refire_delay")); }),
      FigureColumn(
          "hull_damage_energy", "Hull damage per energy (points/unit)",
          "hull damage of a shot / power_usage",
          [](const Equipment& e) { return Quotient(BlastHull(e), e.Number("power_usage")); }),
      FigureColumn("radius", "Blast radius (m)", "radius of [Explosion]",
                   [](const Equipment& e) { return e.Blast.Number("radius"); }),
      FigureColumn("refire_rate", "Refire rate (shots/s)", "1 / refire_delay",
                   [](const Equipment& e) { return Quotient(1.0, e.Number("refire_delay")); })};
}

std::string MissileKind(const Equipment& missile) {
  if (IsTrue(missile.Shot.Text("cruise_disruptor"))) return "cruise disruptor";
  return Contains(FoldAscii(missile.Hardpoint), kTorpedo) ? "torpedo" : "missile";
}

EquipmentColumns MissileColumns() {
  return Joined<Equipment>(
      {NameColumns(),
       {TextColumn("kind", "Kind",
                   "cruise disruptor where cruise_disruptor of [Munition] is true; torpedo on a "
                   "torpedo hardpoint; else missile",
                   [](const Equipment& e) { return e.Kind; }),
        HardpointColumn("hp_gun_type of [Gun]")},
       BlastColumns(),
       {FieldColumn("energy_shot", "Energy (units/shot)", "Gun", "power_usage"),
        FigureColumn("range", "Range (m)",
                     "v * L + a * b * (L - d - b / 2): muzzle velocity v, lifetime L, and of "
                     "[Motor] accel a, delay d and b, the smaller one of its lifetime and L - d",
                     [](const Equipment& e) { return FlightOf(e).Range; }),
        FigureColumn("speed", "Top speed (m/s)", "v + a * b, as for the range",
                     [](const Equipment& e) { return FlightOf(e).Speed; }),
        ShotColumn("lifetime", "Lifetime (s)", "lifetime of [Munition]", "lifetime"),
        ShotColumn("seeker_range", "Seeker range (m)", "seeker_range of [Munition]",
                   "seeker_range"),
        ShotColumn("seeker_cone", "Seeker cone (degrees)", "seeker_fov_deg of [Munition]",
                   "seeker_fov_deg"),
        ShotColumn("lock_time", "Time to lock (s)", "time_to_lock of [Munition]", "time_to_lock"),
        ShotColumn("turn_rate", "Turn rate (radians/s)", "max_angular_velocity of [Munition]",
                   "max_angular_velocity"),
        ShotColumn("ammo_limit", "Ammunition limit (shots)", "ammo_limit of [Munition]",
                   "ammo_limit")},
       AmmoColumns(BlastHull),
       MarketColumns()});
}

EquipmentColumns MineColumns() {
  return Joined<Equipment>(
      {NameColumns(),
       {HardpointColumn("hp_type of [MineDropper], else hp_mine_dropper")},
       BlastColumns(),
       {FieldColumn("energy_shot", "Energy (units/shot)", "MineDropper", "power_usage"),
        ShotColumn("seek_range", "Seek range (m)", "seek_dist of [Mine]", "seek_dist"),
        ShotColumn("speed", "Top speed (m/s)", "top_speed of [Mine]", "top_speed"),
        ShotColumn("acceleration", "Acceleration (m/s^2)", "acceleration of [Mine]",
                   "acceleration"),
        ShotColumn("lifetime", "Lifetime (s)", "lifetime of [Mine]", "lifetime"),
        ShotColumn("arming_time", "Safe for its owner (s)", "owner_safe_time of [Mine]",
                   "owner_safe_time"),
        ShotColumn("ammo_limit", "Ammunition limit (shots)", "ammo_limit of [Mine]", "ammo_limit")},
       AmmoColumns(BlastHull),
       MarketColumns()});
}

EquipmentColumns CountermeasureColumns() {
  EquipmentColumns ammo = AmmoColumns(BlastHull);
  ammo.resize(1);  // they do no damage
  return Joined<Equipment>(
      {NameColumns(),
       {HardpointColumn("hp_type of [CounterMeasureDropper], else hp_countermeasure_dropper"),
        ShotColumn("diversion", "Diversion (%)", "diversion_pctg of [CounterMeasure]",
                   "diversion_pctg"),
        ShotColumn("range", "Range (m)", "range of [CounterMeasure]", "range"),
        ShotColumn("lifetime", "Lifetime (s)", "lifetime of [CounterMeasure]", "lifetime"),
        FigureColumn("refire_rate", "Refire rate (shots/s)", "1 / refire_delay",
                     [](const Equipment& e) { return Quotient(1.0, e.Number("refire_delay")); }),
        FieldColumn("speed", "Speed (m/s)", "CounterMeasureDropper", "muzzle_velocity"),
        FieldColumn("energy_shot", "Energy (units/shot)", "CounterMeasureDropper", "power_usage"),
        ShotColumn("ammo_limit", "Ammunition limit (shots)", "ammo_limit of [CounterMeasure]",
                   "ammo_limit")},
       ammo,
       MarketColumns()});
}

std::vector<Equipment> ReadMissiles(const AtlasSource& source) {
  std::vector<Equipment> missiles;
  const SourceTable& guns = source.Tables["gun"];
  for (std::size_t i = 0; i < guns.RowCount(); ++i) {
    Equipment gun = DescribeLauncher(source, guns.Row(i), "hp_gun_type", {}, "munition");
    if (!IsGuidedOrBlasting(gun.Shot)) continue;
    gun.Kind = MissileKind(gun);
    missiles.push_back(std::move(gun));
  }
  return missiles;
}

std::vector<Equipment> ReadDroppers(const AtlasSource& source, std::string_view table,
                                    std::string_view hardpoint, std::string_view shots) {
  std::vector<Equipment> droppers;
  const SourceTable& rows = source.Tables[table];
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    droppers.push_back(DescribeLauncher(source, rows.Row(i), "hp_type", hardpoint, shots));
  }
  return droppers;
}

}  // namespace

AtlasTable MissilesTable() {
  return MakeTable<Equipment>(
      {"missiles", "Missiles and torpedoes", "Guns whose munition has a motor or ends in a blast."},
      MissileColumns(), ReadMissiles);
}

AtlasTable MinesTable() {
  return MakeTable<Equipment>({"mines", "Mines", "Mine droppers with their mines."}, MineColumns(),
                              [](const AtlasSource& source) {
                                return ReadDroppers(source, "minedropper", "hp_mine_dropper",
                                                    "mine");
                              });
}

AtlasTable CountermeasuresTable() {
  return MakeTable<Equipment>(
      {"countermeasures", "Countermeasures", "Countermeasure droppers with what they drop."},
      CountermeasureColumns(), [](const AtlasSource& source) {
        return ReadDroppers(source, "countermeasuredropper", "hp_countermeasure_dropper",
                            "countermeasure");
      });
}

}  // namespace orrerix
