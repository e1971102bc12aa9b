// SPDX-License-Identifier: MIT
#include "atlas/equipment.h"

#include <fmt/format.h>

namespace orrerix {
namespace {

std::string NameOf(const AtlasSource& source, const SourceRow& item, const SourceRow& good) {
  std::string name = source.Tables.NameOf(item.Number("ids_name"));
  return name.empty() ? GivenName(good.Text("realname"), good.Text("nickname")) : name;
}

}  // namespace

SourceRow GoodOfEquipment(const AtlasSource& source, std::string_view item) {
  const SourceTable& goods = source.Tables["Goods"];
  const SourceRow good = goods.Find("equipment", item);
  return good.Exists() ? good : goods.Find("nickname", item);
}

Equipment DescribeEquipment(const AtlasSource& source, const SourceRow& item,
                            std::string_view hardpointField, std::string_view usual) {
  Equipment equipment;
  equipment.Item = item;
  equipment.Hardpoint = hardpointField.empty() ? std::string() : item.Text(hardpointField);
  if (equipment.Hardpoint.empty()) equipment.Hardpoint = usual;
  equipment.Good = GoodOfEquipment(source, item.Text("nickname"));
  equipment.Name = NameOf(source, item, equipment.Good);
  const Sellers& sellers = source.Sales.SellersOf(equipment.Good.Text("nickname"));
  equipment.Sellers = sellers.size();
  equipment.SoldAt = LabelsOf(source.Bases, sellers);
  return equipment;
}

Equipment DescribeLauncher(const AtlasSource& source, const SourceRow& item,
                           std::string_view hardpointField, std::string_view usual,
                           std::string_view shots) {
  Equipment launcher = DescribeEquipment(source, item, hardpointField, usual);
  const std::string shot = item.Text("projectile_archetype");
  launcher.Shot = source.Tables[shots].Find("nickname", shot);
  launcher.Blast =
      source.Tables["explosion"].Find("nickname", launcher.Shot.Text("explosion_arch"));
  launcher.Motor = source.Tables["motor"].Find("nickname", launcher.Shot.Text("motor"));
  if (IsTrue(launcher.Shot.Text("requires_ammo")))
    launcher.AmmoGood = GoodOfEquipment(source, shot);
  return launcher;
}

Column<Equipment> FieldColumn(std::string id, std::string head, std::string_view section,
                              std::string field) {
  std::string formula = fmt::format("{} of [{}]", field, section);
  return {std::move(id), std::move(head), std::move(formula),
          [field = std::move(field)](const Equipment& equipment) {
            return FigureValue(equipment.Number(field));
          }};
}

Column<Equipment> FigureColumn(std::string id, std::string head, std::string formula,
                               std::function<Figure(const Equipment&)> figure) {
  return {std::move(id), std::move(head), std::move(formula),
          [figure = std::move(figure)](const Equipment& equipment) {
            return FigureValue(figure(equipment));
          }};
}

Column<Equipment> TextColumn(std::string id, std::string head, std::string formula,
                             std::function<std::string(const Equipment&)> text) {
  return {std::move(id), std::move(head), std::move(formula),
          [text = std::move(text)](const Equipment& equipment) {
            return TextValueOf(text(equipment));
          }};
}

EquipmentColumns NameColumns() {
  return {TextColumn("name", "Name", "the name of ids_name, else that of the good",
                     [](const Equipment& e) { return e.Name; }),
          TextColumn("nickname", "Nickname", "nickname of the section",
                     [](const Equipment& e) { return e.Item.Text("nickname"); })};
}

Column<Equipment> HardpointColumn(std::string formula) {
  return TextColumn("hardpoint", "Hardpoint type", std::move(formula),
                    [](const Equipment& e) { return e.Hardpoint; });
}

EquipmentColumns MarketColumns() {
  return {FigureColumn("price", "Price (credits)",
                       "list price of the good; empty where there is none or it is 0",
                       [](const Equipment& e) { return UnlessZero(e.Good.Number("price")); }),
          FigureColumn("sellers", "Sellers (bases)",
                       "number of bases that sell it: market lines whose fifth number is 0, at "
                       "bases that a ship can dock at; empty where it is no good",
                       [](const Equipment& e) -> Figure {
                         if (!e.Good.Exists()) return std::nullopt;
                         return static_cast<double>(e.Sellers);
                       }),
          TextColumn("sold_at", "Sold at", "these bases, with their systems",
                     [](const Equipment& e) { return e.SoldAt; })};
}

EquipmentColumns AmmoColumns(Figure (*damagePerShot)(const Equipment&)) {
  const auto ammoPrice = [](const Equipment& e) { return UnlessZero(e.AmmoGood.Number("price")); };
  return {
      FigureColumn("ammo_price", "Ammunition price (credits/shot)",
                   "list price of the ammunition's good, where requires_ammo is true", ammoPrice),
      FigureColumn("ammo_price_per_damage", "Ammunition per damage (credits/point)",
                   "ammunition price / hull damage of a shot", [=](const Equipment& e) {
                     return Quotient(ammoPrice(e), UnlessZero(damagePerShot(e)));
                   })};
}

Figure ShieldDamage(const SourceRow& shot) {
  if (const Figure energy = UnlessZero(shot.Number("energy_damage"))) return energy;
  return Product(shot.Number("hull_damage"), 0.5);
}

}  // namespace orrerix
