// SPDX-License-Identifier: MIT
// A lack of memory anywhere in a stage is asked about; on OK the stage goes on with its next step.
#include <functional>
#include <set>

#include <gmock/gmock.h>

#include "derived/dock_objects.h"
#include "derived/jump_objects.h"
#include "derived/owner_names.h"
#include "derived/ship_packages.h"
#include "derived/trade_lanes.h"
#include "derived/universe_builders.h"
#include "support/failing_memory.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsSupersetOf;

// Texts that need memory of their own.
constexpr std::string_view kFirst = "a nickname of more than thirty characters, the first";
constexpr std::string_view kSecond = "a nickname of more than thirty characters, the second";
constexpr std::string_view kThird = "a nickname of more than thirty characters, the third";
constexpr std::string_view kNameOne = "a display name of more than thirty characters, one";
constexpr std::string_view kNameTwo = "a display name of more than thirty characters, two";

class LackOfMemory : public DerivedFixture {
 protected:
  using Rows = std::vector<Row>;

  // Runs a stage over the same rows again and again; each time one later allocation fails, up to
  // the last. Gives the table's rows after each run.
  std::vector<Rows> Everywhere(const std::function<void()>& prepare,
                               const std::function<void()>& stage, std::string_view table) {
    std::vector<Rows> outcomes;
    for (int before = 0;; ++before) {
      db = DBEngine::CreateInMemory(mustWork);
      for (const TableDef& definition : FixedTables()) db.CreateTable(mustWork, definition);
      prepare();
      const std::size_t asked = log.Failures().size();
      bool failed = false;
      {
        const FailingAllocation lack(before);
        stage();
        failed = lack.Happened();
      }
      if (!failed) return outcomes;
      if (log.Failures().size() == asked) {
        ADD_FAILURE() << "nobody was asked about allocation " << before;
        return outcomes;
      }
      EXPECT_EQ(log.Failures()[asked].What.Number, failure_number::kOutOfMemory) << before;
      outcomes.push_back(HasTable(table) ? UniverseFixture::Rows(table) : Rows());
    }
  }

  bool HasTable(std::string_view name) {
    for (const TableDef& table : db.TableDefs(mustWork)) {
      if (table.Name == name) return true;
    }
    return false;
  }

  // The fields that alone differ from those of the undisturbed row in some outcome.
  static std::set<std::string> LostAlone(const std::vector<Rows>& outcomes, const Row& whole) {
    std::set<std::string> lost;
    for (const Rows& rows : outcomes) {
      if (rows.size() != 1) continue;
      std::vector<std::string> differing;
      for (const auto& [field, value] : whole) {
        if (field == "ID") continue;  // each import draws its own
        if (!(rows.front().at(field) == value)) differing.push_back(field);
      }
      if (differing.size() == 1) lost.insert(differing.front());
    }
    return lost;
  }
};

TEST_F(LackOfMemory, EachFieldOfATradeLaneIsAStepOfItsOwn) {
  const auto prepare = [&] {
    System("li01", "7, 4");
    Object(kFirst, {.Pos = "20000, 0, 0", .NextRing = kSecond, .SpaceName = kNameOne});
    Object(kSecond, {.Pos = "0, 0, -100000", .PrevRing = kFirst, .SpaceName = kNameTwo});
  };
  const auto stage = [&] { CalcTradeLanes(universe, host); };
  prepare();
  stage();
  const Row whole = UniverseFixture::Rows("TradeLanes").at(0);

  const auto outcomes = Everywhere(prepare, stage, "TradeLanes");

  EXPECT_THAT(LostAlone(outcomes, whole),
              IsSupersetOf({"nickname", "nickname2", "realname", "realname2"}));
}

TEST_F(LackOfMemory, EachFieldOfADockIsAStepOfItsOwn) {
  const auto prepare = [&] {
    System("li01", "7, 4");
    Object(kFirst, {.Pos = "20000, 300, -100000",
                    .DockWith = kSecond,
                    .Loadout = kThird,
                    .Reputation = kNameTwo,
                    .RealName = kNameOne});
  };
  const auto stage = [&] { CalcDockObjects(universe, host); };
  prepare();
  stage();
  const Row whole = UniverseFixture::Rows("DockObjects").at(0);

  const auto outcomes = Everywhere(prepare, stage, "DockObjects");

  EXPECT_THAT(LostAlone(outcomes, whole),
              IsSupersetOf({"nickname", "realname", "loadout", "owner"}));
}

TEST_F(LackOfMemory, AShipKeepsWhatTheOtherStepsFound) {
  const auto prepare = [&] {
    Add("Ships", {{"NickName", kFirst}});
    Add("Goods", {{"nickname", kSecond},
                  {"category", "shiphull"},
                  {"ship", kFirst},
                  {"hull", ""},
                  {"price", 5000}});
    Add("Goods", {{"nickname", kThird},
                  {"category", "ship"},
                  {"ship", ""},
                  {"hull", kSecond},
                  {"price", 1}});
    Add("Goods", {{"nickname", kNameOne},
                  {"category", "equipment"},
                  {"ship", ""},
                  {"hull", ""},
                  {"price", 300}});
    Add("Packages", {{"PackageName", kThird}, {"NickName", kNameOne}, {"Val", 1}});
  };
  const auto stage = [&] { CalcShipPackages(universe); };
  prepare();
  stage();
  const Row whole = UniverseFixture::Rows("Ships").at(0);
  ASSERT_EQ(whole.at("price"), Value(5300));

  const auto outcomes = Everywhere(prepare, stage, "Ships");

  // Without the hull's nickname there is no package, but its price stands.
  std::set<std::string> prices;
  for (const Rows& rows : outcomes) {
    ASSERT_EQ(rows.size(), 1u);
    prices.insert(rows.front().at("price").Text());
  }
  EXPECT_THAT(prices, ElementsAre("", "5000", "5300"));
}

TEST_F(LackOfMemory, JumpConnectionsAndOwnersAskAboutItToo) {
  const auto prepare = [&] {
    System("li01", "7, 4");
    System("li02", "8, 4");
    Object(kFirst, {.System = "li01",
                    .JumpEffect = "jump_effect_bretonia",
                    .Goto = "li02, x, y",
                    .Reputation = "a_group",
                    .RealName = kNameOne});
    Name(65538, kNameTwo);
    Add("Groups",
        {{"NickName", "a_group"}, {"ids_name", 65538}, {"ids_short_name", 65538}, {"ids_info", 7}});
  };
  Everywhere(
      prepare, [&] { CalcJumpObjects(universe, host); }, "JumpNodes");
  Everywhere(
      prepare, [&] { CalcOwnerNames(universe); }, "Objects");
  EXPECT_FALSE(log.Failures().empty());
}

}  // namespace
}  // namespace orrerix
