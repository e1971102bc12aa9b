// SPDX-License-Identifier: MIT
// Ships with their hardpoints, and loadouts.
#include <string_view>

#include "db/values/number_text.h"
#include "db/values/text.h"
#include "import/ini/ini_text.h"
#include "import/sections/known_sections.h"
#include "import/sections/section_values.h"

namespace orrerix {

void KnownSections::ReadShip(BlockText& block) {
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
  AssignNumbers(
      ships_, block,
      {{"MASS", "mass"}, {"LINEAR_DRAG", "linear_drag"}, {"MAX_BANK_ANGEL", "max_bank_angel"}});
  for (const auto& [key, field] :
       {KeyField{"STEERING_TORQUE", "steering"}, KeyField{"ANGULAR_DRAG", "angular"},
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
  ReadHardpoints(block, TextOr(routine_, block, "NICKNAME"));
  ships_.Update();
}

void KnownSections::ReadHardpoints(BlockText block, const std::string& ship) {
  constexpr std::string_view key = "hp_type =";
  while (const auto place = block.FindExact(key)) {
    block.Cut(*place);
    const std::string_view value = block.Value("HP_TYPE");
    routine_.Try([&] { routine_.SetCurrentLine(value); });
    routine_.AddNew(hardpoints_, RetryState::Ships_Hardpoints);
    hardpoints_["NickName"] = ship;
    hardpoints_["EquipType"] = [&] { return reader_.Utf8(Trim(RequireBeforeComma(value))); };
    const CommaCut cut = CutAtComma(value);
    hardpoints_["HardPoints"] = [&] {
      return reader_.Utf8(Trim(cut.Found ? cut.After : cut.Before));
    };
    hardpoints_.Update();
    block.Cut(value.size() + key.size());
  }
}

void KnownSections::ReadLoadout(BlockText& block) {
  constexpr std::string_view cargo = "CARGO =";
  constexpr std::string_view cargoTight = "CARGO=";
  constexpr std::string_view equip = "EQUIP =";
  constexpr std::string_view equipTight = "EQUIP=";
  const std::string nickname = TextOr(routine_, block, "NICKNAME");
  BlockText copy = block;
  for (auto place = block.Find(cargo); place || block.Holds(cargoTight);
       place = block.Find(cargo)) {
    routine_.AddNew(loadoutCargo_, RetryState::Loadout_Cargo_Cargo);
    loadoutCargo_["NickName"] = nickname;
    const CommaCut value = CutAtComma(block.Value("CARGO"));
    loadoutCargo_["Cargo"] = [&] { return reader_.Utf8(Trim(value.Before)); };
    if (value.Found) loadoutCargo_["Count"] = Val(value.After);
    loadoutCargo_.Update();
    block.Cut(place ? *place + cargo.size() : *block.Find(cargoTight) + cargoTight.size());
  }
  for (auto place = copy.Find(equip); place || copy.Holds(equipTight); place = copy.Find(equip)) {
    routine_.AddNew(loadoutCargo_, RetryState::Loadout_Cargo_Equip);
    loadoutCargo_["NickName"] = nickname;
    loadoutCargo_["Cargo"] = [&] {
      return reader_.Utf8(Trim(CutAtComma(copy.Value("EQUIP")).Before));
    };
    loadoutCargo_["Count"] = 1;
    loadoutCargo_.Update();
    // Only the spelling with a blank is cut away as a whole. The other one is shortened by the
    // length of "equip=" each time, until it is used up.
    copy.Cut(place ? *place + 1 + equip.size() : equip.size());
  }
}

}  // namespace orrerix
