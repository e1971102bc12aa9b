// SPDX-License-Identifier: MIT
#include <numbers>

#include "atlas/families.h"
#include "atlas/hardpoints.h"
#include "atlas/packages.h"
#include "atlas/sales.h"

namespace orrerix {
namespace {

constexpr double kDegreesPerRadian = 180 / std::numbers::pi;

struct Ship {
  SourceRow Row;
  std::string Name;
  ShipMounts Mounts;
  SourceRow Engine;  // of its package
  SourceRow Power;
  bool HasPackage = false;
  std::size_t Sellers = 0;
  std::string SoldAt;

  Figure Number(std::string_view field) const { return Row.Number(field); }
  // A figure that may truly be 0. For ships that nobody can buy a 0 mostly means that it is
  // missing.
  Figure Counted(std::string_view field) const {
    return HasPackage ? Row.Number(field) : Known(field);
  }
  // A figure that no ship lacks: the universe file holds 0 where a block has none.
  Figure Known(std::string_view field) const { return UnlessZero(Row.Number(field)); }
};

using ShipColumns = ColumnList<Ship>;

Column<Ship> ShipFigure(std::string id, std::string head, std::string formula,
                        std::function<Figure(const Ship&)> figure) {
  return {std::move(id), std::move(head), std::move(formula),
          [figure = std::move(figure)](const Ship& ship) { return FigureValue(figure(ship)); }};
}

Column<Ship> ShipText(std::string id, std::string head, std::string formula,
                      std::function<std::string(const Ship&)> text) {
  return {std::move(id), std::move(head), std::move(formula),
          [text = std::move(text)](const Ship& ship) { return TextValueOf(text(ship)); }};
}

std::string ClassName(const Ship& ship) {
  static const std::vector<std::string> kNames = {"light fighter", "heavy fighter", "freighter",
                                                  "very heavy fighter"};
  const Figure number = ship.Counted("ship_class");
  if (!number || *number < 0 || *number >= static_cast<double>(kNames.size())) return {};
  return kNames[static_cast<std::size_t>(*number)];
}

std::string TypeOf(const Ship& ship) {
  std::string type = ship.Row.Text("Type");
  if (Contains(type, "\\")) type.clear();
  return type;
}

ShipColumns ShipNameColumns() {
  return {
      ShipText("name", "Name", "the name of ids_name", [](const Ship& s) { return s.Name; }),
      ShipText("nickname", "Nickname", "nickname of [Ship]",
               [](const Ship& s) { return s.Row.Text("NickName"); }),
      ShipText("type", "Type",
               "type of [Ship]; empty where the universe file has taken another line for it, whose "
               "content is a path",
               TypeOf),
      ShipText("class", "Class",
               "ship_class of [Ship]: 0 light fighter, 1 heavy fighter, 2 freighter, 3 very "
               "heavy fighter",
               ClassName)};
}

ShipColumns HoldColumns() {
  return {
      ShipFigure("price", "Price (credits)",
                 "price of the hull and of the goods in its own package; empty if it is 0",
                 [](const Ship& s) { return s.Known("price"); }),
      ShipFigure("hold", "Hold (units)", "hold_size of [Ship]",
                 [](const Ship& s) { return s.Counted("hold_size"); }),
      ShipFigure("hold_price", "Hold per price (units/1000 credits)", "1000 * hold_size / price",
                 [](const Ship& s) {
                   return Product(1000.0, Quotient(s.Counted("hold_size"), s.Number("price")));
                 }),
      ShipFigure("nanobots", "Nanobots (pieces)", "nanobot_limit of [Ship]",
                 [](const Ship& s) { return s.Counted("nanobot_limit"); }),
      ShipFigure("batteries", "Shield batteries (pieces)", "shield_battery_limit of [Ship]",
                 [](const Ship& s) { return s.Counted("shield_battery_limit"); }),
      ShipFigure("hit_points", "Hit points (points)", "hit_pts of [Ship]; empty if it is 0",
                 [](const Ship& s) { return s.Known("hit_pts"); }),
      ShipFigure("mass", "Mass (mass)", "mass of [Ship]; empty if it is 0",
                 [](const Ship& s) { return s.Known("mass"); })};
}

Column<Ship> MountColumn(const std::string& id, const std::string& head, std::string_view word) {
  return ShipFigure(id, head + " (mounts)",
                    "number of hardpoints that take a type with \"" + std::string(word) +
                        "\" in it; empty for a ship without hp_type lines",
                    [word](const Ship& s) -> Figure {
                      if (s.Mounts.Types().empty()) return std::nullopt;
                      return static_cast<double>(s.Mounts.Of(word).Hardpoints.size());
                    });
}

Column<Ship> ClassColumn(const std::string& id, const std::string& head, std::string_view word) {
  return ShipFigure(id, head + " class (number)", "highest number at the end of these types",
                    [word](const Ship& s) { return s.Mounts.Of(word).HighestClass; });
}

ShipColumns MountColumns() {
  return {MountColumn("guns", "Guns", "gun"),
          ClassColumn("gun_class", "Gun", "gun"),
          MountColumn("turrets", "Turrets", "turret"),
          ClassColumn("turret_class", "Turret", "turret"),
          MountColumn("torpedoes", "Torpedoes", "torpedo"),
          MountColumn("mines", "Mines", "mine"),
          MountColumn("countermeasures", "Countermeasures", "countermeasure"),
          MountColumn("shields", "Shields", "shield"),
          ClassColumn("shield_class", "Shield", "shield"),
          MountColumn("thrusters", "Thrusters", "thruster"),
          ShipText("hardpoints", "Hardpoints (type: mounts)",
                   "number of hardpoints of each hp_type line",
                   [](const Ship& s) { return s.Mounts.Text(); })};
}

ShipColumns FlightColumns() {
  return {ShipFigure("impulse_speed", "Impulse speed (m/s)",
                     "max_force / (linear_drag of [Engine] + linear_drag of [Ship]) with the "
                     "engine of its package",
                     [](const Ship& s) {
                       return Quotient(
                           s.Engine.Number("max_force"),
                           Sum(s.Engine.Number("linear_drag"), s.Number("linear_drag")));
                     }),
          ShipFigure("cruise_speed", "Cruise speed (m/s)",
                     "cruise_speed of that engine; empty where the game's constants say it",
                     [](const Ship& s) { return s.Engine.Number("cruise_speed"); }),
          ShipFigure("cruise_charge", "Cruise charging (s)", "cruise_charge_time of that engine",
                     [](const Ship& s) { return s.Engine.Number("cruise_charge_time"); }),
          ShipFigure("turn_rate", "Turn rate (degrees/s)",
                     "first number of steering_torque / first number of angular_drag * 180 / pi",
                     [](const Ship& s) {
                       return Product(kDegreesPerRadian,
                                      Quotient(s.Known("steering1"), s.Known("angular1")));
                     }),
          ShipFigure("power", "Power (units)", "capacity of the power plant in its package",
                     [](const Ship& s) { return s.Power.Number("capacity"); }),
          ShipFigure("power_rate", "Power charge rate (units/s)", "charge_rate of that power plant",
                     [](const Ship& s) { return s.Power.Number("charge_rate"); }),
          ShipFigure("thrust_power", "Thrust power (units)", "thrust_capacity of that power plant",
                     [](const Ship& s) { return s.Power.Number("thrust_capacity"); })};
}

ShipColumns SaleColumns() {
  return {ShipFigure("sellers", "Sellers (bases)",
                     "number of bases that sell a package with its hull; empty without a package",
                     [](const Ship& s) -> Figure {
                       if (!s.HasPackage) return std::nullopt;
                       return static_cast<double>(s.Sellers);
                     }),
          ShipText("sold_at", "Sold at", "these bases, with their systems",
                   [](const Ship& s) { return s.SoldAt; })};
}

// The first part of a ship's package that a table knows.
SourceRow PartOf(const AtlasSource& source, std::string_view package, std::string_view table) {
  for (const SourceRow& part : source.Tables["Packages"].FindAll("PackageName", package)) {
    const SourceRow item = source.Tables[table].Find("nickname", part.Text("NickName"));
    if (item.Exists()) return item;
  }
  return {};
}

std::vector<Ship> ReadShips(const AtlasSource& source) {
  std::vector<Ship> ships;
  const SourceTable& rows = source.Tables["Ships"];
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    const SourceRow row = rows.Row(i);
    const std::string package = row.Text("packagename");
    const std::vector<std::string> packages = PackagesOf(source.Tables, row);
    const Sellers sellers = source.Sales.SellersOfAny(packages);
    ships.push_back({row, source.Tables.NameOf(row.Number("ids_name")),
                     ShipMounts(source.Tables, row.Text("NickName")),
                     PartOf(source, package, "engine"), PartOf(source, package, "power"),
                     !packages.empty(), sellers.size(), LabelsOf(source.Bases, sellers)});
  }
  return ships;
}

}  // namespace

AtlasTable ShipsTable() {
  return MakeTable<Ship>(
      {"ships", "Ships",
       "All ships; `--filter sellers>0` leaves those that can be bought. Hardpoints that take "
       "several types count once for each kind. The universe file holds 0 where a ship has no "
       "number: class, hold, nanobots and batteries of 0 are shown only for ships with a package."},
      Joined<Ship>(
          {ShipNameColumns(), HoldColumns(), MountColumns(), FlightColumns(), SaleColumns()}),
      ReadShips);
}

}  // namespace orrerix
