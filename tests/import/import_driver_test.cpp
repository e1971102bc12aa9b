// SPDX-License-Identifier: MIT
#include "import/import_driver.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "db/engine/working_copy.h"
#include "demo/format/bini_writer.h"
#include "demo/format/pe_writer.h"
#include "shell/routine.h"
#include "shell/startup.h"
#include "support/reader_fixture.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// A game of two systems, a ship, a gun, two libraries and a base.
class GameImport : public UniverseFixture {
 protected:
  GameImport() {
    game.Write("EXE/freelancer.ini", WithCrLf(R"([Freelancer]
local server = 127.0.0.1
[Resources]
DLL = Names.dll
DLL = Cards.dll
[Data]
ships = ships\shiparch.ini
equipment = equipment\weapon_equip.ini
bases
)"));
    game.Write("DATA/Universe/universe.ini", WithCrLf(R"([System]
nickname = Li01
file = systems\li01\li01.ini
pos = 3, 5
strid_name = 65537
[System]
nickname = Li02
file = systems\li02\li02.ini
pos = 4, 6
strid_name = 65999
[Base]
nickname = Li01_01_Base
)"));
    game.Write("DATA/UNIVERSE/SYSTEMS/LI01/LI01.INI", WithCrLf(R"([SystemInfo]
space_color = 0, 0, 0
[Object]
nickname = Li01_01
pos = 100, 0, 200
ids_name = 65538
)"));
    game.Write("DATA/universe/systems/li02/li02.ini",
               PackIni("[Object]\nnickname = Li02_01\npos = 1, 2, 3\n"));
    game.Write("DATA/ships/shiparch.ini", WithCrLf("[Ship]\nnickname = fox\nids_name = 65539\n"));
    game.Write("DATA/Equipment/Weapon_Equip.ini", WithCrLf(R"([Gun]
nickname = laser
[Gun]
nickname = laser
mass = 2
[Gun]
nickname = maser
mass = 22
)"));
    game.Write("DATA/missions/mbases.ini",
               WithCrLf("[MBase]\nnickname = b\n[GF_NPC]\nnickname = n\nbribe = g, 1, 2\n"));
    ResourceLibraryWriter names;
    names.AddString(1, "Foxland");
    names.AddString(2, "Planet Fox");
    names.AddString(3, "Foxhound");
    game.Write("EXE/names.dll", names.Image());
    ResourceLibraryWriter cards;
    cards.AddCard(7, "<RDL><TEXT>A card</TEXT></RDL>");
    game.Write("EXE/cards.dll", cards.Image());
    fs::create_directories(Saves());
  }

  fs::path Saves() const { return saves.Path() / "SinglePlayer"; }
  fs::path File() const { return Saves() / "Orrerix.fl"; }

  ImportOrder Order() const { return {gameFolder, Saves(), JetVersionOption::Version30, version}; }

  // One derived stage that makes a table of its own.
  std::vector<DerivedStage> Stages() {
    return {{TextId::CalculatingJumps,
             [](Universe& target, ImportHost&) {
               Routine routine(target.Log, "OrrerixMain.CalcJumpObjects");
               routine.Run([&] { target.DB.CreateTable(routine, JumpNodesTable()); });
             }},
            {TextId::CalculatingLanes, [](Universe&, ImportHost&) {}},
            {TextId::CalculatingDocks, [](Universe&, ImportHost&) {}}};
  }

  bool Run() { return ImportGame(log, host, db, Order(), Stages()).Finished; }

  TableDef Definition(std::string_view table) {
    for (TableDef& definition : db.TableDefs(mustWork)) {
      if (definition.Name == table) return definition;
    }
    ADD_FAILURE() << "no table " << table;
    return {};
  }

  std::map<std::string, std::string> ContentOf(const fs::path& top) {
    std::map<std::string, std::string> content;
    for (const auto& entry : fs::recursive_directory_iterator(top)) {
      std::string bytes = "folder";
      if (entry.is_regular_file()) {
        std::ifstream stream(entry.path(), std::ios::binary);
        bytes.assign(std::istreambuf_iterator<char>(stream), {});
      }
      content[entry.path().string()] = bytes;
    }
    return content;
  }

  TempFolder game;
  TempFolder saves;
  GameFolder gameFolder{game.Path().string()};
  AppVersion version{1, 7, 3};
};

TEST_F(GameImport, MakesTheTablesInTheOrderOfItsStages) {
  EXPECT_TRUE(Run());

  std::vector<std::string> names;
  for (const TableDef& table : db.TableDefs(mustWork)) names.push_back(table.Name);
  EXPECT_THAT(
      names, ElementsAre("OXWarning", "commodity", "DataFiles", "resources", "ids_info", "ids_name",
                         "Systems", "Objects", "Goods", "BaseGoods", "BaseGoodPrices", "Groups",
                         "Packages", "Ships", "Ships_Hardpoints", "Loadout_Cargo", "GF_NPC",
                         "freelancer", "base", "gun", "systeminfo", "JumpNodes", "Version"));
  EXPECT_THAT(log.Failures(), IsEmpty());
  EXPECT_EQ(db.Path(), File());
}

TEST_F(GameImport, ReadsAllFilesOfTheGame) {
  Run();

  EXPECT_THAT(Column("resources", "DLL"), ElementsAre("Names.dll", "Cards.dll"));
  EXPECT_THAT(Column("DataFiles", "type"), ElementsAre("ships", "equipment", "bases"));
  EXPECT_THAT(Column("Objects", "nickname"), ElementsAre("Li01_01", "Li02_01"));
  EXPECT_THAT(Column("Objects", "sys_nick"), ElementsAre("Li01", "Li02"));
  EXPECT_THAT(Column("Ships", "NickName"), ElementsAre("fox"));
  EXPECT_THAT(Column("GF_NPC", "BaseNick"), ElementsAre("b"));
  EXPECT_THAT(Column("Version", "Version"), ElementsAre("17"));
}

TEST_F(GameImport, NamesWhatWasReadBeforeTheLibraries) {
  Run();

  EXPECT_THAT(Column("Systems", "realname"), ElementsAre("Foxland", "Li02(65999)"));
  EXPECT_THAT(Column("Objects", "realname"), ElementsAre("Planet Fox", "Li02_01(0)"));
  EXPECT_THAT(Column("Ships", "RealName"), ElementsAre("Foxhound"));
  EXPECT_THAT(Column("ids_info", "ID"), ElementsAre("131079"));
  EXPECT_THAT(Column("ids_info", "Info"), ElementsAre("A card"));
}

TEST_F(GameImport, ASystemWhoseNumberIsNullKeepsItsNullName) {
  game.Write("DATA/Universe/universe.ini",
             WithCrLf("[System]\nnickname = a\npos = 1, 1\nstrid_name = 9999999999\n"));

  Run();

  EXPECT_TRUE(Rows("Systems")[0]["stridname"].IsNull());
  EXPECT_TRUE(Rows("Systems")[0]["realname"].IsNull());
}

TEST_F(GameImport, SectionsTellTheirFilesAndLeaveGapsInTheirNumbers) {
  Run();

  EXPECT_THAT(Column("gun", "nickname"), ElementsAre("laser", "maser"));
  EXPECT_THAT(Column("gun", "OX_ID"), ElementsAre("1", "3"));
  EXPECT_THAT(Column("gun", "SourceFileName"), ElementsAre("\\data\\equipment\\weapon_equip.ini",
                                                           "\\data\\equipment\\weapon_equip.ini"));
  EXPECT_THAT(Column("systeminfo", "SourceFileName"),
              ElementsAre("\\data\\universe\\systems\\li01\\li01.ini"));
  EXPECT_THAT(DataLog(), SizeIs(1));
}

TEST_F(GameImport, TheFinishedFileHasCutSizesAndNoKeys) {
  Run();

  for (const TableDef& table : db.TableDefs(mustWork)) EXPECT_FALSE(table.PrimaryKey) << table.Name;
  EXPECT_TRUE(
      db.OpenRecordset(mustWork, "SELECT * FROM sqlite_master WHERE type = 'index'").Empty());
  EXPECT_EQ(Definition("Systems").Fields[1].Size, 4u);   // "Li01"
  EXPECT_EQ(Definition("Systems").Fields[2].Size, 11u);  // "Li02(65999)"
  EXPECT_EQ(Definition("gun").Fields[3].Size, 2u);       // "22"
  EXPECT_EQ(Definition("Goods").Fields[1].Size, 254u);   // no goods
  EXPECT_EQ(Definition("Version").Fields[0].Size, 2u);
}

TEST_F(GameImport, LeavesNothingButTheFinishedFileInTheSaveFolder) {
  saves.Write("SinglePlayer/build.mdb", "left over");

  Run();

  const auto content = ContentOf(Saves());
  ASSERT_THAT(content, SizeIs(1));
  EXPECT_EQ(content.begin()->first, File().string());
}

TEST_F(GameImport, LeavesTheGameAlone) {
  const auto before = ContentOf(game.Path());

  Run();

  EXPECT_EQ(ContentOf(game.Path()), before);
}

TEST_F(GameImport, CountsItsSteps) {
  Run();

  // 5, two systems, three data lines, two for each of two libraries.
  EXPECT_EQ(host.Progress.back().Progress.ImportSteps, 5 + 2 + 3 + 4);
  // Seven files, two for each of two libraries.
  EXPECT_EQ(host.Progress.back().Progress.ImportDone, 7 + 4);
  EXPECT_EQ(host.Progress.back().Maximum, 3);
  EXPECT_EQ(host.Progress.back().Value, 3);
}

TEST_F(GameImport, TellsWhatItIsDoing) {
  std::vector<std::string> texts;
  host.OnYield = [&] {
    if (texts.empty() || texts.back() != host.Text) texts.push_back(host.Text);
  };

  Run();

  const std::string names = "\r\n\r\nreading Names.dll Strings/XML-Code...";
  const std::string cards = "\r\n\r\nreading Cards.dll Strings/XML-Code...";
  const std::string lanes = "\r\n\r\nCalculation of Tradelanes...";
  const std::string docks = "\r\n\r\nCalculation of Stations, Planets, DockingRings...";
  EXPECT_THAT(texts, ElementsAre("", names, names + cards,
                                 "\r\n\r\nCalculation of Jumpholes and Jumpgates...", lanes,
                                 lanes + docks, lanes + docks + "\r\n\r\n(DONE)"));
}

TEST_F(GameImport, AMissingFileOfBasesIsALineInTheLog) {
  fs::remove(game.Path() / "DATA/missions/mbases.ini");

  EXPECT_TRUE(Run());

  EXPECT_THAT(DataLog(),
              Contains("Cant find file: [" + gameFolder.Text() + "\\data\\missions\\mbases.ini]"));
  EXPECT_THAT(Rows("GF_NPC"), IsEmpty());
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(GameImport, AMissingLibraryLeavesItsNumbersUnresolvedAndTheOthersInPlace) {
  fs::remove(game.Path() / "EXE/names.dll");

  EXPECT_TRUE(Run());

  ASSERT_THAT(host.Shown, SizeIs(1));
  EXPECT_THAT(host.Shown[0].Text, HasSubstr("\\exe\\Names.dll\" dynamic link error!"));
  EXPECT_THAT(Column("Systems", "realname"), ElementsAre("Li01(65537)", "Li02(65999)"));
  EXPECT_THAT(Column("ids_info", "ID"), ElementsAre("131079"));
}

TEST_F(GameImport, WithoutABasesLineThereAreNoObjects) {
  game.Write("EXE/freelancer.ini", WithCrLf("[Data]\nships = ships\\shiparch.ini\n"));

  Run();

  EXPECT_THAT(Rows("Objects"), IsEmpty());
  EXPECT_THAT(Rows("Systems"), SizeIs(2));
}

TEST_F(GameImport, TwoBasesLinesReadAllSystemsTwice) {
  game.Write("EXE/freelancer.ini", WithCrLf("[Data]\nbases\nBASES = x.ini\n"));

  Run();

  EXPECT_THAT(Rows("Objects"), SizeIs(2));
  EXPECT_THAT(Rows("systeminfo"), SizeIs(2));
  EXPECT_THAT(DataLog(), SizeIs(2));
}

TEST_F(GameImport, AnEmptyGameFolderGivesEmptyTables) {
  TempFolder empty;
  const GameFolder nothing(empty.Path().string());
  const ImportOrder order{nothing, Saves(), JetVersionOption::Version30, version};

  EXPECT_TRUE(ImportGame(log, host, db, order, {}).Finished);

  EXPECT_THAT(log.Failures(), IsEmpty());
  EXPECT_THAT(DataLog(), SizeIs(3));
  EXPECT_THAT(Rows("Version"), SizeIs(1));
}

TEST_F(GameImport, AFileIsNotStampedBeforeItIsCrunched) {
  saves.Write("SinglePlayer/build.mdb/in the way", "");  // the build file cannot take its name
  messages.Answer = MessageAnswer::Cancel;

  EXPECT_FALSE(Run());

  db.Close();
  db = DBEngine::OpenDatabase(mustWork, File());
  EXPECT_TRUE(db.HasTable("JumpNodes"));
  EXPECT_FALSE(db.HasTable("Version"));
}

TEST_F(GameImport, ItsFileIsUsableForTheSameMajorAndMinorVersion) {
  Run();
  db.Close();

  EXPECT_EQ(ExamineUniverse(mustWork, Saves(), {1, 7, 99}), UniverseState::Usable);
  EXPECT_EQ(ExamineUniverse(mustWork, Saves(), {1, 8, 3}), UniverseState::Absent);
  EXPECT_FALSE(fs::exists(File()));
}

TEST_F(GameImport, ItsFileServesTheWorkingCopy) {
  Run();
  db.Close();
  WorkingCopy copy;

  Recordset rows =
      copy.Of(mustWork, File())
          .OpenRecordset(mustWork, "SELECT * FROM gun WHERE ucase(nickname) = 'LASER'");

  EXPECT_EQ(rows.RecordCount(), 1u);
}

TEST_F(GameImport, AnImportThatEndsAtAnyMomentDoesNoHarm) {
  Run();
  db.Close();
  const int yields = host.Yields;
  ASSERT_GT(yields, 15);

  for (int last = 1; last <= yields; ++last) {
    fs::remove(File());
    host.Yields = 0;
    host.OnYield = [&] {
      if (host.Yields == last) throw ImportEnded{};
    };
    {
      Database broken;
      EXPECT_THROW(ImportGame(log, host, broken, Order(), Stages()), ImportEnded) << last;
    }
    const UniverseState state = ExamineUniverse(mustWork, Saves(), version);
    EXPECT_EQ(state, UniverseState::Absent) << last;
    host.OnYield = nullptr;
    EXPECT_TRUE(Run()) << last;
    EXPECT_THAT(Column("Objects", "nickname"), ElementsAre("Li01_01", "Li02_01")) << last;
    db.Close();
  }
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(GameImport, AFileThatIsThereAlreadyClashes) {
  Run();
  db.Close();
  messages.Answer = MessageAnswer::Cancel;

  EXPECT_FALSE(Run());

  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].What.Number, 3010);
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.Command1_Click");
  EXPECT_EQ(log.Failures()[0].Info, "While getting Data from FreeLancer");
}

class ImportIntoTrouble : public GameImport, public ::testing::WithParamInterface<MessageAnswer> {
 protected:
  void SetUp() override { messages.Answer = GetParam(); }
};

TEST_P(ImportIntoTrouble, AMissingSaveFolderGivesFailures) {
  fs::remove_all(Saves());

  const bool finished = Run();

  EXPECT_EQ(finished, GetParam() == MessageAnswer::Ok);
  EXPECT_THAT(log.Failures(), Not(IsEmpty()));
  EXPECT_EQ(log.Failures()[0].What.Number, 3024);
  EXPECT_FALSE(fs::exists(Saves()));
}

TEST_P(ImportIntoTrouble, AFolderInPlaceOfTheFileGivesFailures) {
  fs::create_directories(File() / "inside");

  Run();

  EXPECT_THAT(log.Failures(), Not(IsEmpty()));
}

TEST_P(ImportIntoTrouble, AFileThatIsNoDatabaseGivesFailures) {
  saves.Write("SinglePlayer/Orrerix.fl", std::string(5000, 'x'));

  Run();

  EXPECT_THAT(log.Failures(), Not(IsEmpty()));
}

TEST_P(ImportIntoTrouble, AFileThatAnotherProgramHoldsGivesFailures) {
  Database holder = DBEngine::CreateDatabase(mustWork, File(), JetVersionOption::Version30);
  holder.CreateTable(mustWork, VersionTable());
  holder.ExecuteNative(mustWork, "BEGIN EXCLUSIVE");

  Run();

  EXPECT_THAT(log.Failures(), Not(IsEmpty()));
}

TEST_P(ImportIntoTrouble, AReadOnlyFileGivesFailures) {
  DBEngine::CreateDatabase(mustWork, File(), JetVersionOption::Version30);
  fs::permissions(File(), fs::perms::owner_read);
  if (std::ofstream(File(), std::ios::app)) GTEST_SKIP() << "this user may write every file";

  Run();

  EXPECT_THAT(log.Failures(), Not(IsEmpty()));
}

TEST_P(ImportIntoTrouble, ASaveFolderWithAnApostropheBlanksAndOtherLettersIsNoTrouble) {
  const fs::path folder = saves.Path() / "it's größer";
  fs::create_directories(folder);
  const ImportOrder order{gameFolder, folder, JetVersionOption::Version30, version};

  EXPECT_TRUE(ImportGame(log, host, db, order, Stages()).Finished);

  EXPECT_THAT(log.Failures(), IsEmpty());
  EXPECT_TRUE(db.HasTable("Version"));
}

TEST_P(ImportIntoTrouble, ABuildFileThatCannotBeDeletedIsAFailure) {
  saves.Write("SinglePlayer/build.mdb/inside", "x");

  Run();

  ASSERT_THAT(log.Failures(), Not(IsEmpty()));
  EXPECT_EQ(log.Failures()[0].What.Number, 75);
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.Command1_Click");
}

INSTANTIATE_TEST_SUITE_P(Answers, ImportIntoTrouble,
                         ::testing::Values(MessageAnswer::Ok, MessageAnswer::Cancel),
                         [](const auto& test) {
                           return test.param == MessageAnswer::Ok ? "Ok" : "Cancel";
                         });

}  // namespace
}  // namespace orrerix
