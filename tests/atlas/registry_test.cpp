// SPDX-License-Identifier: MIT
#include "atlas/registry.h"

#include <cctype>
#include <fstream>
#include <iterator>
#include <set>

#include "atlas/atlas_fixture.h"
#include "atlas/page.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

using ::testing::HasSubstr;

TEST(AtlasRegistry, NamesEveryTableAndColumnOnce) {
  std::set<std::string> tables;
  for (const AtlasTable& table : AtlasTables()) {
    EXPECT_TRUE(tables.insert(table.Id).second) << table.Id;
    EXPECT_FALSE(table.About.empty()) << table.Id;
    std::set<std::string> columns;
    for (const ColumnHead& column : table.Columns) {
      EXPECT_TRUE(columns.insert(column.Id).second) << table.Id << " " << column.Id;
      EXPECT_FALSE(column.Head.empty()) << column.Id;
      EXPECT_FALSE(column.Formula.empty()) << column.Id;
      for (const char c : column.Id) EXPECT_TRUE(std::islower(c) || c == '_') << column.Id;
      EXPECT_LE(column.Head.size(), 40u) << column.Head;
    }
  }
  EXPECT_EQ(tables.size(), 16u);
}

TEST(AtlasRegistry, FindsTablesAndColumnsWithoutCase) {
  ASSERT_NE(FindAtlasTable("Guns"), nullptr);
  EXPECT_EQ(FindAtlasTable("Guns")->Title, "Guns");
  EXPECT_EQ(FindAtlasTable("gun"), nullptr);
  EXPECT_EQ(FindAtlasTable("guns")->Find("NICKNAME"), 1u);
  EXPECT_EQ(FindAtlasTable("guns")->Find("nick"), std::nullopt);
}

// A figure's head says its unit in brackets.
TEST_F(AtlasFixture, FiguresHaveUnitsInTheirHeads) {
  Section("gun", {{"nickname", "laser"}, {"refire_delay", "1"}});
  const AtlasRow row = TheOnly("guns");

  const AtlasTable& guns = *FindAtlasTable("guns");
  for (const ColumnHead& column : guns.Columns) {
    if (row.at(column.Id).IsNull() || row.at(column.Id).IsText()) continue;
    EXPECT_THAT(column.Head, HasSubstr(" (")) << column.Id;
  }
}

TEST(AtlasRegistry, ReadsAnEmptyUniverse) {
  FailTest mustWork;
  const Database universe = DBEngine::CreateInMemory(mustWork);
  const AtlasSource source(mustWork, universe);

  for (const AtlasTable& table : AtlasTables()) {
    EXPECT_EQ(ReadAtlasTable(table, source).RowCount(), 0u) << table.Id;
  }
}

// To regenerate the page: orrerix-cli atlas --explain > docs/atlas.md
TEST(AtlasRegistry, IsThePageInTheDocuments) {
  std::ifstream stream(ORRERIX_ATLAS_PAGE, std::ios::binary);
  const std::string page(std::istreambuf_iterator<char>(stream), {});

  EXPECT_EQ(page, AtlasPage());
}

}  // namespace
}  // namespace orrerix
