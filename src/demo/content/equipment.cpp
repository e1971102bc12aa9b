// SPDX-License-Identifier: MIT
#include "demo/content/equipment.h"

#include <array>
#include <cassert>
#include <cstddef>
#include <string_view>

#include <fmt/core.h>

namespace orrerix::demo {

const std::vector<GunLine>& GunLines() {
  static const std::vector<GunLine> lines = {
      {"vo_gun_hail", "Hailstone", 0, 34, 0, 0.25, 600, 1.0, 12, 480, "W_Slug",
       "A slug thrower of the old school. It is loud, cheap and mended with a hammer."},
      {"vo_gun_anvil", "Anvil Cannon", 0, 92, 0, 0.5, 480, 1.25, 34, 2100, "W_Slug",
       "Made for gunners who aim once. The recoil is part of the steering."},
      {"ca_gun_lark", "Alouette", 1, 27, 0, 0.12, 750, 0.8, 9, 620, "W_Light",
       "Short bursts of hard light, tuned by ear. The barrel is engraved even where no one looks."},
      {"ca_gun_halo", "Halo Lamp", 1, 8, 58, 0.33, 700, 0.9, 28, 2900, "W_Ion",
       "It strips a shield as a cook skins a peach, and leaves the hull to others."},
      {"ta_gun_sirocco", "Sirocco", 2, 41, 0, 0.2, 640, 0.95, 17, 1150, "W_Light",
       "A hot, dry stream of sparks. Dominion pilots fire it in passing and do not turn round."},
      {"ta_gun_spur", "Spur", 2, 22, 12, 0.15, 720, 0.85, 13, 980, "W_Ion",
       "Half light and half lightning, mounted close to the cockpit so that the pilot can feel "
       "it."},
      {"is_gun_stylus", "Stylus", 3, 31, 0, 0.14, 820, 0.9, 15, 1480, "W_Light",
       "Fine as a pen and as final. The Scribes calibrate each one against a printed page."},
      {"is_gun_censer", "Censer", 3, 0.5, 84, 0.5, 560, 1.2, 36, 3600, "W_Ion",
       "A drifting cloud of charge that clings to shields. The smell of incense is said to be an "
       "accident."},
  };
  return lines;
}

const std::vector<Launcher>& Launchers() {
  static const std::vector<Launcher> launchers = {
      {"missile_heron", "Heron Missile", "Gun", "Munition", "hp_gun_special_4", 310, 0, 1.5, 90, 6,
       1900, 30, 12, "A patient missile on long wings. It circles back if the first pass fails."},
      {"missile_wasp", "Wasp Swarm", "Gun", "Munition", "hp_gun_special_2", 120, 90, 0.8, 140, 4,
       2600, 18, 24, "Small, angry and sold by the dozen. They go for the shield first."},
      {"torpedo_maul", "Maul Torpedo", "Gun", "Munition", "hp_torpedo_special_1", 2400, 0, 4, 55, 9,
       9400, 260, 0,
       "Meant for hulls that cannot dodge. Buy the racks, then save for the first shot."},
      {"mine_burr", "Burr Mine", "MineDropper", "Mine", "hp_mine_dropper", 540, 0, 1, 20, 20, 1300,
       22, 15,
       "A ball of hooks that waits. Patrols ask you politely to collect what you did not use."},
      {"cm_chaff", "Tinsel Dropper", "CounterMeasureDropper", "CounterMeasure",
       "hp_countermeasure_dropper", 0, 0, 0.5, 15, 3, 400, 4, 20,
       "Bright strips that missiles like better than you."},
  };
  return launchers;
}

const std::vector<ShieldLine>& ShieldLines() {
  static const std::vector<ShieldLine> lines = {
      {"shield_rime", "Rime Mantle", "S_Frost", 0, 820, 18.5, 120, 1500,
       "It sets slowly and holds long, like the ice that it is named after."},
      {"shield_silk", "Silk Screen", "S_Weave", 1, 610, 27.25, 150, 1900,
       "A thin field that mends itself between two breaths."},
      {"shield_dune", "Dune Wall", "S_Sand", 2, 740, 21, 135, 1650,
       "Grains of charge in a magnetic wind. Shots sink in and stay there."},
      {"shield_script", "Written Ward", "S_Glyph", 3, 690, 24.75, 160, 2300,
       "The pattern of the field is a text. What it says is not part of the manual."},
  };
  return lines;
}

const std::vector<Device>& Devices() {
  static const std::vector<Device> devices = {
      {"Engine",
       "engine_oxcart",
       "Oxcart Drive",
       0,
       {{"mass", "10"}, {"max_force", "48000"}, {"linear_drag", "600"}, {"power_usage", "0"}},
       "It came with the ship and will go with it."},
      {"Engine",
       "engine_courser",
       "Courser Drive",
       1200,
       {{"mass", "10"}, {"max_force", "51000"}, {"linear_drag", "600"}, {"power_usage", "0"}},
       "A drive for people with somewhere to be."},
      {"Engine",
       "engine_barge",
       "Barge Drive",
       900,
       {{"mass", "18"}, {"max_force", "72000"}, {"linear_drag", "600"}, {"power_usage", "0"}},
       "Built to push freight. It knows one speed and is proud of it."},
      {"Thruster",
       "thruster_spark",
       "Spark Thruster",
       600,
       {{"max_force", "57600"}, {"power_usage", "150"}, {"hp_particles", "hpthrust"}},
       "A short kick, then a long wait."},
      {"Thruster",
       "thruster_blaze",
       "Blaze Thruster",
       2400,
       {{"max_force", "72000"}, {"power_usage", "165"}, {"hp_particles", "hpthrust"}},
       "Pilots lean forward when they press the key. The ship does so too."},
      {"Tractor",
       "tractor_line",
       "Line and Hook",
       500,
       {{"max_length", "1500"}, {"reach_speed", "500"}},
       "Brings in cargo that nobody holds any longer."},
      {"Scanner",
       "scanner_ear",
       "Long Ear",
       700,
       {{"range", "2500"}, {"cargo_scan_range", "1500"}},
       "Listens for hulls and counts what they carry."},
      {"Power",
       "power_kiln",
       "Kiln Core",
       0,
       {{"capacity", "1000"}, {"charge_rate", "150"}, {"thrust_capacity", "1000"}},
       "A small reactor with a door that is better left shut."},
      {"Power",
       "power_forge",
       "Forge Core",
       3100,
       {{"capacity", "2400"}, {"charge_rate", "290"}, {"thrust_capacity", "1000"}},
       "Feeds six guns at once, and warms the cabin doing it."},
      {"RepairKit",
       "supply_nanobots",
       "Mending Mites",
       45,
       {{"hit_pts", "600"}, {"loot_appearance", "lootcrate_mites"}},
       "A tin of tiny workers who close holes. Do not shake."},
      {"ShieldBattery",
       "supply_battery",
       "Shield Flask",
       60,
       {{"hit_pts", "300"}, {"loot_appearance", "lootcrate_flask"}},
       "A charge in a bottle, for shields that have had enough."},
  };
  return devices;
}

std::string MarkNickname(const std::string& stem, int mark) {
  return fmt::format("{}_mark{:02}", stem, mark);
}

std::string MarkName(const std::string& name, int mark) {
  constexpr std::array<std::string_view, 3> numerals = {"I", "II", "III"};
  assert(mark >= 1 && mark <= kMarks);
  return fmt::format("{} Mk {}", name, numerals[static_cast<std::size_t>(mark) - 1]);
}

double MarkFactor(int mark) {
  constexpr std::array<double, 3> factors = {1, 1.5, 2.25};
  assert(mark >= 1 && mark <= kMarks);
  return factors[static_cast<std::size_t>(mark) - 1];
}

}  // namespace orrerix::demo
