// SPDX-License-Identifier: MIT
#include "check/rules/file_rules.h"

#include "check/game_fixture.h"
#include "platform/path_text.h"

namespace orrerix::check {
namespace {

class FileRules : public CheckedGameTest {
 protected:
  // So that the files that the game knows by itself are there.
  void FixedFiles() {
    for (const char* file : {"missions/mbases.ini", "missions/npcships.ini",
                             "missions/faction_prop.ini", "solar/stararch.ini"}) {
      File(std::string("DATA/") + file, "");
    }
  }
};

TEST_F(FileRules, AbsentFilesAreCountedWithoutABase) {
  FixedFiles();
  Configure("goods = absent.ini");
  Configure("markets = absent.ini");
  Configure("fonts = Fonts\\absent.ini");
  Library("Absent.dll");

  EXPECT_THAT(Found("files-absent"), ElementsAre("freelancer:1 -"));
  const CheckAnswer answer = Run();
  EXPECT_THAT(answer.Absent,
              ElementsAre("data/absent.ini", "data/fonts/absent.ini", "exe/absent.dll"));
  EXPECT_THAT(Found("file-missing"), IsEmpty());
}

TEST_F(FileRules, NothingIsSaidIfNoFileIsAbsent) {
  FixedFiles();

  EXPECT_THAT(Found("files-absent"), IsEmpty());
}

TEST_F(FileRules, EachFileIsMissingAtTheLineThatNamesItInAWholeGame) {
  isWhole = true;
  FixedFiles();
  Configure("bases");
  Configure("goods = absent.ini");
  Configure("markets = ABSENT.ini");
  OneSystem("[Asteroids]\nfile = solar\\rocks.ini\n[EncounterParameters]\nfilename = e.ini\n");
  Library("absent.dll");

  // The library stands in line 4, [Data] in line 5.
  EXPECT_THAT(Found("file-missing"), ElementsAre("li01:2 file", "li01:4 filename",
                                                 "freelancer:4 DLL", "freelancer:7 goods"));
  EXPECT_THAT(Found("files-absent"), IsEmpty());
}

TEST_F(FileRules, AFileThatTheGameKnowsByItselfIsMissingAtTheFirstLine) {
  isWhole = true;
  Data("npcships", "");
  Data("stars", "");

  EXPECT_THAT(Messages("file-missing"),
              ElementsAre("file does not exist: data/missions/faction_prop.ini",
                          "file does not exist: data/missions/mbases.ini"));
  EXPECT_THAT(Found("file-missing"), ElementsAre("freelancer:1 -", "freelancer:1 -"));
}

TEST_F(FileRules, AFileThatCannotBeReadIsDamaged) {
  Data("goods", "BINI\1");
  Data("ships", "\xFF\xFE[\0S\0");
  File("EXE/broken.dll", "no library");
  Library("broken.dll");

  EXPECT_THAT(Found("damaged-file"), ElementsAre("goods:1 -", "ships:1 -", "freelancer:4 DLL"));
}

TEST_F(FileRules, OneFindingListsNamesInOtherCase) {
  File("DATA/Goods.ini", "");
  File("DATA/ships.ini", "");
  File("DATA/UNIVERSE/universe.ini", "[System]\nnickname = a\nfile = systems\\A.ini\n");
  File("DATA/UNIVERSE/SYSTEMS/A.ini", "");
  Configure("goods = goods.ini");
  Configure("ships = ships.ini");
  Configure("universe = UNIVERSE\\universe.ini");

  EXPECT_THAT(Found("file-case"), ElementsAre("freelancer:1 -"));
  EXPECT_THAT(
      Run({"file-case"}).Findings.front().Related,
      ElementsAre(FilePlace{"DATA/UNIVERSE/universe.ini", 3}, FilePlace{"EXE/freelancer.ini", 5}));
}

TEST_F(FileRules, APathThatDiffersInCaseOnlyIsThereTwice) {
  if (kFileNamesIgnoreCase) GTEST_SKIP() << "there are no two such names here";
  File("DATA/a.ini", "");
  File("DATA/A.ini", "");
  File("data/b.txt", "");
  File("DATA/B.txt", "");

  EXPECT_THAT(Found("file-twice"), ElementsAre("a:1 -", "b:1 -"));
}

TEST_F(FileRules, AnIniFileBesideTheSystemsMayBeForgotten) {
  OneSystem("");
  File("DATA/UNIVERSE/SYSTEMS/LI02/old.ini", "");
  File("DATA/UNIVERSE/SYSTEMS/LI02/old.txt", "");
  File("DATA/UNIVERSE/SYSTEMS/LI02/BASES/old.ini", "");
  File("DATA/UNIVERSE/SYSTEMS/old.ini", "");

  EXPECT_THAT(Found("system-file-unused"), ElementsAre("old:1 -"));

  Configure("universe = absent.ini");
  EXPECT_THAT(Found("system-file-unused"), IsEmpty());
}

}  // namespace
}  // namespace orrerix::check
