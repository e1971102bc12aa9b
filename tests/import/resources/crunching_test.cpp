// SPDX-License-Identifier: MIT
#include "import/resources/crunching.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temp_folder.h"
#include "support/universe_fixture.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class Crunching : public UniverseFixture {
 protected:
  Crunching() { db = DBEngine::CreateDatabase(mustWork, source, JetVersionOption::Version30); }

  // Lets go of the source and crunches it.
  void OnlyCrunch() {
    db.Close();
    CrunchTXTFields(log, source, target, JetVersionOption::Version30, {sections.Tables(), held});
  }

  // The same, and opens the result in its place.
  void Crunch() {
    OnlyCrunch();
    db = DBEngine::OpenDatabase(mustWork, target);
  }

  TableDef Definition(std::string_view table) {
    for (TableDef& definition : db.TableDefs(mustWork)) {
      if (definition.Name == table) return definition;
    }
    ADD_FAILURE() << "no table " << table;
    return {};
  }

  static Field TextField(std::string name, bool allowZeroLength = true) {
    Field field;
    field.Name = std::move(name);
    field.AllowZeroLength = allowZeroLength;
    return field;
  }

  TempFolder folder;
  fs::path source = folder.Path() / "build.mdb";
  fs::path target = folder.Path() / "Orrerix.fl";
  SectionTables sections;
  std::vector<HeldRows> held;
};

TEST_F(Crunching, WritesRowsThatWereHeldInMemoryInPlaceOfTheirEmptyTable) {
  TableDef table{"goods", {TextField("name")}, Index{"k", {"name"}}};
  db.CreateTable(mustWork, {"goods", {TextField("name")}, {}});
  db.CreateTable(mustWork, {"last", {TextField("name")}, {}});
  held.emplace_back(table).Add(std::vector<HeldRows::Cell>{std::string_view("water")});

  Crunch();

  EXPECT_THAT(Column("goods", "name"), ElementsAre("water"));
  EXPECT_EQ(Definition("goods").Fields[0].Size, 5u);
  EXPECT_FALSE(Definition("goods").PrimaryKey);
  EXPECT_THAT(Column("last", "name"), IsEmpty());
}

TEST_F(Crunching, TextFieldsGetTheSizeOfTheirLongestText) {
  db.CreateTable(mustWork, {"a", {TextField("x"), TextField("y"), TextField("z")}, {}});
  Add("a", {{"x", "four"}, {"y", std::string(255, 'y')}});
  Add("a", {{"x", "fünfe"}, {"z", ""}});

  Crunch();

  const TableDef table = Definition("a");
  EXPECT_EQ(table.Fields[0].Size, 5u);
  EXPECT_EQ(table.Fields[1].Size, 255u);
  EXPECT_EQ(table.Fields[2].Size, 254u);  // an empty text and a Null need nothing
  EXPECT_THAT(Column("a", "x"), ElementsAre("four", "fünfe"));
  EXPECT_TRUE(Rows("a")[0]["z"].IsNull());
  EXPECT_EQ(Rows("a")[1]["z"], "");
}

TEST_F(Crunching, SizesCountCharactersOfCodeZeroToo) {
  db.CreateTable(mustWork, {"a", {TextField("x")}, {}});
  Add("a", {{"x", std::string("a\0ü", 4)}});

  Crunch();

  EXPECT_EQ(Definition("a").Fields[0].Size, 3u);
}

TEST_F(Crunching, AnEmptyTableKeepsUsableSizes) {
  db.CreateTable(mustWork, {"a", {TextField("x"), TextField("y")}, {}});

  Crunch();

  EXPECT_EQ(Definition("a").Fields[0].Size, 254u);
  EXPECT_EQ(Definition("a").Fields[1].Size, 254u);
  EXPECT_THAT(Rows("a"), IsEmpty());
}

TEST_F(Crunching, OtherFieldsKeepTypeAndRules) {
  for (const TableDef& table : FixedTables()) db.CreateTable(mustWork, table);
  Add("BaseGoodPrices", {{"BaseNick", "b"}, {"GoodNick", "g"}, {"Price", 70000}, {"Sell", 1}});
  Add("BaseGoods", {{"Base", "b"}, {"GoodNick", "g"}, {"val1", 0.5}});

  Crunch();

  for (const TableDef& before : FixedTables()) {
    const TableDef after = Definition(before.Name);
    ASSERT_EQ(after.Fields.size(), before.Fields.size());
    for (std::size_t i = 0; i < before.Fields.size(); ++i) {
      EXPECT_EQ(after.Fields[i].Name, before.Fields[i].Name);
      EXPECT_EQ(after.Fields[i].Type, before.Fields[i].Type);
      EXPECT_EQ(after.Fields[i].AllowZeroLength, before.Fields[i].AllowZeroLength);
      EXPECT_EQ(after.Fields[i].IsUniqueID, before.Fields[i].IsUniqueID);
    }
  }
  EXPECT_EQ(Rows("BaseGoodPrices")[0]["Price"], 70000);
  EXPECT_EQ(Rows("BaseGoods")[0]["val1"], 0.5);
}

TEST_F(Crunching, NoKeyIsCarriedOver) {
  db.CreateTable(mustWork, {"a", {TextField("x")}, Index{"x", {"x"}}});
  db.ExecuteNative(mustWork, "CREATE INDEX lookup ON a (x)");
  Add("a", {{"x", "one"}});

  Crunch();

  EXPECT_FALSE(Definition("a").PrimaryKey);
  Recordset indexes =
      db.OpenRecordset(mustWork, "SELECT * FROM sqlite_master WHERE type = 'index'");
  EXPECT_TRUE(indexes.Empty());
  Add("a", {{"x", "one"}});
  EXPECT_THAT(Rows("a"), SizeIs(2));
}

TEST_F(Crunching, TablesKeepTheirOrderAndOddNames) {
  db.CreateTable(mustWork, {"z", {TextField("x")}, {}});
  db.CreateTable(mustWork, {"a b", {TextField("c \"d\"")}, {}});
  db.CreateTable(mustWork, {"a'b", {TextField("x")}, {}});
  Add("a b", {{"c \"d\"", "one"}});

  Crunch();

  const auto tables = db.TableDefs(mustWork);
  ASSERT_THAT(tables, SizeIs(3));
  EXPECT_EQ(tables[0].Name, "z");
  EXPECT_EQ(tables[1].Name, "a b");
  EXPECT_EQ(tables[2].Name, "a'b");
  EXPECT_EQ(tables[1].Fields[0].Size, 3u);
  EXPECT_THAT(Column("a b", "c \"d\""), ElementsAre("one"));
}

TEST_F(Crunching, SectionTablesStandAfterTheFixedTables) {
  for (const TableDef& table : FixedTables()) db.CreateTable(mustWork, table);
  db.CreateTable(mustWork, JumpNodesTable());
  SectionTable& gun = sections.Open("gun");
  const auto name = gun.AddField("name");
  gun.AddField("mass");
  gun.AddNew();
  gun.Set(name, "größe");
  gun.Update();

  Crunch();

  const auto tables = db.TableDefs(mustWork);
  const std::size_t fixed = FixedTables().size();
  ASSERT_THAT(tables, SizeIs(fixed + 2));
  EXPECT_EQ(tables[fixed].Name, "gun");
  EXPECT_EQ(tables[fixed + 1].Name, "JumpNodes");
  EXPECT_EQ(tables[fixed].Fields[2].Size, 5u);
  EXPECT_EQ(tables[fixed].Fields[3].Size, 254u);  // no row has a mass
  EXPECT_THAT(Column("gun", "name"), ElementsAre("größe"));
}

TEST_F(Crunching, APathWithAnApostropheWorksLikeAnyOther) {
  db.CreateTable(mustWork, {"a", {TextField("x")}, {}});
  Add("a", {{"x", "one"}});
  SectionTable& gun = sections.Open("gun");
  gun.AddNew();
  gun.Set(0, "a.ini");
  gun.Update();
  target = folder.Path() / "it's.fl";

  Crunch();

  EXPECT_THAT(log.Failures(), IsEmpty());
  EXPECT_THAT(Column("gun", "SourceFileName"), ElementsAre("a.ini"));
  EXPECT_THAT(Column("a", "x"), ElementsAre("one"));
}

TEST_F(Crunching, TheEnginesOwnTablesStayBehind) {
  db.CreateTable(mustWork, {"MSysObjects", {TextField("x")}, {}});
  db.CreateTable(mustWork, {"a", {TextField("x")}, {}});

  Crunch();

  ASSERT_THAT(db.TableDefs(mustWork), SizeIs(1));
  EXPECT_EQ(db.TableDefs(mustWork)[0].Name, "a");
}

TEST_F(Crunching, RowsKeepTheOrderOfTheirInsertion) {
  db.CreateTable(mustWork, {"a", {TextField("x")}, Index{"x", {"x"}}});
  for (const char* text : {"c", "a", "d", "b"}) Add("a", {{"x", text}});

  Crunch();

  EXPECT_THAT(Column("a", "x"), ElementsAre("c", "a", "d", "b"));
}

TEST_F(Crunching, ATargetOfAnEarlierRunIsReplaced) {
  db.CreateTable(mustWork, {"a", {TextField("x")}, {}});
  folder.Write("Orrerix.fl", "something else");

  Crunch();

  EXPECT_THAT(db.TableDefs(mustWork), SizeIs(1));
}

TEST_F(Crunching, TheSourceIsReleasedAndUnchanged) {
  db.CreateTable(mustWork, {"a", {TextField("x")}, {}});
  Add("a", {{"x", "one"}});

  Crunch();

  EXPECT_TRUE(fs::remove(source));
  EXPECT_THAT(Column("a", "x"), ElementsAre("one"));
}

TEST_F(Crunching, ATargetThatCannotBeDeletedIsAFailure) {
  db.CreateTable(mustWork, {"a", {TextField("x")}, {}});
  folder.Write("Orrerix.fl/inside", "x");

  OnlyCrunch();

  ASSERT_THAT(log.Failures(), Not(IsEmpty()));
  EXPECT_EQ(log.Failures()[0].What.Number, 75);
  EXPECT_EQ(log.Failures()[0].Source, "DB_Work.CrunchTXTFields");
  EXPECT_EQ(log.Failures()[0].Info, "While crunching the big database...\r\n\r\nSRC:[" +
                                        source.string() + "]\r\n\r\nDST:[" + target.string() + "]");
}

TEST_F(Crunching, ManySectionTablesStandInTheirOrder) {
  constexpr int count = 1000;
  for (int i = 0; i < count; ++i) {
    SectionTable& table = sections.Open("s" + std::to_string(i));
    table.AddNew();
    table.Set(0, std::to_string(i));
    table.Update();
  }

  Crunch();

  EXPECT_THAT(log.Failures(), IsEmpty());
  const auto tables = db.TableDefs(mustWork);
  ASSERT_THAT(tables, SizeIs(count));
  for (int i = 0; i < count; ++i) {
    const std::string name = "s" + std::to_string(i);
    ASSERT_EQ(tables[static_cast<std::size_t>(i)].Name, name);
    ASSERT_THAT(Column(name, "SourceFileName"), ElementsAre(std::to_string(i)));
  }
  Recordset check = db.OpenRecordset(mustWork, "SELECT count(*) AS n FROM sqlite_master");
  EXPECT_EQ(check["n"].Get(), count);
}

TEST_F(Crunching, CancelLeavesTheRoutine) {
  db.CreateTable(mustWork, {"a", {TextField("x")}, {}});
  db.CreateTable(mustWork, {"b", {TextField("x")}, {}});
  folder.Write("Orrerix.fl/inside", "x");
  messages.Answer = MessageAnswer::Cancel;

  OnlyCrunch();

  EXPECT_THAT(log.Failures(), SizeIs(1));
}

TEST_F(Crunching, TellsTheRowsOfEachTableInTheOrderOfTheirMaking) {
  db.CreateTable(mustWork, {"fixed", {TextField("x")}, {}});
  db.Execute(mustWork, "INSERT INTO fixed (x) VALUES ('a')");
  db.Execute(mustWork, "INSERT INTO fixed (x) VALUES ('b')");
  SectionTable& gun = sections.Open("gun");
  const auto nickname = gun.AddField("nickname");
  for (const char* name : {"laser", "plasma", "ion"}) {
    gun.AddNew();
    gun.Set(nickname, name);
    gun.Update();
  }
  sections.Open("empty");
  db.Close();

  const std::vector<TableCount> tables =
      CrunchTXTFields(log, source, target, JetVersionOption::Version30, {sections.Tables(), held});

  ASSERT_THAT(tables, SizeIs(3));
  EXPECT_EQ(tables[0].Name, "gun");
  EXPECT_EQ(tables[0].Rows, 3);
  EXPECT_EQ(tables[1].Name, "empty");
  EXPECT_EQ(tables[1].Rows, 0);
  EXPECT_EQ(tables[2].Name, "fixed");
  EXPECT_EQ(tables[2].Rows, 2);
}

TEST_F(Crunching, TellsNoTablesWithoutATarget) {
  db.Close();
  messages.Answer = MessageAnswer::Cancel;

  EXPECT_THAT(CrunchTXTFields(log, folder.Path() / "none.mdb", target, JetVersionOption::Version30,
                              {sections.Tables(), held}),
              IsEmpty());
}

TEST_F(Crunching, ASourceThatIsNotThereIsAFailure) {
  db.Close();
  messages.Answer = MessageAnswer::Cancel;

  CrunchTXTFields(log, folder.Path() / "none.mdb", target, JetVersionOption::Version30,
                  {sections.Tables(), held});

  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].What.Number, 3024);
  EXPECT_FALSE(fs::exists(target));
}

TEST_F(Crunching, CloseDBClosesTheFileOfThatPathOnly) {
  CloseDB(db, folder.Path() / "other.mdb");
  EXPECT_TRUE(db.IsOpen());

  CloseDB(db, folder.Path() / "BUILD.MDB");
  EXPECT_FALSE(db.IsOpen());

  CloseDB(db, source);
  EXPECT_FALSE(db.IsOpen());
}

class MemoryCleanUp : public Crunching {
 protected:
  MemoryCleanUp() {
    db = DBEngine::CreateDatabase(mustWork, target, JetVersionOption::Version30);
    db.Begin(mustWork);
    for (const TableDef& table : FixedTables()) db.CreateTable(mustWork, table);
  }
};

TEST_F(MemoryCleanUp, KeepsTablesRowsAndKeys) {
  Add("Objects", {{"nickname", "fox"}});

  CleanUpMemory(log, host, db, folder.Path());

  EXPECT_THAT(Column("Objects", "nickname"), ElementsAre("fox"));
  EXPECT_TRUE(Definition("Objects").PrimaryKey);
  EXPECT_FALSE(fs::exists(folder.Path() / "Orrerix.ok"));
  EXPECT_EQ(host.Yields, 2);
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(MemoryCleanUp, GivesFileSpaceBack) {
  for (int i = 0; i < 500; ++i) Add("ids_info", {{"ID", i}, {"Info", std::string(1000, 'x')}});
  db.Commit(mustWork);
  db.Begin(mustWork);
  db.Execute(mustWork, "DELETE FROM ids_info WHERE ID > 0");
  const auto before = fs::file_size(target);

  CleanUpMemory(log, host, db, folder.Path());

  EXPECT_LT(fs::file_size(target), before);
  EXPECT_THAT(Rows("ids_info"), SizeIs(1));
  EXPECT_FALSE(fs::exists(folder.Path() / "Orrerix.ok"));
}

TEST_F(MemoryCleanUp, AFileSetAsideThatCannotBeDeletedIsAFailure) {
  for (int i = 0; i < 500; ++i) Add("ids_info", {{"ID", i}, {"Info", std::string(1000, 'x')}});
  db.Commit(mustWork);
  db.Begin(mustWork);
  db.Execute(mustWork, "DELETE FROM ids_info WHERE ID > 0");
  folder.Write("Orrerix.ok/inside", "x");

  CleanUpMemory(log, host, db, folder.Path());

  // It takes neither the file's place nor its content, nor can it be deleted.
  ASSERT_THAT(log.Failures(), SizeIs(3));
  EXPECT_EQ(log.Failures()[2].Source, "OrrerixMain.CleanUpMemory");
  EXPECT_EQ(log.Failures()[2].What.Number, failure_number::kPathFileAccess);
  EXPECT_THAT(log.Failures()[2].What.Description, ::testing::HasSubstr("delete"));
  EXPECT_THAT(log.Failures()[2].What.Description, ::testing::HasSubstr("Orrerix.ok"));
  EXPECT_THAT(Rows("ids_info"), SizeIs(1));
}

TEST_F(MemoryCleanUp, AFileThatIsNotThereIsAFailure) {
  db.Close();
  fs::remove(target);
  messages.Answer = MessageAnswer::Cancel;

  CleanUpMemory(log, host, db, folder.Path());

  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.CleanUpMemory");
  EXPECT_EQ(log.Failures()[0].Info, "While cleaning up Memory");
}

}  // namespace
}  // namespace orrerix
