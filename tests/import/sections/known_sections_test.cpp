// SPDX-License-Identifier: MIT
#include "import/sections/known_sections.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/failing_memory.h"
#include "support/known_section_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

TEST_F(KnownSection, ASystemHasItsCellOneToTheRightAndTwoDown) {
  Read(R"([system]
nickname = Li01
file = systems\LI01\LI01.ini
pos = 3, 5
strid_name = 196609
NavMapScale = 1.36
)");

  const Row row = TheRow("Systems");
  EXPECT_EQ(row.at("nickname"), "Li01");
  EXPECT_EQ(row.at("file"), "systems\\LI01\\LI01.ini");
  EXPECT_EQ(row.at("pos_original"), "3, 5");
  EXPECT_EQ(row.at("pos"), "4, 7");
  EXPECT_EQ(row.at("stridname"), 196609);
  EXPECT_EQ(row.at("navmapscale"), "1.36");
  EXPECT_EQ(row.at("realname"), "Li01(196609)");
  EXPECT_GT(row.at("ID").Number(), 0);
  EXPECT_EQ(import.Progress.ImportSteps, 6);
}

struct CellCase {
  std::string_view Pos;
  std::string_view Cell;
};

class MapCellOf : public KnownSection, public ::testing::WithParamInterface<CellCase> {};

TEST_P(MapCellOf, ASystem) {
  Read("[System]\nnickname = a\npos = " + std::string(GetParam().Pos) + "\n");

  EXPECT_EQ(TheRow("Systems").at("pos"), GetParam().Cell);
}

INSTANTIATE_TEST_SUITE_P(Positions, MapCellOf,
                         ::testing::Values(CellCase{"5, 3", "6, 5"}, CellCase{"5,3", "6, 5"},
                                           CellCase{"-4, -3", "-3, -1"},
                                           // Halves round away from zero.
                                           CellCase{"1.5, 2.5", "3, 5"},
                                           CellCase{"-2.5, 1.4", "-2, 3"},
                                           // Numbers end at what is none.
                                           CellCase{"2x, 3, 9", "3, 5"}, CellCase{", ", "1, 2"},
                                           CellCase{"a, b", "1, 2"}));

TEST_F(KnownSection, ASystemWhosePosHasNoCommaIsLeftWithoutACell) {
  Read("[System]\nnickname = a\npos = 5\n");

  EXPECT_TRUE(TheRow("Systems").at("pos").IsNull());
  EXPECT_EQ(TheRow("Systems").at("pos_original"), "5");
  EXPECT_THAT(FailureNumbers(), ElementsAre(5));
}

TEST_F(KnownSection, ASystemWhosePosIsBeyondAllNumbersIsLeftWithoutACell) {
  Read("[System]\nnickname = a\npos = 1e999, 5\n");

  EXPECT_TRUE(TheRow("Systems").at("pos").IsNull());
  EXPECT_THAT(FailureNumbers(), ElementsAre(6));
}

TEST_F(KnownSection, ASystemNumberOutsideItsFieldLeavesNumberAndNameNull) {
  Read("[System]\nnickname = a\npos = 1, 1\nstrid_name = 3000000000\n");

  EXPECT_TRUE(TheRow("Systems").at("stridname").IsNull());
  EXPECT_TRUE(TheRow("Systems").at("realname").IsNull());
  EXPECT_THAT(FailureNumbers(), ElementsAre(6, 94));
}

TEST_F(KnownSection, KeysThatAreMissingGiveEmptyTextsAndZeros) {
  Read("[System]\nnickname = a\npos = 1, 1\n");

  const Row row = TheRow("Systems");
  EXPECT_EQ(row.at("file"), "");
  EXPECT_EQ(row.at("navmapscale"), "");
  EXPECT_EQ(row.at("stridname"), 0);
  EXPECT_EQ(row.at("realname"), "a(0)");
}

TEST_F(KnownSection, ACommodityKeepsWholeNumbersOnly) {
  Name(196700, "Gold Ore");
  Read(R"([Commodity]
nickname = commodity_gold
ids_name = 196700
ids_info = 131077
units_per_container = 10.5
decay_per_second = 0.4
volume = 1.5
)");

  const Row row = TheRow("commodity");
  EXPECT_EQ(row.at("nickname"), "commodity_gold");
  EXPECT_EQ(row.at("realname"), "Gold Ore");
  EXPECT_EQ(row.at("ids_name"), 196700);
  EXPECT_EQ(row.at("ids_info"), 131077);
  EXPECT_EQ(row.at("units_per_container"), 10);  // ties to even
  EXPECT_EQ(row.at("decay_per_second"), 0);
  EXPECT_EQ(row.at("volume"), 2);
}

TEST_F(KnownSection, AnObjectBelongsToTheSystemThatIsBeingRead) {
  Name(1, "Planet Fox");
  Name(2, "Fox Space");
  Read(R"([Object]
nickname = Li01_01
ids_name = 1
pos = -1000, 0, 2000
archetype = planet_earth
jump_effect = jump_in
reputation = li_n_grp
difficulty_level = 3
goto = Li02, Li02_to_Li01, gate
dock_with = Li01_01_Base
loadout = planet_loadout
prev_ring = ring_1
next_ring = ring_2
tradelane_space_name = 2
ids_info = 66146
)",
       "Li01");

  const Row row = TheRow("Objects");
  EXPECT_EQ(row.at("nickname"), "Li01_01");
  EXPECT_EQ(row.at("realname"), "Planet Fox");
  EXPECT_EQ(row.at("pos"), "-1000, 0, 2000");
  EXPECT_EQ(row.at("ids_name"), 1);
  EXPECT_EQ(row.at("ids_info"), 66146);
  EXPECT_EQ(row.at("archetype"), "planet_earth");
  EXPECT_EQ(row.at("jump_effect"), "jump_in");
  EXPECT_EQ(row.at("reputation"), "li_n_grp");
  EXPECT_EQ(row.at("difficulty_level"), "3");
  EXPECT_EQ(row.at("goto"), "Li02, Li02_to_Li01, gate");
  EXPECT_EQ(row.at("dock_with"), "Li01_01_Base");
  EXPECT_EQ(row.at("loadout"), "planet_loadout");
  EXPECT_EQ(row.at("sys_nick"), "Li01");
  EXPECT_EQ(row.at("prev_ring"), "ring_1");
  EXPECT_EQ(row.at("next_ring"), "ring_2");
  EXPECT_EQ(row.at("tradelane_space_name"), 2);
  EXPECT_EQ(row.at("realspacename"), "Fox Space");
  EXPECT_EQ(row.at("has_commodities"), 0);
}

TEST_F(KnownSection, AnObjectWithoutASpaceNameShowsItsNumberInBrackets) {
  Read("[Object]\nnickname = a\n");

  EXPECT_EQ(TheRow("Objects").at("realspacename"), "(0)");
  EXPECT_EQ(TheRow("Objects").at("realname"), "a(0)");
}

TEST_F(KnownSection, ASecondObjectOfTheSameNicknameIsLoggedWithItsBlock) {
  Read("[Object]\nnickname = Fox\npos = 1,1,1\n[Object]\nnickname = FOX\npos = 2,2,2\n");

  EXPECT_EQ(TheRow("Objects").at("pos"), "1,1,1");
  EXPECT_THAT(log.Failures(), IsEmpty());
  EXPECT_THAT(DataLog(), ElementsAre("#--- Error in FL-MOD-File:\r\n" + Path("\\data\\test.ini") +
                                     "\r\nCant add to Database (cause of allready exist):\r\n"
                                     "[Object]\r\nnickname = FOX\r\npos = 2,2,2\r\n\r\n---."));
}

TEST_F(KnownSection, AnObjectWithoutANicknameHasAnEmptyOne) {
  // An empty text is no Null: the key takes it once.
  Read("[Object]\npos = 1,1,1\n[Object]\npos = 2,2,2\n");

  EXPECT_EQ(TheRow("Objects").at("nickname"), "");
  EXPECT_THAT(log.Failures(), IsEmpty());
  EXPECT_THAT(DataLog(), SizeIs(1));
}

TEST_F(KnownSection, ATextLongerThanItsFieldIsAFailureOfThatAssignmentOnly) {
  const std::string name(256, 'x');
  Read("[Object]\nnickname = a\nreputation = " + name + "\narchetype = b\n");

  EXPECT_TRUE(TheRow("Objects").at("reputation").IsNull());
  EXPECT_EQ(TheRow("Objects").at("archetype"), "b");
  EXPECT_THAT(FailureNumbers(), ElementsAre(3163));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.ReadINI");
  EXPECT_EQ(log.Failures()[0].Info, "While working on - [Object]\r\nnickname = a\r\nreputation = " +
                                        name + "\r\narchetype = b\r\n");
}

TEST_F(KnownSection, AnObjectWhoseNicknameIsTooLongHasNoKey) {
  Read("[Object]\nnickname = " + std::string(256, 'x') + "\n");

  EXPECT_THAT(Rows("Objects"), IsEmpty());
  // The assignment; the name of a Null nickname; the key.
  EXPECT_THAT(FailureNumbers(), ElementsAre(3163, 94, 3058));
}

TEST_F(KnownSection, ACancelledFailureEndsTheFile) {
  messages.Answer = MessageAnswer::Cancel;

  Read("[System]\nnickname = a\npos = 5\n[System]\nnickname = b\npos = 1, 1\n");

  EXPECT_THAT(Rows("Systems"), IsEmpty());
  EXPECT_THAT(FailureNumbers(), ElementsAre(5));
}

TEST_F(KnownSection, ResourcesKeepTheOrderOfTheirLines) {
  Read(R"([Resources]
DLL = InfoCards.dll		;names
dll = MiscText.dll
DLL = NameResources.dll
)");

  EXPECT_THAT(Column("resources", "DLL"),
              ElementsAre("InfoCards.dll\t\t", "MiscText.dll", "NameResources.dll"));
}

TEST_F(KnownSection, AnEmptyLibraryLineEndsTheResources) {
  Read("[Resources]\nDLL = \nDLL = b.dll\n");

  EXPECT_THAT(Column("resources", "DLL"), ElementsAre(""));
}

TEST_F(KnownSection, ALibraryLineWithoutABlankBeforeItsSignIsNotSeen) {
  Read("[Resources]\nDLL=a.dll\nDLL = b.dll\n");

  EXPECT_THAT(Column("resources", "DLL"), ElementsAre("b.dll"));
}

TEST_F(KnownSection, DataNamesTheFilesOfEightKinds) {
  Read(R"([Data]
equipment = equipment\misc_equip.ini
universe = universe\universe.ini
ships = ships\shiparch.ini
Goods = equipment\goods.ini
loadouts=ships\loadouts.ini
markets = equipment\market_misc.ini
WeaponModDB = equipment\weaponmoddb.ini
groups = initialworld.ini
bases
fonts = fonts\fonts.ini
)");

  EXPECT_THAT(Column("DataFiles", "type"),
              ElementsAre("equipment", "ships", "Goods", "loadouts", "markets", "WeaponModDB",
                          "groups", "bases"));
  EXPECT_THAT(
      Column("DataFiles", "pathfile"),
      ElementsAre("equipment\\misc_equip.ini", "ships\\shiparch.ini", "equipment\\goods.ini",
                  "ships\\loadouts.ini", "equipment\\market_misc.ini", "equipment\\weaponmoddb.ini",
                  "initialworld.ini", ""));
  EXPECT_EQ(import.Progress.ImportSteps, 5 + 8);
}

TEST_F(KnownSection, DataLinesAreTrimmedOfBlanksAndTabs) {
  Read("[Data]\n\t bases\t\t\n\tships\t = a.ini \t\n  goods = b.ini\t;x\n");

  EXPECT_THAT(Column("DataFiles", "type"), ElementsAre("bases", "ships", "goods"));
  EXPECT_THAT(Column("DataFiles", "pathfile"), ElementsAre("", "a.ini", "b.ini"));
}

TEST_F(KnownSection, ADataLineWithoutASignCountsOnlyIfItIsBases) {
  Read("[Data]\nships\nbasesx\nBases\n");

  EXPECT_THAT(Column("DataFiles", "type"), ElementsAre("Bases"));
}

TEST_F(KnownSection, ADataLineWithAnEmptyValueIsAFailureAndStands) {
  Read("[Data]\nships = \ngoods = g.ini\n");

  EXPECT_THAT(FailureNumbers(), ElementsAre(5));
  EXPECT_THAT(Column("DataFiles", "type"), ElementsAre("ships", "goods"));
  EXPECT_THAT(Column("DataFiles", "pathfile"), ElementsAre("", "g.ini"));
}

TEST_F(KnownSection, ACharacterHasARowForEachBribe) {
  Read(R"([MBase]
nickname = Li01_01_Base
[GF_NPC]
nickname = li0101_fix
individual_name = 220017
affiliation = li_n_grp
bribe = fc_c_grp, 15000, 220070
bribe = fc_j_grp, 1
[GF_NPC]
nickname = silent
affiliation = li_n_grp
)");

  const auto rows = Rows("GF_NPC");
  ASSERT_THAT(rows, SizeIs(2));
  EXPECT_EQ(rows[0].at("BaseNick"), "Li01_01_Base");
  EXPECT_EQ(rows[0].at("NickName"), "li0101_fix");
  EXPECT_EQ(rows[0].at("individual_name"), 220017);
  EXPECT_EQ(rows[0].at("affiliation"), "li_n_grp");
  EXPECT_EQ(rows[0].at("bribe"), "fc_c_grp");
  EXPECT_EQ(rows[0].at("bribe_2"), 15000);
  EXPECT_EQ(rows[0].at("bribe_3"), 220070);
  EXPECT_EQ(rows[1].at("bribe"), "fc_j_grp");
  EXPECT_EQ(rows[1].at("bribe_2"), 1);
  EXPECT_EQ(rows[1].at("bribe_3"), 0);
}

TEST_F(KnownSection, ACharacterBeforeAnyBaseHasNone) {
  Read(
      "[GF_NPC]\nnickname = a\nbribe = b, 1, 2\n[MBase]\nnickname = c\n"
      "[GF_NPC]\nnickname = d\nbribe = e, 1, 2\n");

  EXPECT_THAT(Column("GF_NPC", "BaseNick"), ElementsAre("", "c"));
}

TEST_F(KnownSection, ABribeWithoutACommaLeavesItsFieldNull) {
  Read("[GF_NPC]\nnickname = a\nbribe = fox\n");

  EXPECT_TRUE(TheRow("GF_NPC").at("bribe").IsNull());
  EXPECT_EQ(TheRow("GF_NPC").at("bribe_2"), 0);
  EXPECT_THAT(FailureNumbers(), ElementsAre(5));
}

TEST_F(KnownSection, TheBaseOfOneFileIsForgottenInTheNext) {
  Read("[MBase]\nnickname = c\n");
  Read("[GF_NPC]\nnickname = a\nbribe = b, 1, 2\n");

  EXPECT_EQ(TheRow("GF_NPC").at("BaseNick"), "");
}

TEST_F(KnownSection, AGroupHasItsNumbers) {
  Read(
      "[Group]\nnickname = li_n_grp\nids_name = 196846\nids_info = 66200\nids_short_name = "
      "196900\n");

  const Row row = TheRow("Groups");
  EXPECT_EQ(row.at("NickName"), "li_n_grp");
  EXPECT_EQ(row.at("ids_name"), 196846);
  EXPECT_EQ(row.at("ids_info"), 66200);
  EXPECT_EQ(row.at("ids_short_name"), 196900);
  EXPECT_TRUE(row.at("Name").IsNull());
  EXPECT_TRUE(row.at("SName").IsNull());
}

TEST_F(KnownSection, AValueWithoutMemoryIsNullAndTheNextStatementRuns) {
  host.Answer = MessageAnswer::Ignore;
  const std::string block = "[Object]\nnickname = a\narchetype = " + std::string(5000, 'x') +
                            "\nreputation = r\nother = " + std::string(500, 'c') +
                            "\nloadout = l\n";
  {
    // A text of 5,000 characters; the block and its copies are longer.
    const FailingSizes lack(5000, 5100);
    Read(block);
  }

  const Row row = TheRow("Objects");
  EXPECT_TRUE(row.at("archetype").IsNull());
  EXPECT_EQ(row.at("reputation"), "r");
  EXPECT_EQ(row.at("loadout"), "l");
  EXPECT_THAT(host.Shown, SizeIs(1));
}

TEST_F(KnownSection, MoreStepsThanTheirNumberHoldsAreAFailureAndTheNumberStays) {
  import.Progress.ImportSteps = 32766;

  Read("[Data]\nequipment = a.ini\nequipment = b.ini\n");

  EXPECT_EQ(import.Progress.ImportSteps, 32767);
  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.ReadINI");
  EXPECT_EQ(log.Failures()[0].What.Number, failure_number::kOverflow);
  EXPECT_THAT(Rows("DataFiles"), SizeIs(2));
}

}  // namespace
}  // namespace orrerix
