// SPDX-License-Identifier: MIT
#include "import/game_plan.h"

#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "db/schema.h"
#include "support/universe_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

class GamePlan : public UniverseFixture {
 protected:
  void AddDataFile(std::string_view type, std::string_view file) {
    Add("DataFiles", {{"type", type}, {"pathfile", file}});
  }

  const GameFolder game{"C:\\Game"};
};

TEST_F(GamePlan, IsTheOrderOfAnImport) {
  Add("resources", {{"DLL", "Names.dll"}});
  Add("resources", {{"DLL", "Cards.dll"}});
  AddDataFile("ships", "ships\\shiparch.ini");
  AddDataFile("Bases", "not read");
  AddDataFile("markets", "equipment\\market_misc.ini");
  Add("Systems", {{"file", "systems\\li01\\li01.ini"}});
  Add("Systems", {{"file", "systems\\li02\\li02.ini"}});

  EXPECT_THAT(PlannedFiles(db, game),
              ElementsAre("C:\\Game\\exe\\Names.dll", "C:\\Game\\exe\\Cards.dll",
                          "C:\\Game\\data\\ships\\shiparch.ini",
                          "C:\\Game\\data\\universe\\systems\\li01\\li01.ini",
                          "C:\\Game\\data\\universe\\systems\\li02\\li02.ini",
                          "C:\\Game\\data\\equipment\\market_misc.ini",
                          "C:\\Game\\data\\missions\\mbases.ini"));
}

TEST_F(GamePlan, HasTheSystemsOnlyWhereADataFileStandsForThem) {
  Add("Systems", {{"file", "systems\\li01\\li01.ini"}});

  EXPECT_THAT(PlannedFiles(db, game), ElementsAre("C:\\Game\\data\\missions\\mbases.ini"));
}

TEST_F(GamePlan, GoesAsFarAsItsTablesCanBeRead) {
  Database closed;
  EXPECT_THAT(PlannedFiles(closed, game), ElementsAre("C:\\Game\\data\\missions\\mbases.ini"));
}

TEST_F(GamePlan, IsBounded) {
  for (std::size_t i = 0; i < 200; ++i) {
    Add("Systems", {{"file", "a.ini"}});
    AddDataFile("bases", "");
  }

  const auto files = PlannedFiles(db, game);

  // The systems of 50 data files, and the characters.
  EXPECT_THAT(files, SizeIs(kMostPlannedFiles + 1));
  EXPECT_EQ(files.back(), "C:\\Game\\data\\missions\\mbases.ini");
}

TEST(GamePaths, BeginWithTheGameFolder) {
  const GameFolder game("Z:\\Freelancer");

  EXPECT_EQ(ProgramPath(game, "freelancer.ini"), "Z:\\Freelancer\\exe\\freelancer.ini");
  EXPECT_EQ(DataPath(game, "ships\\a.ini"), "Z:\\Freelancer\\data\\ships\\a.ini");
  EXPECT_EQ(UniversePath(game, "universe.ini"), "Z:\\Freelancer\\data\\universe\\universe.ini");
}

}  // namespace
}  // namespace orrerix
