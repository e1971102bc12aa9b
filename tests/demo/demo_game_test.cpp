// SPDX-License-Identifier: MIT
#include "demo/demo_game.h"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orrerix {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

// A folder of its own for each test, gone afterwards.
class DemoGame : public testing::Test {
 protected:
  DemoGame() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    root_ = std::filesystem::path(testing::TempDir()) / "demo_game_test" / test->name();
    std::filesystem::remove_all(root_);
    std::filesystem::create_directories(root_);
  }
  ~DemoGame() override { std::filesystem::remove_all(root_); }

  std::filesystem::path Folder(std::string_view name) const { return root_ / name; }

  static std::string Read(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream) << file;
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  }

  static std::map<std::string, std::string> AllFiles(const std::filesystem::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
      if (!entry.is_regular_file()) continue;
      files[entry.path().lexically_relative(folder).generic_string()] = Read(entry.path());
    }
    return files;
  }

  static std::string AllSystems(const std::filesystem::path& folder) {
    std::string text;
    for (const auto& [path, bytes] : AllFiles(folder)) {
      if (path.starts_with("DATA/UNIVERSE/SYSTEMS/")) text += bytes;
    }
    return text;
  }

  static int Count(std::string_view text, std::string_view part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1)) ++count;
    return count;
  }

 private:
  std::filesystem::path root_;
};

TEST_F(DemoGame, TheSameCountGivesTheSameBytes) {
  WriteDemoGame(Folder("a"), 12);
  WriteDemoGame(Folder("b"), 12);

  EXPECT_EQ(AllFiles(Folder("a")), AllFiles(Folder("b")));
}

TEST_F(DemoGame, TheUniverseFileListsEverySystemAndEachHasItsFile) {
  WriteDemoGame(Folder("game"));

  const std::string universe = Read(Folder("game") / "DATA/UNIVERSE/universe.ini");
  EXPECT_EQ(Count(universe, "[system]"), 40);
  std::size_t files = 0;
  for (const auto& [path, bytes] : AllFiles(Folder("game"))) {
    files += path.starts_with("DATA/UNIVERSE/SYSTEMS/") ? 1u : 0u;
  }
  EXPECT_EQ(files, 40u);
}

TEST_F(DemoGame, EveryClassOfObjectThatMapsKnowIsThere) {
  WriteDemoGame(Folder("game"));

  const std::string systems = AllSystems(Folder("game"));
  for (const char* text :
       {"dreadnought", "battleship", "ge_liner", "smallstation", "factory", "space_police",
        "space_mining", "space_port", "depot", "prison_li", "space_shipping", "space_station",
        "trading_outpost", "gasminer", "mining_co", "miningbase", "SECRET_", "docking_ring"}) {
    EXPECT_THAT(systems, HasSubstr(std::string("loadout = ") + text));
  }
}

TEST_F(DemoGame, SomeFilesArePacked) {
  WriteDemoGame(Folder("game"));

  int packedSystems = 0;
  for (const auto& [path, bytes] : AllFiles(Folder("game"))) {
    const bool system = path.starts_with("DATA/UNIVERSE/SYSTEMS/");
    if (system && bytes.starts_with("BINI")) ++packedSystems;
  }
  EXPECT_EQ(packedSystems, 3);
  EXPECT_THAT(Read(Folder("game") / "DATA/EQUIPMENT/ST_equip.ini"), StartsWith("BINI"));
  EXPECT_THAT(Read(Folder("game") / "DATA/EQUIPMENT/market_commodities.ini"), StartsWith("BINI"));
}

TEST_F(DemoGame, ThePlantedFaultsAreThere) {
  WriteDemoGame(Folder("game"));
  const std::filesystem::path data = Folder("game") / "DATA";

  EXPECT_FALSE(std::filesystem::exists(data / "EQUIPMENT/lost_good.ini"));
  EXPECT_THAT(Read(Folder("game") / "EXE/freelancer.ini"), HasSubstr("equipment\\lost_good.ini"));
  EXPECT_EQ(Count(Read(data / "EQUIPMENT/weapon_equip.ini"), "nickname = vo_gun_anvil_mark02\r\n"),
            2);
  EXPECT_THAT(Read(data / "EQUIPMENT/misc_equip.ini"), HasSubstr("charge_rate = 290"));
  EXPECT_THAT(Read(data / "EQUIPMENT/misc_equip.ini"), HasSubstr("charge_rate = 310"));
  const std::string goods = Read(data / "EQUIPMENT/goods.ini");
  EXPECT_THAT(goods, Not(HasSubstr("ship = fw_ghost")));
  EXPECT_THAT(goods, HasSubstr("ship = fw_patchwork"));
  EXPECT_THAT(goods, Not(HasSubstr("hull = fw_patchwork_hull")));
  const std::string first = Read(data / "UNIVERSE/SYSTEMS/VO01/vo01.ini");
  EXPECT_THAT(first, HasSubstr("next_ring = vo01_trade_lane_ring_3"));
  EXPECT_THAT(first, Not(HasSubstr("nickname = vo01_trade_lane_ring_3\r\n")));
  EXPECT_THAT(first, HasSubstr("nickname = vo01_drift_buoy\r\n"));
}

TEST_F(DemoGame, AFolderOfSomethingElseIsRefusedAndLeftAlone) {
  std::filesystem::create_directories(Folder("mine"));
  std::ofstream(Folder("mine") / "diary.txt") << "Dear diary";

  EXPECT_THROW(WriteDemoGame(Folder("mine"), 2), demo::FolderRefused);

  EXPECT_EQ(AllFiles(Folder("mine")).size(), 1u);
  EXPECT_EQ(Read(Folder("mine") / "diary.txt"), "Dear diary");
}

TEST_F(DemoGame, AFileInTheWayIsRefused) {
  std::ofstream(Folder("file")) << "text";

  EXPECT_THROW(WriteDemoGame(Folder("file"), 2), demo::FolderRefused);
}

TEST_F(DemoGame, AnEarlierGameIsReplacedCompletely) {
  WriteDemoGame(Folder("game"), 12);
  WriteDemoGame(Folder("game"), 5);
  WriteDemoGame(Folder("fresh"), 5);

  EXPECT_EQ(AllFiles(Folder("game")), AllFiles(Folder("fresh")));
}

}  // namespace
}  // namespace orrerix
