// SPDX-License-Identifier: MIT
#include <initializer_list>
#include <utility>

#include "cli/command_line_fixture.h"
#include "db/engine/engine.h"
#include "db/schema.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

// Two docks 30,000 units apart that trade in gold, and one in a system that nothing leads to.
class TravelVerbs : public CommandLine {
 protected:
  using Fields = std::initializer_list<std::pair<std::string_view, Value>>;

  TravelVerbs() {
    file_ =
        DBEngine::CreateDatabase(mustWork_, folder.Path() / "u.fl", JetVersionOption::Version30);
    for (const TableDef& table : FixedTables()) file_.CreateTable(mustWork_, table);
    file_.CreateTable(mustWork_, DockObjectsTable());
    file_.CreateTable(mustWork_, VersionTable());
    Add("Systems", {{"nickname", "s1"}, {"realname", "First"}, {"pos", "1, 1"}});
    Add("Systems", {{"nickname", "s2"}, {"realname", "Second"}, {"pos", "4, 5"}});
    Dock("a", "s1", "0, 0, 0");
    Dock("b", "s1", "30000, 0, 0");
    Dock("c", "s2", "0, 0, 0");
    Add("Goods", {{"nickname", "gold"}, {"realname", "Gold"}, {"category", "commodity"}});
    Price("a", 100, 1);
    Price("b", 160, 2);
    Add("Version", {{"Version", "10"}});
    file_.Close();
  }

  void Add(std::string_view table, Fields fields) {
    Recordset rows = file_.OpenTable(mustWork_, table);
    rows.AddNew();
    for (const auto& [name, value] : fields) rows[name] = value;
    rows.Update();
  }
  void Dock(std::string_view nickname, std::string_view system, std::string_view pos) {
    Add("Objects", {{"nickname", nickname},
                    {"realname", "Port " + std::string(nickname)},
                    {"sys_nick", system},
                    {"pos", pos},
                    {"dock_with", std::string(nickname) + "_base"}});
    Add("DockObjects",
        {{"nickname", nickname}, {"realname", "Port " + std::string(nickname)}, {"owner", ""}});
  }
  void Price(std::string_view dock, int price, int sell) {
    Add("BaseGoodPrices", {{"BaseNick", dock},
                           {"GoodNick", "gold"},
                           {"Price", price},
                           {"Sell", sell},
                           {"SysNick", "s1"}});
  }

  Answer Ask(const std::string& words) { return Run(words + " " + Database()); }

 private:
  FailTest mustWork_;
  orrerix::Database file_;
};

TEST_F(TravelVerbs, AWayHasItsLegsInSeconds) {
  const nlohmann::json way = Ask("way a b --json").Json();

  // Launch 5, cruise 5 + 30000 / 300, dock 10.
  EXPECT_EQ(way["found"], true);
  EXPECT_EQ(way["seconds"], 120);
  EXPECT_EQ(way["distance"], 30000);
  EXPECT_EQ(way["jumps"], 0);
  ASSERT_EQ(way["legs"].size(), 3u);
  EXPECT_EQ(way["legs"][1],
            (nlohmann::json::parse(R"({"kind": "fly", "from": "a", "from_name": "Port a", "to": "b",
                "to_name": "Port b", "system": "s1", "distance": 30000, "seconds": 105})")));
}

TEST_F(TravelVerbs, TheConstantsOfAWayAreOptions) {
  // Launch 1, impulse 30000 / 1000, dock 2.
  EXPECT_EQ(Ask("way a b --json --impulse-speed 1000 --launch-seconds 1 --dock-seconds 2")
                .Json()["seconds"],
            33);
  EXPECT_EQ(Ask("way a b --impulse-speed 0").ExitCode, 2);
}

TEST_F(TravelVerbs, WithoutAWayTheAnswerSaysWhy) {
  const Answer answer = Ask("way a c --json");

  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_THAT(answer.Errors, Not(IsEmpty()));
  const nlohmann::json why = answer.Json()["why"];
  EXPECT_EQ(answer.Json()["found"], false);
  EXPECT_EQ(why["items"], nlohmann::json::array());
  EXPECT_EQ(why["entrances"], 0);
  // Cells 1, 1 and 4, 5 are 5 apart; where one stands is reached at once.
  EXPECT_EQ(
      why["nearest"],
      (nlohmann::json::parse(R"({"system": "s1", "object": "a", "seconds": 0, "cells": 5})")));
}

TEST_F(TravelVerbs, AnUnknownPlaceIsNamed) {
  const Answer answer = Ask("way a nowhere");

  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_THAT(answer.Errors, HasSubstr("'nowhere'"));
}

TEST_F(TravelVerbs, ATradeFillsTheHoldAsFarAsTheMoneyGoes) {
  const nlohmann::json trade = Ask("trade --json --hold 50 --credits 3000").Json();

  // 30 units at 100, sold at 160, within two minutes.
  EXPECT_EQ(trade["count"], 1);
  const nlohmann::json plan = trade["plans"][0];
  EXPECT_EQ(plan["profit"], 1800);
  EXPECT_EQ(plan["seconds"], 120);
  EXPECT_EQ(plan["minute"], 900);
  // Nothing to carry on the way back, which takes as long.
  EXPECT_EQ(plan["back"]["good"], nullptr);
  EXPECT_EQ(plan["back"]["seconds"], 120);
  EXPECT_EQ(plan["loop_minute"], 450);
  EXPECT_EQ(plan["legs"][0]["units"], 30);
  EXPECT_EQ(plan["legs"][0]["good_name"], "Gold");
}

TEST_F(TravelVerbs, NothingToTradeIsAnEmptyList) {
  const Answer answer = Ask("trade --json --from b");

  EXPECT_EQ(answer.ExitCode, 0);
  EXPECT_EQ(answer.Json()["plans"], nlohmann::json::array());
}

TEST_F(TravelVerbs, TravelTimesAreATableOfAllDocks) {
  const nlohmann::json times = Ask("travel-times --json").Json();

  ASSERT_EQ(times["docks"].size(), 3u);
  EXPECT_EQ(times["docks"][0], (nlohmann::json::parse(
                                   R"({"nickname": "a", "name": "Port a", "base": "a_base",
                                       "system": "s1"})")));
  EXPECT_EQ(times["seconds"],
            (nlohmann::json::parse("[[0, 120, null], [120, 0, null], [null, null, 0]]")));
  EXPECT_EQ(Ask("travel-times").Output, "a\ta\t0\na\tb\t120\nb\ta\t120\nb\tb\t0\nc\tc\t0\n");
}

}  // namespace
}  // namespace orrerix
