// SPDX-License-Identifier: MIT
#include "import/sections/section_tables.h"

#include <new>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "db/engine/engine.h"
#include "support/failing_memory.h"
#include "support/universe_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

template <typename Step>
int NumberOf(Step step) {
  try {
    step();
  } catch (const Failure& failure) {
    return failure.Number;
  }
  return 0;
}

// Adds one row with a nickname.
void AddRow(SectionTable& table, const std::string& nickname) {
  table.AddNew();
  table.Set(*table.FindField("nickname"), nickname);
  table.Update();
}

TEST(SectionTable, HasAFieldForTheFileFromTheStart) {
  const SectionTable table("gun");

  EXPECT_EQ(table.FindField("SourceFileName"), 0u);
  EXPECT_FALSE(table.FindField("sourcefilename"));
  EXPECT_FALSE(table.FindField("nickname"));
}

TEST(SectionTable, FindsAFieldWhateverPlaceIsGuessed) {
  SectionTable table("gun");
  table.AddField("mass");

  for (const SectionTable::FieldIndex guess : {0, 1, 2, 100}) {
    EXPECT_EQ(table.FindField("mass", guess), 1u);
    EXPECT_EQ(table.FindField("SourceFileName", guess), 0u);
    EXPECT_FALSE(table.FindField("nickname", guess));
  }
}

TEST(SectionTable, RefusesFieldsThatEveryRowHas) {
  SectionTable table("gun");

  for (const char* name : {"ox_id", "OX_ID", "sourcefilename", "SourceFileName"}) {
    EXPECT_EQ(NumberOf([&] { table.AddField(name); }), 3191) << name;
  }
  EXPECT_EQ(NumberOf([&] { table.AddField(std::string("a\0b", 3)); }), 3125);
  EXPECT_EQ(table.AddField("mass"), 1u);
}

TEST(SectionTable, RowNumbersAreGivenOnce) {
  SectionTable table("gun");
  table.AddField("nickname");

  AddRow(table, "a");
  table.AddNew();
  table.CancelUpdate();
  AddRow(table, "b");

  EXPECT_EQ(table.RowID(), 3);
  EXPECT_EQ(table.RowCount(), 2u);
}

TEST(SectionTable, ARowCanBeTakenUpAgain) {
  SectionTable table("gun");
  const auto nickname = table.AddField("nickname");
  AddRow(table, "a");
  AddRow(table, "b");

  table.Edit(1);

  EXPECT_EQ(*table.Get(nickname), "a");
  EXPECT_EQ(table.RowID(), 1);
  EXPECT_EQ(NumberOf([&] { table.Edit(3); }), 3021);
}

TEST(SectionTable, AKeyTakesEachTextOnceWhateverItsCase) {
  SectionTable table("gun");
  table.AddField("nickname");
  table.MakeNicknameKey();
  AddRow(table, "Fox");

  EXPECT_EQ(NumberOf([&] { AddRow(table, "fOX"); }), 3022);
  EXPECT_FALSE(table.IsEditing());
  EXPECT_EQ(NumberOf([&] {
              table.AddNew();
              table.Update();
            }),
            3058);
  EXPECT_EQ(table.RowCount(), 1u);
}

// More than fit into the first room of the keys, with one that is moved in between.
TEST(SectionTable, FindsAKeyAmongManyAfterChanges) {
  SectionTable table("gun");
  const auto nickname = table.AddField("nickname");
  table.MakeNicknameKey();
  for (int i = 1; i <= 1000; ++i) {
    AddRow(table, "Fox" + std::to_string(i));
    table.Edit(i);
    table.Set(nickname, "Hound" + std::to_string(i));
    table.Update();
  }

  for (int i = 1; i <= 1000; ++i) {
    EXPECT_EQ(NumberOf([&] { AddRow(table, "HOUND" + std::to_string(i)); }), 3022) << i;
  }
  for (int i = 1; i <= 1000; ++i) AddRow(table, "fox" + std::to_string(i));
  EXPECT_EQ(table.RowCount(), 2000u);
}

TEST(SectionTable, RowsOfTwoFilesHaveTheirOwnSources) {
  SectionTable table("gun");
  for (const char* file : {"a.ini", "a.ini", "b.ini"}) {
    table.AddNew();
    table.Set(0, file);
    table.Update();
  }

  table.Edit(2);
  EXPECT_EQ(*table.Get(0), "a.ini");
  table.Edit(3);
  EXPECT_EQ(*table.Get(0), "b.ini");
}

TEST(SectionTable, AChangedKeyIsFreeAgain) {
  SectionTable table("gun");
  const auto nickname = table.AddField("nickname");
  table.MakeNicknameKey();
  AddRow(table, "a");

  table.Edit(1);
  table.Set(nickname, "b");
  table.Update();

  EXPECT_EQ(NumberOf([&] { AddRow(table, "a"); }), 0);
  EXPECT_EQ(NumberOf([&] { AddRow(table, "b"); }), 3022);
}

TEST(SectionTable, AKeyCannotBeMadeOverDoublesOrNull) {
  SectionTable doubles("gun");
  doubles.AddField("nickname");
  AddRow(doubles, "a");
  AddRow(doubles, "A");
  EXPECT_EQ(NumberOf([&] { doubles.MakeNicknameKey(); }), 3022);
  EXPECT_EQ(NumberOf([&] { AddRow(doubles, "a"); }), 0);

  SectionTable nulls("gun");
  nulls.AddNew();
  nulls.Update();
  nulls.AddField("nickname");
  EXPECT_EQ(NumberOf([&] { nulls.MakeNicknameKey(); }), 3058);
}

TEST(SectionTable, TextsFollowTheEnginesRules) {
  SectionTable table("gun");
  const auto mass = table.AddField("mass");
  table.AddNew();

  EXPECT_EQ(NumberOf([&] { table.Set(mass, ""); }), 3315);
  EXPECT_EQ(NumberOf([&] { table.Set(mass, std::string(256, 'x')); }), 3163);
  EXPECT_EQ(table.Get(mass), nullptr);
  std::string umlauts;
  for (int i = 0; i < 255; ++i) umlauts += "ü";
  EXPECT_EQ(NumberOf([&] { table.Set(mass, umlauts); }), 0);
}

TEST(SectionTables, GiveOneTableForAName) {
  SectionTables tables;

  EXPECT_EQ(&tables.Open("gun"), &tables.Open("gun"));
  EXPECT_NE(tables.Find("gun"), nullptr);
  EXPECT_EQ(tables.Find("mine"), nullptr);
}

TEST(SectionTables, RefuseTheProgramsOwnNames) {
  SectionTables tables;

  for (const char* name : {"ships", "Objects", "version", "JUMPNODES", "sqlite_master"}) {
    EXPECT_EQ(NumberOf([&] { tables.Open(name); }), 3010) << name;
  }
  EXPECT_EQ(NumberOf([&] { tables.Open(std::string("a\0b", 3)); }), 3125);
}

TEST(SectionTables, AreWrittenWithFieldsAndRowsInTheirOrder) {
  SectionTables tables;
  SectionTable& gun = tables.Open("gun");
  const auto mass = gun.AddField("mass");
  const auto name = gun.AddField("name");
  gun.AddNew();
  gun.Set(0, "\\data\\a.ini");
  gun.Set(name, "Fox");
  gun.Update();
  gun.AddNew();
  gun.CancelUpdate();
  gun.AddNew();
  gun.Set(mass, "5");
  gun.Update();
  tables.Open("empty");
  FailTest mustWork;
  Database database = DBEngine::CreateInMemory(mustWork);

  for (const auto& table : tables.Tables()) {
    database.CreateTable(mustWork, table->Definition());
    table->AppendTo(mustWork, database, table->Definition());
  }

  const auto definitions = database.TableDefs(mustWork);
  ASSERT_EQ(definitions.size(), 2u);
  EXPECT_EQ(definitions[0].Name, "gun");
  EXPECT_EQ(definitions[1].Name, "empty");
  ASSERT_EQ(definitions[0].Fields.size(), 4u);
  EXPECT_EQ(definitions[0].Fields[0].Type, FieldType::Long);
  EXPECT_EQ(definitions[0].Fields[2].Name, "mass");
  EXPECT_EQ(definitions[0].Fields[2].Size, 255u);
  EXPECT_FALSE(definitions[0].Fields[2].AllowZeroLength);
  Recordset rows = database.OpenRecordset(mustWork, "SELECT * FROM gun");
  ASSERT_EQ(rows.RecordCount(), 2u);
  EXPECT_EQ(rows["OX_ID"].Get(), 1);
  EXPECT_EQ(rows["SourceFileName"].Get(), "\\data\\a.ini");
  EXPECT_TRUE(rows["mass"].IsNull());
  EXPECT_EQ(rows["name"].Get(), "Fox");
  rows.MoveNext();
  EXPECT_EQ(rows["OX_ID"].Get(), 3);
  EXPECT_TRUE(rows["SourceFileName"].IsNull());
  EXPECT_EQ(rows["mass"].Get(), "5");
}

TEST(SectionTable, KnowsTheLongestTextOfEachField) {
  SectionTable table("gun");
  const auto name = table.AddField("name");
  table.AddField("mass");
  for (const char* text : {"four", "größe", "abc"}) {
    table.AddNew();
    table.Set(name, text);
    table.Update();
  }

  EXPECT_THAT(table.LongestTexts(), ElementsAre(0, 0, 5, 0));
}

// Runs a step again and again, each time with another of its allocations failing, and looks at what
// it leaves.
template <typename Step, typename Look>
void WithoutMemoryAnywhere(Step step, Look look) {
  bool failed = true;
  for (int before = 0; failed; ++before) {
    SectionTable table("gun");
    table.AddField("nickname");
    table.MakeNicknameKey();
    AddRow(table, "first");
    {
      const FailingAllocation lack(before);
      try {
        step(table);
      } catch (const std::bad_alloc&) {
      }
      failed = lack.Happened();
    }
    if (failed) look(table);
  }
}

TEST(SectionTable, AFieldThatMemoryLacksForCanBeAddedLater) {
  const std::string name(100, 'k');
  WithoutMemoryAnywhere([&](SectionTable& table) { table.AddField(name); },
                        [&](SectionTable& table) {
                          EXPECT_FALSE(table.FindField(name));
                          EXPECT_EQ(table.AddField(name), 2u);
                          EXPECT_EQ(table.FindField(name), 2u);
                        });
}

TEST(SectionTable, ARowThatMemoryLacksForLeavesNeitherRowNorKey) {
  const std::string nickname(100, 'n');
  WithoutMemoryAnywhere([&](SectionTable& table) { AddRow(table, nickname); },
                        [&](SectionTable& table) {
                          EXPECT_EQ(table.RowCount(), 1u);
                          AddRow(table, nickname);
                          EXPECT_EQ(table.RowCount(), 2u);
                        });
}

TEST(SectionTable, ATextThatMemoryLacksForLeavesTheFieldAsItWas) {
  const std::string text(100, 't');
  WithoutMemoryAnywhere(
      [&](SectionTable& table) {
        table.Edit(1);
        table.Set(1, text);
      },
      [&](SectionTable& table) {
        if (!table.IsEditing()) return;
        ASSERT_NE(table.Get(1), nullptr);
        EXPECT_EQ(*table.Get(1), "first");
      });
}

TEST(SectionTables, ATableThatMemoryLacksForCanBeOpenedLater) {
  const std::string name(100, 's');
  bool failed = true;
  for (int before = 0; failed; ++before) {
    SectionTables tables;
    {
      const FailingAllocation lack(before);
      try {
        tables.Open(name);
      } catch (const std::bad_alloc&) {
      }
      failed = lack.Happened();
    }
    if (!failed) break;

    EXPECT_EQ(tables.Find(name), nullptr) << before;
    const SectionTable& opened = tables.Open(name);
    EXPECT_EQ(tables.Find(name), &opened) << before;
    EXPECT_EQ(tables.Tables().size(), 1u) << before;
  }
}

}  // namespace
}  // namespace orrerix
