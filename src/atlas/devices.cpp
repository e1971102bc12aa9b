// SPDX-License-Identifier: MIT
// Shields, thrusters, engines, power plants, scanners and tractors.
#include "atlas/equipment.h"
#include "atlas/families.h"
#include "atlas/packages.h"

namespace orrerix {
namespace {

Column<Equipment> ShipsColumn() {
  return TextColumn("ships", "Ships", "ships whose package holds it",
                    [](const Equipment& e) { return e.Ships; });
}

// The names of the ships that are sold with an item.
std::string ShipsWith(const AtlasSource& source, std::string_view item) {
  std::string names;
  for (const SourceRow& part : source.Tables["Packages"].FindAll("NickName", item)) {
    const SourceRow ship = source.Tables["Ships"].Find("packagename", part.Text("PackageName"));
    if (!ship.Exists()) continue;
    if (!names.empty()) names += "; ";
    names += ShipName(ship);
  }
  return names;
}

std::vector<Equipment> ReadDevices(const AtlasSource& source, std::string_view table,
                                   std::string_view hardpointField = {},
                                   std::string_view hardpoint = {}) {
  std::vector<Equipment> devices;
  const SourceTable& rows = source.Tables[table];
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    Equipment device = DescribeEquipment(source, rows.Row(i), hardpointField, hardpoint);
    device.Ships = ShipsWith(source, rows.Row(i).Text("nickname"));
    devices.push_back(std::move(device));
  }
  return devices;
}

EquipmentColumns ShieldColumns() {
  constexpr std::string_view section = "ShieldGenerator";
  return Joined<Equipment>(
      {NameColumns(),
       {HardpointColumn("hp_type of [ShieldGenerator]"),
        TextColumn("shield_type", "Shield type", "shield_type of [ShieldGenerator]",
                   [](const Equipment& e) { return e.Item.Text("shield_type"); }),
        FieldColumn("capacity", "Capacity (points)", section, "max_capacity"),
        FieldColumn("regeneration", "Regeneration (points/s)", section, "regeneration_rate"),
        FigureColumn("refill_time", "Time to refill (s)", "max_capacity / regeneration_rate",
                     [](const Equipment& e) {
                       return Quotient(e.Number("max_capacity"), e.Number("regeneration_rate"));
                     }),
        FieldColumn("offline_time", "Offline time (s)", section, "offline_rebuild_time"),
        FigureColumn(
            "offline_below", "Offline below (% of capacity)", "100 * offline_threshold",
            [](const Equipment& e) { return Product(100.0, e.Number("offline_threshold")); }),
        FieldColumn("energy_second", "Energy (units/s)", section, "constant_power_draw"),
        FieldColumn("energy_rebuild", "Energy while rebuilding (units/s)", section,
                    "rebuild_power_draw"),
        FieldColumn("hit_points", "Hit points (points)", section, "hit_pts"),
        FigureColumn("capacity_price", "Capacity per price (points/credit)", "max_capacity / price",
                     [](const Equipment& e) {
                       return Quotient(e.Number("max_capacity"), e.Good.Number("price"));
                     })},
       MarketColumns()});
}

EquipmentColumns ThrusterColumns() {
  return Joined<Equipment>(
      {NameColumns(),
       {HardpointColumn("hp_type of [Thruster], else hp_thruster"),
        FieldColumn("thrust", "Thrust (force)", "Thruster", "max_force"),
        FieldColumn("energy_second", "Energy (units/s)", "Thruster", "power_usage"),
        FigureColumn("thrust_energy", "Thrust per energy (force/unit)", "max_force / power_usage",
                     [](const Equipment& e) {
                       return Quotient(e.Number("max_force"), e.Number("power_usage"));
                     }),
        FieldColumn("hit_points", "Hit points (points)", "Thruster", "hit_pts")},
       MarketColumns()});
}

EquipmentColumns EngineColumns() {
  const auto speed = [](const Equipment& e) {
    return Quotient(e.Number("max_force"), e.Number("linear_drag"));
  };
  return Joined<Equipment>(
      {NameColumns(),
       {FieldColumn("force", "Force (force)", "Engine", "max_force"),
        FieldColumn("drag", "Linear drag (force*s/m)", "Engine", "linear_drag"),
        FigureColumn("impulse_speed", "Impulse speed (m/s)",
                     "max_force / linear_drag; a ship's own drag slows it a little more", speed),
        FigureColumn("reverse_speed", "Reverse speed (m/s)", "impulse speed * reverse_fraction",
                     [speed](const Equipment& e) {
                       return Product(speed(e), e.Number("reverse_fraction"));
                     }),
        FieldColumn("cruise_speed", "Cruise speed (m/s)", "Engine", "cruise_speed"),
        FieldColumn("cruise_charge", "Cruise charging (s)", "Engine", "cruise_charge_time"),
        FieldColumn("cruise_energy", "Cruise energy (units/s)", "Engine", "cruise_power_usage"),
        ShipsColumn()},
       MarketColumns()});
}

EquipmentColumns PowerColumns() {
  return Joined<Equipment>(
      {NameColumns(),
       {FieldColumn("capacity", "Capacity (units)", "Power", "capacity"),
        FieldColumn("charge_rate", "Charge rate (units/s)", "Power", "charge_rate"),
        FigureColumn("charge_time", "Time to charge (s)", "capacity / charge_rate",
                     [](const Equipment& e) {
                       return Quotient(e.Number("capacity"), e.Number("charge_rate"));
                     }),
        FieldColumn("thrust_capacity", "Thrust capacity (units)", "Power", "thrust_capacity"),
        FieldColumn("thrust_charge_rate", "Thrust charge rate (units/s)", "Power",
                    "thrust_charge_rate"),
        ShipsColumn()},
       MarketColumns()});
}

EquipmentColumns ScannerColumns() {
  return Joined<Equipment>(
      {NameColumns(),
       {TextColumn("kind", "Kind", "scanner for [Scanner], tractor for [Tractor]",
                   [](const Equipment& e) { return e.Kind; }),
        FieldColumn("range", "Scan range (m)", "Scanner", "range"),
        FieldColumn("cargo_range", "Cargo scan range (m)", "Scanner", "cargo_scan_range"),
        FieldColumn("length", "Tractor length (m)", "Tractor", "max_length"),
        FieldColumn("reach_speed", "Tractor speed (m/s)", "Tractor", "reach_speed"), ShipsColumn()},
       MarketColumns()});
}

std::vector<Equipment> ReadScanners(const AtlasSource& source) {
  std::vector<Equipment> devices;
  for (const char* kind : {"scanner", "tractor"}) {
    for (Equipment& device : ReadDevices(source, kind)) {
      device.Kind = kind;
      devices.push_back(std::move(device));
    }
  }
  return devices;
}

}  // namespace

AtlasTable ShieldsTable() {
  return MakeTable<Equipment>(
      {"shields", "Shields", "Shield generators."}, ShieldColumns(),
      [](const AtlasSource& source) { return ReadDevices(source, "shieldgenerator", "hp_type"); });
}

AtlasTable ThrustersTable() {
  return MakeTable<Equipment>({"thrusters", "Thrusters", "Thrusters."}, ThrusterColumns(),
                              [](const AtlasSource& source) {
                                return ReadDevices(source, "thruster", "hp_type", "hp_thruster");
                              });
}

AtlasTable EnginesTable() {
  return MakeTable<Equipment>(
      {"engines", "Engines",
       "Engines, which come with their ships. An engine without a cruise speed has that of the "
       "game's constants, which a universe file does not hold."},
      EngineColumns(), [](const AtlasSource& source) { return ReadDevices(source, "engine"); });
}

AtlasTable PowerTable() {
  return MakeTable<Equipment>(
      {"power", "Power plants", "Power plants, which come with their ships."}, PowerColumns(),
      [](const AtlasSource& source) { return ReadDevices(source, "power"); });
}

AtlasTable ScannersTable() {
  return MakeTable<Equipment>({"scanners", "Scanners and tractors", "Scanners and tractor beams."},
                              ScannerColumns(), ReadScanners);
}

}  // namespace orrerix
