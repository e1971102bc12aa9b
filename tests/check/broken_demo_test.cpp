// SPDX-License-Identifier: MIT
// A whole game, broken in one place at a time: each fault is found at its line.
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "check/check.h"
#include "demo/demo_game.h"
#include "support/temp_folder.h"

namespace orrerix::check {
namespace {

namespace fs = std::filesystem;

struct Fault {
  std::string Rule;
  std::string File;    // below DATA
  std::string Before;  // the first line that reads so
  std::string After;
  int LinesLater = 0;  // from that line to the finding
};

void PrintTo(const Fault& fault, std::ostream* stream) {
  *stream << fault.Rule << ": " << fault.After;
}

std::string Content(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

class BrokenDemo : public ::testing::TestWithParam<Fault> {
 protected:
  void SetUp() override {
    WriteDemoGame(folder.Path() / "game", 5);
    NameOnlyWhatIsThere();
  }

  // "file:line rule" of all findings.
  std::set<std::string> Findings() {
    CheckOptions options;
    options.Game = folder.Path() / "game";
    std::set<std::string> found;
    for (const Finding& finding : RunCheck(options).Findings) {
      found.insert(fmt::format("{}:{} {}", finding.File, finding.Line, finding.Rule));
    }
    return found;
  }

  // Changes the line; gives its number.
  int Break(const Fault& fault) {
    const fs::path path = folder.Path() / "game/DATA" / fault.File;
    std::string text = "\n" + Content(path);
    std::string line = "\n" + fault.Before + "\r\n";
    std::size_t at = text.find(line);
    if (at == std::string::npos) at = text.find(line = "\n" + fault.Before + "\n");
    if (at == std::string::npos) return 0;
    text.replace(at + 1, fault.Before.size(), fault.After);
    folder.Write("game/DATA/" + fault.File, text.substr(1));
    return static_cast<int>(
        std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at) + 1, '\n'));
  }

  TempFolder folder;

 private:
  // The demo leaves out files that only the game itself reads.
  void NameOnlyWhatIsThere() {
    std::string configuration = Content(folder.Path() / "game/EXE/freelancer.ini");
    for (const std::string line : {"solar = solar\\solararch.ini",
                                   "goods = equipment\\lost_good.ini", "fuses = fx\\fuse.ini"}) {
      const std::size_t at = configuration.find(line);
      ASSERT_NE(at, std::string::npos) << line;
      configuration.insert(at, ";");
    }
    folder.Write("game/EXE/freelancer.ini", configuration);
  }
};

TEST_P(BrokenDemo, IsFoundAtItsLine) {
  const Fault& fault = GetParam();
  const auto before = Findings();

  const int line = Break(fault);

  ASSERT_GT(line, 0) << "no such line: " << fault.Before;
  const std::string wanted =
      fmt::format("DATA/{}:{} {}", fault.File, line + fault.LinesLater, fault.Rule);
  EXPECT_THAT(before, ::testing::Not(::testing::Contains(wanted)));
  EXPECT_THAT(Findings(), ::testing::Contains(wanted));
}

const char* const kGoods = "EQUIPMENT/goods.ini";
const char* const kMarket = "EQUIPMENT/market_misc.ini";
const char* const kWeapons = "EQUIPMENT/weapon_equip.ini";
const char* const kShips = "SHIPS/shiparch.ini";
const char* const kPeople = "MISSIONS/mbases.ini";
const char* const kUniverse = "UNIVERSE/universe.ini";
const char* const kLoadouts = "SHIPS/loadouts.ini";
const char* const kSystem = "UNIVERSE/SYSTEMS/VO01/vo01.ini";

INSTANTIATE_TEST_SUITE_P(
    InManyWays, BrokenDemo,
    ::testing::Values(
        Fault{"good-part", kGoods, "equipment = commodity_water", "equipment = commodity_watr"},
        Fault{"key-misspelt", kGoods, "category = commodity", "categry = commodity"},
        Fault{"text-before-section", kGoods, "[Good]", "price = 5\n[Good]"},
        Fault{"forgotten-header", kGoods, "jump_dist = 7", "nickname = another"},
        Fault{"missing-comma", kMarket, "MarketGood = shield_rime_mark01, 0, -1, 10, 10, 0, 1",
              "MarketGood = shield_rime_mark01, 0 -1, 10, 10, 0, 1"},
        Fault{"market-good", kMarket, "MarketGood = shield_rime_mark01, 0, -1, 10, 10, 0, 1",
              "MarketGood = shield_rime_mark99, 0, -1, 10, 10, 0, 1"},
        Fault{"market-base", kMarket, "base = vo01_01_base", "base = vo01_99_base"},
        Fault{"number-range", kWeapons, "refire_delay = 0.25", "refire_delay = 0"},
        Fault{"equipment-part", kWeapons, "projectile_archetype = vo_gun_hail_mark01_shot",
              "projectile_archetype = vo_gun_hail_mark01_shoot"},
        Fault{"number-expected", kShips, "mass = 96", "mass = heavy"},
        Fault{"no-equals", kShips, "hold_size = 20", "hold_size 20"},
        Fault{"bad-header", kShips, "[Ship]", "[Ship"},
        Fault{"value-count", kShips, "steering_torque = 21000, 21000, 39900",
              "steering_torque = 21000, 21000"},
        Fault{"key-duplicate", kShips, "mass = 96", "mass = 96\nMass = 97", 1},
        // Five libraries: the highest number is 6 * 65536 - 1.
        Fault{"text-library", kShips, "ids_name = 196693", "ids_name = 393216"},
        Fault{"text-missing", kShips, "ids_name = 196693", "ids_name = 262000"},
        Fault{"mbase-base", kPeople, "nickname = vo01_01_base", "nickname = vo01_99_base"},
        Fault{"mbase-part", kPeople, "npc = vo01_01_person_001", "npc = nobody"},
        Fault{"faction-unknown", kPeople, "local_faction = vo_lane_grp", "local_faction = lane"},
        Fault{"base-system", kUniverse, "system = vo01", "system = vo99"},
        Fault{"nickname-duplicate", kUniverse, "nickname = vo01_02_base",
              "nickname = vo01_01_base"},
        Fault{"name-missing", kUniverse, "strid_name = 65537", "strid_name = 0"},
        Fault{"loadout-item", kLoadouts, "equip = engine_courser", "equip = engine_curser"},
        Fault{"hardpoint-twice", kLoadouts, "equip = vo_gun_hail_mark01, HpWeapon02",
              "equip = vo_gun_hail_mark01, HpWeapon01"},
        Fault{"lane-broken", kSystem, "next_ring = vo01_trade_lane_ring_2",
              "next_ring = vo01_trade_lane_ring_22"}));

}  // namespace
}  // namespace orrerix::check
