// SPDX-License-Identifier: MIT
#include "check/files/game_files.h"

#include <gmock/gmock.h>

#include "check/check.h"
#include "support/temp_folder.h"

namespace orrerix::check {
namespace {

using ::testing::ElementsAre;

class ReadGameFiles : public ::testing::Test {
 protected:
  std::vector<std::string> Expected() {
    const GameFiles files(folder.Path(), std::nullopt, [] {});
    std::vector<std::string> keys;
    for (const ExpectedFile& expected : files.Expected()) keys.push_back(expected.Key);
    return keys;
  }

  TempFolder folder;
};

TEST_F(ReadGameFiles, ExpectsWhatTheConfigurationNamesAndTheFixedFiles) {
  folder.Write("exe/FREELANCER.INI",
               "[Freelancer]\nData Path = ..\\stuff\n[Data]\ngoods = a\\b.INI\nstars = s.ini\n"
               "path = c\nbases\n[Resources]\ndll = x.dll, 5\n");

  EXPECT_THAT(Expected(), ElementsAre("stuff/a/b.ini", "stuff/s.ini", "stuff/missions/mbases.ini",
                                      "stuff/missions/npcships.ini",
                                      "stuff/missions/faction_prop.ini", "exe/x.dll"));
}

TEST_F(ReadGameFiles, ExpectsWhatTheUniverseAndItsSystemsName) {
  folder.Write("EXE/freelancer.ini",
               "[Data]\nuniverse = universe\\u.ini\nmbases = m.ini\n"
               "npcships = m.ini\nfaction_props = m.ini\nstars = m.ini\n");
  folder.Write("DATA/universe/u.ini",
               "[System]\nfile = s.ini\nfile = second.ini\n[Base]\nfile = b.ini\n");
  folder.Write("DATA/universe/s.ini",
               "[Asteroids]\nfile = f.ini\n[Nebula]\nfile = n.ini\n"
               "[EncounterParameters]\nfilename = e.ini\n[Other]\nfile = o\n");
  folder.Write("DATA/b.ini", "[Room]\nfile = r.ini\n");

  EXPECT_THAT(Expected(),
              ElementsAre("data/universe/u.ini", "data/m.ini", "data/universe/s.ini", "data/b.ini",
                          "data/f.ini", "data/n.ini", "data/e.ini", "data/r.ini"));
}

TEST_F(ReadGameFiles, ARoleIsCompleteIfAllItsFilesAreThere) {
  folder.Write("EXE/freelancer.ini",
               "[Data]\ngoods = a.ini\ngoods = b.ini\nships = a.ini\nsolar = c.ini\n");
  folder.Write("DATA/a.ini", "");
  folder.Write("DATA/c.ini", "BINI");
  const GameFiles files(folder.Path(), std::nullopt, [] {});

  EXPECT_FALSE(files.IsComplete(Role::Goods));
  EXPECT_TRUE(files.IsComplete(Role::Ships));
  EXPECT_FALSE(files.IsComplete(Role::Solar));
  EXPECT_FALSE(files.IsComplete(Role::Markets));
}

TEST_F(ReadGameFiles, NeedsAConfiguration) {
  EXPECT_THROW(Expected(), CannotCheck);

  folder.Write("EXE/freelancer.ini", "\xFF\xFE");
  EXPECT_THROW(Expected(), CannotCheck);
}

TEST_F(ReadGameFiles, APathThatLeavesTheFolderIsNotThere) {
  folder.Write("EXE/freelancer.ini", "[Data]\ngoods = ..\\..\\..\\etc\\a.ini\n");
  const GameFiles files(folder.Path(), std::nullopt, [] {});

  EXPECT_EQ(files.Expected().front().Key, "../../etc/a.ini");
  EXPECT_EQ(files.Expected().front().Disk, nullptr);
}

}  // namespace
}  // namespace orrerix::check
