// SPDX-License-Identifier: MIT
#include "db/schema.h"

#include <algorithm>
#include <initializer_list>
#include <set>
#include <string>

#include "db/values/text.h"

namespace orrerix {
namespace {

Field Of(FieldType type, std::string_view name) {
  Field field;
  field.Name = name;
  field.Type = type;
  return field;
}

Field UniqueID() {
  Field field = Of(FieldType::Long, "ID");
  field.IsUniqueID = true;
  return field;
}

Field WithZeroLength(FieldType type, std::string_view name) {
  Field field = Of(type, name);
  field.AllowZeroLength = true;
  return field;
}

// Builds a definition field by field, in the order of the calls.
class Table {
 public:
  explicit Table(std::string_view name) { table_.Name = name; }

  Table& ID() { return Add(UniqueID()); }
  Table& Text(std::initializer_list<std::string_view> names) {
    for (auto name : names) Add(WithZeroLength(FieldType::Text, name));
    return *this;
  }
  Table& Memo(std::initializer_list<std::string_view> names) {
    for (auto name : names) Add(WithZeroLength(FieldType::Memo, name));
    return *this;
  }
  Table& FilledMemo(std::initializer_list<std::string_view> names) {
    return Numbers(FieldType::Memo, names);
  }
  Table& Boolean(std::string_view name) { return Add(Of(FieldType::Boolean, name)); }
  Table& Byte(std::string_view name) { return Add(Of(FieldType::Byte, name)); }
  Table& Integer(std::initializer_list<std::string_view> names) {
    return Numbers(FieldType::Integer, names);
  }
  Table& Long(std::initializer_list<std::string_view> names) {
    return Numbers(FieldType::Long, names);
  }
  Table& Double(std::initializer_list<std::string_view> names) {
    return Numbers(FieldType::Double, names);
  }
  Table& Key(std::string_view name, std::initializer_list<std::string_view> fields) {
    table_.PrimaryKey = Index{std::string(name), {fields.begin(), fields.end()}, false};
    return *this;
  }
  Table& LateKey(std::string_view name, std::initializer_list<std::string_view> fields) {
    Key(name, fields);
    table_.PrimaryKey->IsLate = true;
    return *this;
  }
  operator TableDef() const { return table_; }

 private:
  Table& Numbers(FieldType type, std::initializer_list<std::string_view> names) {
    for (auto name : names) Add(Of(type, name));
    return *this;
  }
  Table& Add(Field field) {
    table_.Fields.push_back(std::move(field));
    return *this;
  }

  TableDef table_;
};

TableDef ObjectsTable() {
  return Table("Objects")
      .ID()
      .Text({"nickname", "realname", "pos"})
      .Long({"ids_name"})
      .Text({"archetype", "jump_effect", "reputation", "difficulty_level", "goto", "dock_with",
             "loadout", "sys_nick"})
      .Long({"tradelane_space_name"})
      .Text({"prev_ring", "next_ring", "realspacename"})
      .Boolean("has_commodities")
      .Long({"ids_info"})
      .LateKey("nickname", {"nickname"});
}

TableDef ShipsTable() {
  return Table("Ships")
      .Text({"NickName", "Type", "RealName"})
      .Long({"ids_name", "ids_info", "ids_info1", "ids_info2", "ids_info3", "ship_class"})
      .Double({"mass"})
      .Long({"hold_size"})
      .Double({"linear_drag"})
      .Long({"max_bank_angel", "nanobot_limit", "shield_battery_limit", "hit_pts", "price"})
      .Text({"packagename"})
      .Double({"steering1", "steering2", "steering3", "angular1", "angular2", "angular3",
               "rotation1", "rotation2", "rotation3", "nudge_force", "strafe_force",
               "strafe_power_usage"});
}

}  // namespace

std::vector<TableDef> FixedTables() {
  return {
      Table("OXWarning").Boolean("OFF"),
      Table("commodity")
          .Text({"nickname", "realname"})
          .Long({"ids_name", "ids_info", "units_per_container", "decay_per_second", "volume"}),
      Table("DataFiles").Text({"type", "pathfile"}),
      Table("resources").Text({"DLL"}),
      Table("ids_info").Long({"ID"}).Memo({"Info", "DLL"}).Key("ID", {"ID"}),
      Table("ids_name").Long({"ID"}).Memo({"Name", "DLL"}).Key("ID", {"ID"}),
      Table("Systems")
          .ID()
          .Text({"nickname", "realname", "pos", "pos_original"})
          .Long({"stridname"})
          .Text({"navmapscale", "file"}),
      ObjectsTable(),
      Table("Goods")
          .ID()
          .Text({"nickname", "equipment", "msg_id_prefix"})
          .Long({"price"})
          .Text({"realname", "category"})
          .Long({"ids_info"})
          .Text({"ship", "hull"})
          .Memo({"free_ammo"})
          .Key("nickname", {"nickname", "category"}),
      Table("BaseGoods")
          .ID()
          .Text({"Base", "GoodNick"})
          .Double({"val1", "val2", "val3", "val4", "val5", "val6"})
          .LateKey("GoodNick", {"Base", "GoodNick"}),
      Table("BaseGoodPrices")
          .Text({"SysNick", "BaseNick", "GoodNick"})
          .Long({"Price"})
          .Byte("Sell")
          .Key("BaseNick", {"BaseNick", "GoodNick"}),
      Table("Groups")
          .Text({"NickName", "Name", "SName"})
          .Long({"ids_name", "ids_info", "ids_short_name"}),
      Table("Packages").Text({"PackageName", "NickName", "HardPoint"}).Long({"Val"}),
      ShipsTable(),
      Table("Ships_Hardpoints").Text({"NickName"}).FilledMemo({"EquipType", "HardPoints"}),
      Table("Loadout_Cargo").Text({"NickName", "Cargo"}).Integer({"Count"}),
      Table("GF_NPC")
          .Text({"BaseNick", "NickName"})
          .Long({"individual_name"})
          .Text({"affiliation", "bribe"})
          .Long({"bribe_2", "bribe_3"}),
  };
}

TableDef JumpNodesTable() {
  return Table("JumpNodes")
      .ID()
      .Text({"nickname", "nickname2"})
      .Integer({"MapX1", "MapY1", "MapX2", "MapY2"})
      .Double({"PosX1", "PosY1", "PosX2", "PosY2"})
      .Integer({"Type"});
}

TableDef TradeLanesTable() {
  return Table("TradeLanes")
      .ID()
      .Text({"nickname", "nickname2", "realname", "realname2"})
      .Integer({"MapX1", "MapY1", "MapX2", "MapY2"})
      .Double({"PosX1", "PosY1", "PosX2", "PosY2"});
}

TableDef DockObjectsTable() {
  return Table("DockObjects")
      .ID()
      .Text({"nickname", "realname", "loadout", "owner"})
      .Integer({"MapX", "MapY"})
      .Double({"PosX", "PosY"})
      .Long({"abs_x", "abs_y", "abs_z"});
}

TableDef VersionTable() {
  return Table("Version").Text({"Version"});
}

TableDef GenericTable(std::string_view sectionName) {
  TableDef table = Table(sectionName).Long({"OX_ID"});
  table.Fields.push_back(Of(FieldType::Text, "SourceFileName"));
  return table;
}

bool IsOwnTable(std::string_view name) {
  // Asked once for each section name, of which a file may hold tens of thousands.
  static const std::set<std::string> kOwn = [] {
    std::set<std::string> names;
    for (const TableDef& table : FixedTables()) names.insert(FoldAscii(table.Name));
    for (const TableDef& table :
         {JumpNodesTable(), TradeLanesTable(), DockObjectsTable(), VersionTable()}) {
      names.insert(FoldAscii(table.Name));
    }
    return names;
  }();
  const std::string folded = FoldAscii(name);
  return kOwn.contains(folded) || folded.starts_with("sqlite_");
}

}  // namespace orrerix
