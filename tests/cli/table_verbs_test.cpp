// SPDX-License-Identifier: MIT
#include "cli/command_line_fixture.h"
#include "db/engine/engine.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

// A universe with a table of ours beside those of an import.
class StoredTables : public CommandLine {
 protected:
  StoredTables() {
    Import("--quiet");
    FailTest mustWork;
    orrerix::Database file = DBEngine::OpenDatabase(mustWork, folder.Path() / "u.fl");
    file.ExecuteNative(mustWork, "CREATE TABLE Wares (nick TEXT(20), price LONG INT, mass DOUBLE)");
    file.ExecuteNative(mustWork,
                       "INSERT INTO Wares VALUES ('gold', 100, 0.5), ('Oil, raw', 20, 2.0), "
                       "('tea', NULL, 3.0), ('GOLD', 20, NULL)");
  }

  Answer Table(const std::string& words) { return Run("table Wares " + words + " " + Database()); }
};

TEST_F(StoredTables, AreListedInTheOrderOfTheirMaking) {
  const nlohmann::json tables = Run("tables --json " + Database()).Json();

  EXPECT_EQ(tables[0], (nlohmann::json{{"name", "OXWarning"}, {"rows", 0}}));
  EXPECT_EQ(tables[1]["name"], "commodity");
  EXPECT_EQ(tables.back(), (nlohmann::json{{"name", "Wares"}, {"rows", 4}}));
  EXPECT_THAT(Run("tables " + Database()).Output,
              StartsWith("OXWarning                              0\ncommodity"));
}

TEST_F(StoredTables, GiveTheirRowsAsJson) {
  EXPECT_EQ(Run("table wares --json " + Database()).Json(),
            (nlohmann::json::parse(R"([{"nick": "gold", "price": 100, "mass": 0.5},
                                       {"nick": "Oil, raw", "price": 20, "mass": 2.0},
                                       {"nick": "tea", "price": null, "mass": 3.0},
                                       {"nick": "GOLD", "price": 20, "mass": null}])")));
}

TEST_F(StoredTables, GiveTheColumnsRowsAndOrderAskedFor) {
  EXPECT_EQ(Table("--json --columns PRICE --sort price:desc --sort nick --limit 3").Json(),
            (nlohmann::json::parse(R"([{"price": 100}, {"price": 20}, {"price": 20}])")));
  EXPECT_EQ(Table("--json --columns price,nick --where nick=Gold --where price=20").Json(),
            (nlohmann::json::parse(R"([{"price": 20, "nick": "GOLD"}])")));
  EXPECT_EQ(Table("--json --columns nick --where price=").Json(),
            (nlohmann::json::parse(R"([{"nick": "tea"}])")));
  EXPECT_EQ(Table("--json --limit 0").Json(), nlohmann::json::array());
}

TEST_F(StoredTables, GiveCsvAndAlignedText) {
  EXPECT_EQ(Table("--csv").Output,
            "nick,price,mass\r\ngold,100,0.5\r\n\"Oil, raw\",20,2\r\ntea,,3\r\nGOLD,20,\r\n");
  EXPECT_EQ(Table("--columns nick,price --limit 2").Output,
            "nick      price\n"
            "gold        100\n"
            "Oil, raw     20\n");
}

TEST_F(StoredTables, ThatAreMisspeltAreNamed) {
  const Answer table = Run("table Ware " + Database());
  EXPECT_EQ(table.ExitCode, 1);
  EXPECT_EQ(table.Errors, "orrerix-cli: there is no table 'Ware'; did you mean 'Wares'?\n");
  EXPECT_THAT(table.Output, IsEmpty());
  for (const char* words : {"--columns nik", "--where nik=x", "--sort nik", "--sort nik:desc"}) {
    const Answer column = Table(words);
    EXPECT_EQ(column.ExitCode, 1) << words;
    EXPECT_THAT(column.Errors, HasSubstr("'nik'; did you mean 'nick'?")) << words;
  }
}

TEST_F(StoredTables, WithWordsThatMakeNoSenseAreWrongUsage) {
  for (const char* words :
       {"--where nick", "--limit -1", "--limit x", "--limit ''", "--csv --json"}) {
    EXPECT_EQ(Table(words).ExitCode, 2) << words;
  }
  EXPECT_EQ(Run("table " + Database()).ExitCode, 2);
}

TEST_F(StoredTables, OfAFileThatIsNotThereOrUnfinishedCannotBeShown) {
  EXPECT_EQ(Run("tables --database " + (folder.Path() / "none.fl").string()).ExitCode, 1);
  folder.Write("empty.fl", "");
  const Answer answer = Run("tables --database " + (folder.Path() / "empty.fl").string());
  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_THAT(answer.Errors, HasSubstr("empty.fl' is no finished universe file"));
}

}  // namespace
}  // namespace orrerix
