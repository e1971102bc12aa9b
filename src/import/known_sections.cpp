// SPDX-License-Identifier: MIT
#include "import/known_sections.h"

#include <array>
#include <cmath>
#include <initializer_list>
#include <string_view>

#include "db/number_text.h"
#include "db/text.h"
#include "import/ini_text.h"
#include "import/resource_strings.h"
#include "import/windows1252.h"

namespace orrerix {
namespace {

// Kinds of data files that the import reads, each between two stars.
constexpr std::string_view kDataKinds =
    "*EQUIPMENT*SHIPS*GOODS*LOADOUTS*BASES*MARKETS*WEAPONMODDB*GROUPS*";

constexpr std::string_view kLineWhite = " \t\r\n";

std::string Text(std::string_view bytes) {
  return FromWindows1252(bytes);
}

std::string TextValue(const BlockText& block, std::string_view upperKey) {
  return Text(block.Value(upperKey));
}

// A key of a block and the field that takes it.
struct KeyField {
  std::string_view Key;
  std::string_view FieldName;
};

void AssignTexts(Recordset& row, const BlockText& block, std::initializer_list<KeyField> keys) {
  for (const auto& [key, field] : keys) row[field] = TextValue(block, key);
}

void AssignNumbers(Recordset& row, const BlockText& block, std::initializer_list<KeyField> keys) {
  for (const auto& [key, field] : keys) row[field] = Val(block.Value(key));
}

std::string WholeText(double number) {
  if (!std::isfinite(number)) throw RuntimeFailure(failure_number::kOverflow);
  return FormatWhole(number);
}

// The map cell of a system: its column plus 1 and its row plus 2.
std::string MapCellText(std::string_view pos) {
  return WholeText(Val(RequireBeforeComma(pos)) + 1) + ", " +
         WholeText(Val(RequireBehindComma(pos)) + 2);
}

// Numbers at the start of a text and behind each further comma; 0 where none is left.
std::array<double, 3> ThreeNumbers(std::string_view text) {
  std::array<double, 3> numbers{};
  for (double& number : numbers) {
    number = Val(text);
    text = CutAtComma(text).Behind;
  }
  return numbers;
}

std::string_view TrimBlanksAndTabs(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

}  // namespace

KnownSections::KnownSections(Import& import, ReaderRoutine& routine, std::string systemNickname)
    : import_(import), routine_(routine), systemNickname_(std::move(systemNickname)) {
  Database& universe = import.Target.DB;
  commodity_ = universe.OpenTable(routine, "commodity");
  objects_ = universe.OpenTable(routine, "Objects");
  goods_ = universe.OpenTable(routine, "Goods");
  packages_ = universe.OpenTable(routine, "Packages");
  baseGoods_ = universe.OpenTable(routine, "BaseGoods");
  hardpoints_ = universe.OpenTable(routine, "Ships_Hardpoints");
  loadoutCargo_ = universe.OpenTable(routine, "Loadout_Cargo");
  npcs_ = universe.OpenTable(routine, "GF_NPC");
  groups_ = universe.OpenTable(routine, "Groups");
  ships_ = universe.OpenTable(routine, "ships");
}

bool KnownSections::Read(const std::string& block) {
  struct Kind {
    std::string_view Header;
    void (KnownSections::*Read)(BlockText);
  };
  static constexpr std::array<Kind, 12> kKinds = {{
      {"[SYSTEM]", &KnownSections::ReadSystem},
      {"[COMMODITY]", &KnownSections::ReadCommodity},
      {"[OBJECT]", &KnownSections::ReadObject},
      {"[GOOD]", &KnownSections::ReadGood},
      {"[BASEGOOD]", &KnownSections::ReadBaseGood},
      {"[RESOURCES]", &KnownSections::ReadResources},
      {"[DATA]", &KnownSections::ReadData},
      {"[MBASE]", &KnownSections::ReadMBase},
      {"[GF_NPC]", &KnownSections::ReadNPC},
      {"[GROUP]", &KnownSections::ReadGroup},
      {"[SHIP]", &KnownSections::ReadShip},
      {"[LOADOUT]", &KnownSections::ReadLoadout},
  }};
  constexpr std::size_t longestHeader = 12;
  const std::string start = UpperAscii(std::string_view(block).substr(0, longestHeader));
  for (const Kind& kind : kKinds) {
    if (!start.starts_with(kind.Header)) continue;
    (this->*kind.Read)(BlockText(block));
    return true;
  }
  return false;
}

void KnownSections::AssignRealName(Recordset& row, std::string_view numberField) {
  routine_.Try([&] {
    row["realname"] = GetName(import_.Target, row[numberField].RequireLong(),
                              row["nickname"].RequireText());
  });
}

void KnownSections::ReadSystem(BlockText block) {
  Recordset systems = import_.Target.DB.OpenTable(routine_, "Systems");
  routine_.AddNew(systems, RetryState::Systems);
  AssignTexts(systems, block, {{"NICKNAME", "nickname"}, {"FILE", "file"}, {"POS", "pos_original"}});
  routine_.Try([&] { systems["pos"] = MapCellText(block.Value("POS")); });
  AssignNumbers(systems, block, {{"STRID_NAME", "stridname"}});
  AssignTexts(systems, block, {{"NAVMAPSCALE", "navmapscale"}});
  AssignRealName(systems, "stridname");
  systems.Update();
  ++import_.Progress.ImportSteps;
}

void KnownSections::ReadCommodity(BlockText block) {
  routine_.AddNew(commodity_, RetryState::Commodity);
  AssignTexts(commodity_, block, {{"NICKNAME", "nickname"}});
  AssignNumbers(commodity_, block, {{"IDS_NAME", "ids_name"}, {"IDS_INFO", "ids_info"}});
  AssignRealName(commodity_, "ids_name");
  AssignNumbers(commodity_, block,
                {{"UNITS_PER_CONTAINER", "units_per_container"},
                 {"DECAY_PER_SECOND", "decay_per_second"},
                 {"VOLUME", "volume"}});
  commodity_.Update();
}

void KnownSections::ReadObject(BlockText block) {
  routine_.AddNew(objects_, RetryState::Objects);
  AssignTexts(objects_, block, {{"NICKNAME", "nickname"}, {"POS", "pos"}});
  AssignNumbers(objects_, block, {{"IDS_NAME", "ids_name"}, {"IDS_INFO", "ids_info"}});
  AssignTexts(objects_, block,
              {{"ARCHETYPE", "archetype"},
               {"JUMP_EFFECT", "jump_effect"},
               {"REPUTATION", "reputation"},
               {"DIFFICULTY_LEVEL", "difficulty_level"},
               {"GOTO", "goto"},
               {"DOCK_WITH", "dock_with"},
               {"LOADOUT", "loadout"}});
  objects_["sys_nick"] = systemNickname_;
  AssignRealName(objects_, "ids_name");
  AssignTexts(objects_, block, {{"PREV_RING", "prev_ring"}, {"NEXT_RING", "next_ring"}});
  AssignNumbers(objects_, block, {{"TRADELANE_SPACE_NAME", "tradelane_space_name"}});
  routine_.Try([&] {
    objects_["realspacename"] =
        GetName(import_.Target, objects_["tradelane_space_name"].RequireLong(), "");
  });
  objects_.Update();
}

void KnownSections::ReadGood(BlockText block) {
  const std::string category = TextValue(block, "CATEGORY");
  const std::string nickname = TextValue(block, "NICKNAME");
  const std::string hull = TextValue(block, "HULL");
  routine_.AddNew(goods_, RetryState::Goods);
  goods_["category"] = category;
  goods_["nickname"] = nickname;
  AssignTexts(goods_, block, {{"EQUIPMENT", "equipment"}, {"MSG_ID_PREFIX", "msg_id_prefix"}});
  AssignNumbers(goods_, block, {{"PRICE", "price"}});
  routine_.Try([&] {
    const auto number = ToLong(Val(block.Value("IDS_NAME")));
    if (!number) throw RuntimeFailure(failure_number::kOverflow);
    goods_["realname"] = GetName(import_.Target, *number, nickname);
  });
  AssignNumbers(goods_, block, {{"IDS_INFO", "ids_info"}});
  AssignTexts(goods_, block, {{"SHIP", "ship"}});
  goods_["hull"] = hull;
  AssignTexts(goods_, block, {{"FREE_AMMO", "free_ammo"}});
  if (Ucase(category) == "COMMODITY") {
    AssignCommodityName(nickname, TextValue(block, "EQUIPMENT"));
  }
  goods_.Update();
  if (category == "ship" && !hull.empty()) ReadAddons(std::move(block), nickname);
}

void KnownSections::AssignCommodityName(const std::string& nickname, const std::string& equipment) {
  constexpr std::size_t prefix = std::string_view("commodity_").size();
  Recordset found = import_.Target.DB.OpenRecordset(
      routine_, "SELECT * FROM commodity WHERE ucase(nickname) ='{}'", {Ucase(nickname)});
  if (found.AtEnd()) {
    const std::string_view front = Left(equipment, prefix);
    goods_["realname"] = Trim(std::string_view(equipment).substr(front.size()));
  } else {
    goods_["realname"] = found["realname"].Get();
  }
}

// The cut behind an add-on counts two characters less than its usual line has, so that the end of
// the block may give one more row, without a nickname.
void KnownSections::ReadAddons(BlockText block, const std::string& package) {
  constexpr std::size_t shortestRest = 3;
  constexpr std::size_t keyAndSign = std::string_view("addon=").size();
  while (block.Size() > shortestRest) {
    routine_.AddNew(packages_, RetryState::Packages);
    const std::string_view value = block.Value("ADDON");
    block.Cut(block.Find("ADDON").value_or(0));
    packages_["PackageName"] = package;
    const CommaCut name = CutAtComma(value);
    packages_["NickName"] = Text(Trim(name.Before));
    if (name.Found) {
      const CommaCut hardpoint = CutAtComma(name.Behind);
      packages_["HardPoint"] = Text(Trim(hardpoint.Before));
      if (hardpoint.Found) packages_["Val"] = Val(hardpoint.Behind);
    }
    block.Cut(value.size() + keyAndSign);
    packages_.Update();
  }
}

void KnownSections::ReadBaseGood(BlockText block) {
  constexpr std::string_view word = "MARKETGOOD";
  constexpr std::size_t keyAndSign = word.size() + 1;
  const std::string base = TextValue(block, "BASE");
  while (const auto place = block.Find(word)) {
    const std::string_view value = block.Value(word);
    block.Cut(*place);
    routine_.AddNew(baseGoods_, RetryState::BaseGoods);
    baseGoods_["Base"] = base;
    const CommaCut good = CutAtComma(value);
    baseGoods_["GoodNick"] = Text(Trim(good.Before));
    std::string_view rest = good.Behind;
    for (const char* field : {"val1", "val2", "val3", "val4", "val5", "val6"}) {
      baseGoods_[field] = good.Found ? Val(rest) : 0.0;
      if (const CommaCut next = CutAtComma(rest); next.Found) rest = next.Behind;
    }
    routine_.SetCurrentLine(value);
    block.Cut(value.size() + keyAndSign);
    baseGoods_.Update();
  }
}

void KnownSections::ReadResources(BlockText block) {
  Recordset resources = import_.Target.DB.OpenTable(routine_, "resources");
  while (const auto place = block.Find("DLL =")) {
    routine_.AddNew(resources, RetryState::Resources);
    block.Cut(*place);
    const std::string_view value = block.Value("DLL");
    block.Cut(value.size());
    resources["DLL"] = Text(Trim(value.substr(0, value.find(';'))));
    resources.Update();
    if (value.empty()) return;  // nothing was cut: the same line would come for ever
  }
}

void KnownSections::ReadData(BlockText block) {
  Recordset dataFiles = import_.Target.DB.OpenTable(routine_, "DataFiles");
  std::string_view rest = block.Text();
  while (!rest.empty()) {
    const std::size_t end = rest.find('\r');
    const std::string_view line = TrimBlanksAndTabs(rest.substr(0, end));
    rest = end == std::string_view::npos || end + 2 > rest.size() ? std::string_view()
                                                                  : rest.substr(end + 2);
    if (!line.empty() && line.front() != ';') ReadDataLine(dataFiles, line);
  }
}

void KnownSections::ReadDataLine(Recordset& dataFiles, std::string_view line) {
  const std::size_t sign = line.find('=');
  const bool hasSign = sign != std::string_view::npos;
  if (!hasSign && !UpperAscii(line).starts_with("BASES")) return;
  std::string_view key = line;
  std::string_view value;
  if (hasSign) {
    const std::string_view before = Trim(line.substr(0, sign));
    key = TrimBlanksAndTabs(before);
    value = Trim(GetINIValue(line, before));
    value = value.substr(0, value.find(';'));
    routine_.Try([&] {
      // An empty value has no last character to look at.
      const std::size_t last = value.find_last_not_of(kLineWhite);
      value = last == std::string_view::npos ? std::string_view() : value.substr(0, last + 1);
      if (value.empty()) throw RuntimeFailure(failure_number::kInvalidProcedureCall);
    });
  }
  if (!Contains(kDataKinds, "*" + Ucase(Text(key)) + "*")) return;
  routine_.AddNew(dataFiles, RetryState::DataFiles);
  dataFiles["type"] = Text(key);
  dataFiles["pathfile"] = Text(value);
  dataFiles.Update();
  ++import_.Progress.ImportSteps;
}

void KnownSections::ReadMBase(BlockText block) {
  lastBase_ = TextValue(block, "NICKNAME");
}

void KnownSections::ReadNPC(BlockText block) {
  constexpr std::size_t keyAndSign = std::string_view("bribe=  ").size();
  const std::string nickname = TextValue(block, "NICKNAME");
  const double individualName = Val(block.Value("INDIVIDUAL_NAME"));
  const std::string affiliation = TextValue(block, "AFFILIATION");
  while (const auto place = block.Find("BRIBE")) {
    const std::string_view value = block.Value("BRIBE");
    block.Cut(*place);
    routine_.AddNew(npcs_, RetryState::GF_NPC);
    npcs_["BaseNick"] = lastBase_;
    npcs_["NickName"] = nickname;
    npcs_["individual_name"] = individualName;
    npcs_["affiliation"] = affiliation;
    routine_.Try([&] { npcs_["bribe"] = Text(Trim(RequireBeforeComma(value))); });
    const auto numbers = ThreeNumbers(value);
    npcs_["bribe_2"] = numbers[1];
    npcs_["bribe_3"] = numbers[2];
    block.Cut(value.size() + keyAndSign);
    npcs_.Update();
  }
}

void KnownSections::ReadGroup(BlockText block) {
  routine_.AddNew(groups_, RetryState::Groups);
  AssignTexts(groups_, block, {{"NICKNAME", "NickName"}});
  AssignNumbers(groups_, block,
                {{"IDS_NAME", "ids_name"},
                 {"IDS_INFO", "ids_info"},
                 {"IDS_SHORT_NAME", "ids_short_name"}});
  groups_.Update();
}

void KnownSections::ReadShip(BlockText block) {
  routine_.AddNew(ships_, RetryState::Ships);
  AssignTexts(ships_, block, {{"NICKNAME", "NickName"}});
  AssignNumbers(ships_, block, {{"IDS_NAME", "ids_name"}});
  AssignRealName(ships_, "ids_name");
  AssignNumbers(ships_, block,
                {{"IDS_INFO", "ids_info"},
                 {"IDS_INFO1", "ids_info1"},
                 {"IDS_INFO2", "ids_info2"},
                 {"IDS_INFO3", "ids_info3"},
                 {"SHIP_CLASS", "ship_class"},
                 {"HOLD_SIZE", "hold_size"},
                 {"NANOBOT_LIMIT", "nanobot_limit"},
                 {"SHIELD_BATTERY_LIMIT", "shield_battery_limit"},
                 {"HIT_PTS", "hit_pts"}});
  AssignTexts(ships_, block, {{"TYPE", "Type"}});
  AssignNumbers(ships_, block,
                {{"MASS", "mass"},
                 {"LINEAR_DRAG", "linear_drag"},
                 {"MAX_BANK_ANGEL", "max_bank_angel"}});
  for (const auto& [key, field] : {KeyField{"STEERING_TORQUE", "steering"},
                                   KeyField{"ANGULAR_DRAG", "angular"},
                                   KeyField{"ROTATION_INERTIA", "rotation"}}) {
    const auto numbers = ThreeNumbers(block.Value(key));
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      ships_[std::string(field) + std::to_string(i + 1)] = numbers[i];
    }
  }
  AssignNumbers(ships_, block,
                {{"NUDGE_FORCE", "nudge_force"},
                 {"STRAFE_FORCE", "strafe_force"},
                 {"STRAFE_POWER_USAGE", "strafe_power_usage"}});
  ReadHardpoints(block, TextValue(block, "NICKNAME"));
  ships_.Update();
}

void KnownSections::ReadHardpoints(BlockText block, const std::string& ship) {
  constexpr std::string_view key = "hp_type =";
  while (const auto place = block.FindExact(key)) {
    block.Cut(*place);
    const std::string_view value = block.Value("HP_TYPE");
    routine_.SetCurrentLine(value);
    routine_.AddNew(hardpoints_, RetryState::Ships_Hardpoints);
    hardpoints_["NickName"] = ship;
    routine_.Try([&] { hardpoints_["EquipType"] = Text(Trim(RequireBeforeComma(value))); });
    const CommaCut cut = CutAtComma(value);
    hardpoints_["HardPoints"] = Text(Trim(cut.Found ? cut.Behind : cut.Before));
    hardpoints_.Update();
    block.Cut(value.size() + key.size());
  }
}

void KnownSections::ReadLoadout(BlockText block) {
  constexpr std::string_view cargo = "CARGO =";
  constexpr std::string_view cargoTight = "CARGO=";
  constexpr std::string_view equip = "EQUIP =";
  constexpr std::string_view equipTight = "EQUIP=";
  const std::string nickname = TextValue(block, "NICKNAME");
  BlockText copy = block;
  for (auto place = block.Find(cargo); place || block.Holds(cargoTight);
       place = block.Find(cargo)) {
    routine_.AddNew(loadoutCargo_, RetryState::Loadout_Cargo_Cargo);
    loadoutCargo_["NickName"] = nickname;
    const CommaCut value = CutAtComma(block.Value("CARGO"));
    loadoutCargo_["Cargo"] = Text(Trim(value.Before));
    if (value.Found) loadoutCargo_["Count"] = Val(value.Behind);
    loadoutCargo_.Update();
    block.Cut(place ? *place + cargo.size() : *block.Find(cargoTight) + cargoTight.size());
  }
  for (auto place = copy.Find(equip); place || copy.Holds(equipTight); place = copy.Find(equip)) {
    routine_.AddNew(loadoutCargo_, RetryState::Loadout_Cargo_Equip);
    loadoutCargo_["NickName"] = nickname;
    loadoutCargo_["Cargo"] = Text(Trim(CutAtComma(copy.Value("EQUIP")).Before));
    loadoutCargo_["Count"] = 1;
    loadoutCargo_.Update();
    // Only the form with the blank is cut away; the other is read until it is used up, character
    // by character of the sign's length.
    copy.Cut(place ? *place + 1 + equip.size() : equip.size());
  }
}

}  // namespace orrerix
