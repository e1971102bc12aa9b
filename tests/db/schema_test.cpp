// SPDX-License-Identifier: MIT
#include "db/schema.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orrerix {
namespace {

using ::testing::ElementsAre;

// A field as "name:type", with "!" for a text that may not be empty and "*" for a generated key.
std::string Described(const Field& field) {
  const auto type = [&field]() -> std::string {
    switch (field.Type) {
      case FieldType::Boolean:
        return "Boolean";
      case FieldType::Byte:
        return "Byte";
      case FieldType::Integer:
        return "Integer";
      case FieldType::Long:
        return "Long";
      case FieldType::Double:
        return "Double";
      case FieldType::Text:
        return "Text";
      case FieldType::Memo:
        return "Memo";
    }
    return "";
  };
  const bool text = field.Type == FieldType::Text || field.Type == FieldType::Memo;
  return field.Name + ":" + type() + (text && !field.AllowZeroLength ? "!" : "") +
         (field.IsUniqueID ? "*" : "");
}

std::string Described(const TableDef& table) {
  std::string text = table.Name;
  for (const Field& field : table.Fields) text += " " + Described(field);
  if (table.PrimaryKey) {
    text += " key " + table.PrimaryKey->Name + "(";
    for (const std::string& field : table.PrimaryKey->Fields) text += field + ";";
    text += ")";
  }
  return text;
}

TEST(Schema, FixedTablesStandInTheirOrder) {
  std::vector<std::string> tables;
  for (const TableDef& table : FixedTables()) tables.push_back(Described(table));

  EXPECT_THAT(
      tables,
      ElementsAre(
          "OXWarning OFF:Boolean",
          "commodity nickname:Text realname:Text ids_name:Long ids_info:Long "
          "units_per_container:Long decay_per_second:Long volume:Long",
          "DataFiles type:Text pathfile:Text", "resources DLL:Text",
          "ids_info ID:Long Info:Memo DLL:Memo key ID(ID;)",
          "ids_name ID:Long Name:Memo DLL:Memo key ID(ID;)",
          "Systems ID:Long* nickname:Text realname:Text pos:Text pos_original:Text stridname:Long "
          "navmapscale:Text file:Text",
          "Objects ID:Long* nickname:Text realname:Text pos:Text ids_name:Long archetype:Text "
          "jump_effect:Text reputation:Text difficulty_level:Text goto:Text dock_with:Text "
          "loadout:Text sys_nick:Text tradelane_space_name:Long prev_ring:Text next_ring:Text "
          "realspacename:Text has_commodities:Boolean ids_info:Long key nickname(nickname;)",
          "Goods ID:Long* nickname:Text equipment:Text msg_id_prefix:Text price:Long "
          "realname:Text category:Text ids_info:Long ship:Text hull:Text free_ammo:Memo "
          "key nickname(nickname;category;)",
          "BaseGoods ID:Long* Base:Text GoodNick:Text val1:Double val2:Double val3:Double "
          "val4:Double val5:Double val6:Double key GoodNick(Base;GoodNick;)",
          "BaseGoodPrices SysNick:Text BaseNick:Text GoodNick:Text Price:Long Sell:Byte "
          "key BaseNick(BaseNick;GoodNick;)",
          "Groups NickName:Text Name:Text SName:Text ids_name:Long ids_info:Long "
          "ids_short_name:Long",
          "Packages PackageName:Text NickName:Text HardPoint:Text Val:Long",
          "Ships NickName:Text Type:Text RealName:Text ids_name:Long ids_info:Long "
          "ids_info1:Long ids_info2:Long ids_info3:Long ship_class:Long mass:Double "
          "hold_size:Long linear_drag:Double max_bank_angel:Long nanobot_limit:Long "
          "shield_battery_limit:Long hit_pts:Long price:Long packagename:Text steering1:Double "
          "steering2:Double steering3:Double angular1:Double angular2:Double angular3:Double "
          "rotation1:Double rotation2:Double rotation3:Double nudge_force:Double "
          "strafe_force:Double strafe_power_usage:Double",
          "Ships_Hardpoints NickName:Text EquipType:Memo! HardPoints:Memo!",
          "Loadout_Cargo NickName:Text Cargo:Text Count:Integer",
          "GF_NPC BaseNick:Text NickName:Text individual_name:Long affiliation:Text bribe:Text "
          "bribe_2:Long bribe_3:Long"));
}

TEST(Schema, DerivedTablesHaveTheirFields) {
  EXPECT_EQ(Described(JumpNodesTable()),
            "JumpNodes ID:Long* nickname:Text nickname2:Text MapX1:Integer MapY1:Integer "
            "MapX2:Integer MapY2:Integer PosX1:Double PosY1:Double PosX2:Double PosY2:Double "
            "Type:Integer");
  EXPECT_EQ(Described(TradeLanesTable()),
            "TradeLanes ID:Long* nickname:Text nickname2:Text realname:Text realname2:Text "
            "MapX1:Integer MapY1:Integer MapX2:Integer MapY2:Integer PosX1:Double PosY1:Double "
            "PosX2:Double PosY2:Double");
  EXPECT_EQ(Described(DockObjectsTable()),
            "DockObjects ID:Long* nickname:Text realname:Text loadout:Text owner:Text "
            "MapX:Integer MapY:Integer PosX:Double PosY:Double abs_x:Long abs_y:Long abs_z:Long");
  EXPECT_EQ(Described(VersionTable()), "Version Version:Text");
}

TEST(Schema, ASectionTableBeginsWithNumberAndFile) {
  EXPECT_EQ(Described(GenericTable("gun")), "gun OX_ID:Long SourceFileName:Text!");
}

TEST(Schema, AllTextsHaveTheDefaultSize) {
  for (const TableDef& table : FixedTables()) {
    for (const Field& field : table.Fields) {
      if (field.Type != FieldType::Text) continue;
      EXPECT_EQ(field.Size, 255u) << table.Name << "." << field.Name;
    }
  }
}

TEST(Schema, KnowsItsOwnTablesInWhateverCase) {
  for (const char* name : {"ships", "SHIPS", "oxwarning", "jumpnodes", "tradelanes", "dockobjects",
                           "version", "sqlite_stat1"}) {
    EXPECT_TRUE(IsOwnTable(name)) << name;
  }
  for (const char* name : {"gun", "ship", "", "names", "msysobjects"}) {
    EXPECT_FALSE(IsOwnTable(name)) << name;
  }
}

}  // namespace
}  // namespace orrerix
