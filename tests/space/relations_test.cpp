// SPDX-License-Identifier: MIT
#include "space/relations.h"

#include "space/space_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::Eq;
using ::testing::Optional;

TEST(Relations, AreReadOfEachGroupTowardsEachOther) {
  const auto factions = RelationsOf(SectionsOf(
      "[locked_gates]\nnickname = gate\n"
      "[Group]\nnickname = navy\nrep = 0.91, navy\nrep = -0.65, Rogues\nrep = 1, nobody\n"
      "[Group]\nnickname = rogues\nrep = high, navy\nrep = 0.3\n"));

  ASSERT_EQ(factions.size(), 2u);
  EXPECT_EQ(factions[0].Nickname, "navy");
  EXPECT_THAT(factions[0].Towards, ElementsAre(Optional(0.91), Optional(-0.65)));
  EXPECT_THAT(factions[1].Towards, ElementsAre(Eq(std::nullopt), Eq(std::nullopt)));
}

TEST(Relations, AreThoseOfTheLastLine) {
  const auto factions =
      RelationsOf(SectionsOf("[Group]\nnickname = navy\nrep = 0.1, navy\nrep = 0.2, navy\n"
                             "[Group]\nnickname = NAVY\nrep = 0.3, navy\n"));

  ASSERT_EQ(factions.size(), 1u);
  EXPECT_THAT(factions[0].Towards, ElementsAre(Optional(0.3)));
}

TEST(Relations, AreAttitudesBySize) {
  const std::vector<std::pair<double, Attitude>> cases = {
      {-1, Attitude::Hostile},       {-0.6, Attitude::Hostile},  {-0.59, Attitude::Unfriendly},
      {-0.21, Attitude::Unfriendly}, {-0.2, Attitude::Neutral},  {0.2, Attitude::Neutral},
      {0.21, Attitude::Friendly},    {0.79, Attitude::Friendly}, {0.8, Attitude::Allied}};
  for (const auto& [reputation, attitude] : cases) {
    EXPECT_EQ(AttitudeOf(reputation), attitude) << reputation;
  }
}

using RelationFiles = SpaceFixture;

TEST_F(RelationFiles, AreThoseThatTheUniverseNames) {
  Add("DataFiles", {{"type", "Groups"}, {"pathfile", "factions\\all.ini"}});
  Add("Groups", {{"NickName", "navy"}, {"Name", "Liberty Navy"}});
  Add("Groups", {{"NickName", "rogues"}, {"Name", "(7)"}});
  folder.Write("DATA/factions/all.ini", "[Group]\nnickname = Navy\n[Group]\nnickname = rogues\n");
  const SourceTables tables(mustWork, db);

  const auto factions = ReadRelations(tables, GameFolder(folder.Path().string()));

  ASSERT_EQ(factions.size(), 2u);
  EXPECT_EQ(factions[0].Name, "Liberty Navy");
  EXPECT_EQ(factions[1].Name, "rogues");
}

TEST_F(RelationFiles, TellFactionsOfOneNameByTheirNicknames) {
  for (const char* nickname : {"navy", "navy_story"}) {
    Add("Groups", {{"NickName", nickname}, {"Name", "Navy"}});
  }
  folder.Write("DATA/initialworld.ini",
               "[Group]\nnickname = navy\n[Group]\nnickname = navy_story\n");
  const SourceTables tables(mustWork, db);

  const auto factions = ReadRelations(tables, GameFolder(folder.Path().string()));

  ASSERT_EQ(factions.size(), 2u);
  EXPECT_EQ(factions[0].Name, "Navy (navy)");
  EXPECT_EQ(factions[1].Name, "Navy (navy_story)");
}

TEST_F(RelationFiles, AreNoneWhereTheUsualFileIsMissing) {
  const SourceTables tables(mustWork, db);

  EXPECT_EQ(RelationsFile(tables), "initialworld.ini");
  EXPECT_TRUE(ReadRelations(tables, GameFolder(folder.Path().string())).empty());
}

}  // namespace
}  // namespace orrerix
