// SPDX-License-Identifier: MIT
#include "import/sections/known_sections.h"

#include <array>
#include <cmath>
#include <string_view>

#include "db/values/number_text.h"
#include "db/values/text.h"
#include "import/ini/ini_text.h"
#include "import/resources/resource_strings.h"
#include "import/sections/section_values.h"

namespace orrerix {
namespace {

// Kinds of data files that the import reads, each between two stars.
constexpr std::string_view kDataKinds =
    "*EQUIPMENT*SHIPS*GOODS*LOADOUTS*BASES*MARKETS*WEAPONMODDB*GROUPS*";

bool IsReadKind(std::string_view kind) {
  return Contains(kDataKinds, "*" + Ucase(Text(kind)) + "*");
}

constexpr std::string_view kLineWhite = " \t\r\n";

std::string WholeText(double number) {
  if (!std::isfinite(number)) throw RuntimeFailure(failure_number::kOverflow);
  return FormatWhole(number);
}

// The map cell of a system: its column plus 1 and its row plus 2.
std::string MapCellText(std::string_view pos) {
  return WholeText(Val(RequireBeforeComma(pos)) + 1) + ", " +
         WholeText(Val(RequireAfterComma(pos)) + 2);
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

bool KnownSections::Read(std::string_view block) {
  struct Kind {
    std::string_view Header;
    void (KnownSections::*Read)(BlockText&);
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
  const std::string start = UpperAscii(block.substr(0, longestHeader));
  for (const Kind& kind : kKinds) {
    constexpr std::size_t letter = 1;  // most sections are of another kind: one look tells
    if (start.size() <= letter || start[letter] != kind.Header[letter]) continue;
    if (!start.starts_with(kind.Header)) continue;
    BlockText text(block);
    (this->*kind.Read)(text);
    return true;
  }
  return false;
}

void KnownSections::AssignRealName(Recordset& row, std::string_view numberField) {
  row["realname"] = [&] {
    return GetName(import_.Target, row[numberField].RequireLong(), row["nickname"].RequireText());
  };
}

void KnownSections::ReadSystem(BlockText& block) {
  Recordset systems = import_.Target.DB.OpenTable(routine_, "Systems");
  routine_.AddNew(systems, RetryState::Systems);
  AssignTexts(systems, block,
              {{"NICKNAME", "nickname"}, {"FILE", "file"}, {"POS", "pos_original"}});
  systems["pos"] = [&] { return MapCellText(block.Value("POS")); };
  AssignNumbers(systems, block, {{"STRID_NAME", "stridname"}});
  AssignTexts(systems, block, {{"NAVMAPSCALE", "navmapscale"}});
  AssignRealName(systems, "stridname");
  systems.Update();
  import_.AddSteps(routine_, 1);
}

void KnownSections::ReadObject(BlockText& block) {
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
  objects_["realspacename"] = [&] {
    return GetName(import_.Target, objects_["tradelane_space_name"].RequireLong(), "");
  };
  objects_.Update();
}

void KnownSections::ReadResources(BlockText& block) {
  Recordset resources = import_.Target.DB.OpenTable(routine_, "resources");
  while (const auto place = block.Find("DLL =")) {
    routine_.AddNew(resources, RetryState::Resources);
    block.Cut(*place);
    const std::string_view value = block.Value("DLL");
    block.Cut(value.size());
    resources["DLL"] = [&] { return reader_.Utf8(Trim(value.substr(0, value.find(';')))); };
    resources.Update();
    if (value.empty()) return;  // nothing was cut: the same line would come for ever
  }
}

void KnownSections::ReadData(BlockText& block) {
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
  if (!routine_.Or(false, [&] { return IsReadKind(key); })) return;
  routine_.AddNew(dataFiles, RetryState::DataFiles);
  dataFiles["type"] = [&] { return reader_.Utf8(key); };
  dataFiles["pathfile"] = [&] { return reader_.Utf8(value); };
  dataFiles.Update();
  import_.AddSteps(routine_, 1);
}

void KnownSections::ReadMBase(BlockText& block) {
  routine_.Try([&] { lastBase_ = TextValue(block, "NICKNAME"); });
}

void KnownSections::ReadNPC(BlockText& block) {
  constexpr std::size_t keyAndSign = std::string_view("bribe=  ").size();
  const std::string nickname = TextOr(routine_, block, "NICKNAME");
  const double individualName = Val(block.Value("INDIVIDUAL_NAME"));
  const std::string affiliation = TextOr(routine_, block, "AFFILIATION");
  while (const auto place = block.Find("BRIBE")) {
    const std::string_view value = block.Value("BRIBE");
    block.Cut(*place);
    routine_.AddNew(npcs_, RetryState::GF_NPC);
    npcs_["BaseNick"] = lastBase_;
    npcs_["NickName"] = nickname;
    npcs_["individual_name"] = individualName;
    npcs_["affiliation"] = affiliation;
    npcs_["bribe"] = [&] { return reader_.Utf8(Trim(RequireBeforeComma(value))); };
    const auto numbers = ThreeNumbers(value);
    npcs_["bribe_2"] = numbers[1];
    npcs_["bribe_3"] = numbers[2];
    block.Cut(value.size() + keyAndSign);
    npcs_.Update();
  }
}

void KnownSections::ReadGroup(BlockText& block) {
  routine_.AddNew(groups_, RetryState::Groups);
  AssignTexts(groups_, block, {{"NICKNAME", "NickName"}});
  AssignNumbers(
      groups_, block,
      {{"IDS_NAME", "ids_name"}, {"IDS_INFO", "ids_info"}, {"IDS_SHORT_NAME", "ids_short_name"}});
  groups_.Update();
}

}  // namespace orrerix
