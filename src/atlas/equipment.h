// SPDX-License-Identifier: MIT
// Equipment with all that the game's files say about it in other places, and the columns that every
// table of equipment has.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "atlas/atlas_table.h"
#include "atlas/sales.h"

namespace orrerix {

struct Equipment {
  SourceRow Item;
  std::string Kind;  // where a table holds several
  std::string Name;
  std::string Hardpoint;  // the type that it needs; empty if it needs none
  SourceRow Good;
  std::size_t Sellers = 0;
  std::string SoldAt;
  std::string Ships;  // whose packages hold it, by name
  SourceRow Shot;     // what it fires: a row of munition, mine or countermeasure
  SourceRow Blast;    // the explosion of that
  SourceRow Motor;    // and its motor
  SourceRow AmmoGood;

  Figure Number(std::string_view field) const { return Item.Number(field); }
};

// The good that sells an item: that of its name among `equipment`, else of its nickname.
SourceRow GoodOfEquipment(const AtlasSource& source, std::string_view item);

// An item of any table with its name, good and sellers. Its hardpoint type is that of `field`, or
// else `usual`.
Equipment DescribeEquipment(const AtlasSource& source, const SourceRow& item,
                            std::string_view hardpointField, std::string_view usual = {});

// The same with what it fires, which is a row of table `shots`.
Equipment DescribeLauncher(const AtlasSource& source, const SourceRow& item,
                           std::string_view hardpointField, std::string_view usual,
                           std::string_view shots);

using EquipmentColumns = ColumnList<Equipment>;

// Name and nickname; the hardpoint type; price and sellers.
EquipmentColumns NameColumns();
Column<Equipment> HardpointColumn(std::string formula);
EquipmentColumns MarketColumns();

// Price of ammunition and what a point of damage costs, by the damage that a shot does.
EquipmentColumns AmmoColumns(Figure (*damagePerShot)(const Equipment&));

// A figure of the item's section as it stands.
Column<Equipment> FieldColumn(std::string id, std::string head, std::string_view section,
                              std::string field);

// A figure that is worked out.
Column<Equipment> FigureColumn(std::string id, std::string head, std::string formula,
                               std::function<Figure(const Equipment&)> figure);

// A text.
Column<Equipment> TextColumn(std::string id, std::string head, std::string formula,
                             std::function<std::string(const Equipment&)> text);

// The damage to shields of a shot or blast: its energy damage, or half its hull damage where it has
// none.
Figure ShieldDamage(const SourceRow& shot);

}  // namespace orrerix
