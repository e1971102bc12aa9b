// SPDX-License-Identifier: MIT
#include "import/known_sections.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/reader_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class KnownSection : public ReaderFixture {
 protected:
  // The only row of a table.
  Row TheRow(std::string_view table) {
    const auto rows = Rows(table);
    EXPECT_THAT(rows, SizeIs(1)) << table;
    return rows.empty() ? Row() : rows.front();
  }
};

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

TEST_F(KnownSection, AGoodTakesAllItsFields) {
  Name(7, "Laser");
  Read(R"([Good]
nickname = gun01
category = equipment
equipment = li_gun01
msg_id_prefix = gcs_gun
price = 300 ; a bargain
ids_name = 7
ids_info = 8
ship = a_ship
hull = a_hull
free_ammo = mine_ammo, 10
)");

  const Row row = TheRow("Goods");
  EXPECT_EQ(row.at("nickname"), "gun01");
  EXPECT_EQ(row.at("category"), "equipment");
  EXPECT_EQ(row.at("equipment"), "li_gun01");
  EXPECT_EQ(row.at("msg_id_prefix"), "gcs_gun");
  EXPECT_EQ(row.at("price"), 300);
  EXPECT_EQ(row.at("realname"), "Laser");
  EXPECT_EQ(row.at("ids_info"), 8);
  EXPECT_EQ(row.at("ship"), "a_ship");
  EXPECT_EQ(row.at("hull"), "a_hull");
  EXPECT_EQ(row.at("free_ammo"), "mine_ammo, 10");
  EXPECT_THAT(Rows("Packages"), IsEmpty());
}

TEST_F(KnownSection, GoodsOfOneNicknameMayDifferInCategory) {
  Read(R"([Good]
nickname = fox
category = equipment
[Good]
nickname = Fox
category = shiphull
[Good]
nickname = FOX
category = Equipment
)");

  EXPECT_THAT(Column("Goods", "category"), ElementsAre("equipment", "shiphull"));
  EXPECT_THAT(DataLog(), SizeIs(1));
}

TEST_F(KnownSection, ACommodityGoodBearsTheNameOfItsCommodity) {
  Add("commodity", {{"nickname", "Commodity_Gold"}, {"realname", "Gold"}});
  Read(R"([Good]
nickname = commodity_gold
category = Commodity
equipment = commodity_gold
)");

  EXPECT_EQ(TheRow("Goods").at("realname"), "Gold");
}

TEST_F(KnownSection, ACommodityGoodWithoutACommodityIsNamedByItsEquipment) {
  Read(R"([Good]
nickname = commodity_gold
category = commodity
equipment = commodity_ gold ore
[Good]
nickname = commodity_tin
category = commodity
equipment = short
)");

  EXPECT_THAT(Column("Goods", "realname"), ElementsAre("gold ore", ""));
}

TEST_F(KnownSection, ANicknameWithAQuoteBreaksTheLookupOfItsCommodity) {
  Read("[Good]\nnickname = bob's\ncategory = commodity\nequipment = commodity_bob\n");

  // The query of the name's lookup is no statement; behind that the commodity is not found.
  EXPECT_EQ(TheRow("Goods").at("realname"), "bob");
  EXPECT_THAT(FailureNumbers(), ElementsAre(3075));
}

TEST_F(KnownSection, APackageHasARowForEachAddon) {
  Read(R"([Good]
nickname = fox_package
category = ship
hull = fox_hull
addon = engine, internal, 1
addon = gun, HpWeapon01, 2.6
[end]
)");

  const auto rows = Rows("Packages");
  ASSERT_THAT(rows, SizeIs(2));
  EXPECT_EQ(rows[0].at("PackageName"), "fox_package");
  EXPECT_EQ(rows[0].at("NickName"), "engine");
  EXPECT_EQ(rows[0].at("HardPoint"), "internal");
  EXPECT_EQ(rows[0].at("Val"), 1);
  EXPECT_EQ(rows[1].at("NickName"), "gun");
  EXPECT_EQ(rows[1].at("HardPoint"), "HpWeapon01");
  EXPECT_EQ(rows[1].at("Val"), 3);
  EXPECT_EQ(TheRow("Goods").at("nickname"), "fox_package");
}

TEST_F(KnownSection, AddonsWithFewerPartsLeaveTheOthersNull) {
  Read(R"([Good]
nickname = p
category = ship
hull = h
addon = one
addon = two ,  hp
[end]
)");

  const auto rows = Rows("Packages");
  ASSERT_THAT(rows, SizeIs(2));
  EXPECT_EQ(rows[0].at("NickName"), "one");
  EXPECT_TRUE(rows[0].at("HardPoint").IsNull());
  EXPECT_TRUE(rows[0].at("Val").IsNull());
  EXPECT_EQ(rows[1].at("NickName"), "two");
  EXPECT_EQ(rows[1].at("HardPoint"), "hp");
  EXPECT_TRUE(rows[1].at("Val").IsNull());
}

TEST_F(KnownSection, WhatFollowsTheLastAddonGivesNamelessRowsOfSixCharacters) {
  // Behind the last value two characters of it are left, then CR LF, "price = 5", CR LF: 15. The
  // rounds begin at 15, 9 and end at 3, which is not more than 3.
  Read(R"([Good]
nickname = p
category = ship
hull = h
addon = abcd, e, 1
price = 5
)");

  EXPECT_THAT(Column("Packages", "NickName"), ElementsAre("abcd", "", ""));
  EXPECT_EQ(Rows("Packages")[1].at("PackageName"), "p");
  EXPECT_TRUE(Rows("Packages")[1].at("HardPoint").IsNull());
  EXPECT_TRUE(Rows("Packages")[1].at("Val").IsNull());
}

TEST_F(KnownSection, TheEndOfAPackageMayGiveOneNamelessRow) {
  // Two characters of the value, CR LF and, of an empty line, the CR (the character before the
  // next header is lost): 5, which are more than 3. Without the empty line there would be 3.
  Read(R"([Good]
nickname = p
category = ship
hull = h
addon = abcd, e, 1

[Good]
nickname = q
category = other
)");

  EXPECT_THAT(Column("Packages", "NickName"), ElementsAre("abcd", ""));
}

TEST_F(KnownSection, OnlyTheExactCategoryShipMakesAPackage) {
  Read(R"([Good]
nickname = a
category = Ship
hull = h
addon = x, y, 1
[Good]
nickname = b
category = ship
addon = x, y, 1
)");

  EXPECT_THAT(Rows("Packages"), IsEmpty());
  EXPECT_THAT(Rows("Goods"), SizeIs(2));
}

TEST_F(KnownSection, ABaseSellsEachMarketGood) {
  Read(R"([BaseGood]
base = Li01_01_Base
MarketGood = commodity_gold, 0, -1, 150, 500, 0, 0.8
marketgood = commodity_tin,1,2,3
MarketGood = scanner
)");

  const auto rows = Rows("BaseGoods");
  ASSERT_THAT(rows, SizeIs(3));
  EXPECT_EQ(rows[0].at("Base"), "Li01_01_Base");
  EXPECT_EQ(rows[0].at("GoodNick"), "commodity_gold");
  EXPECT_EQ(rows[0].at("val1"), 0.0);
  EXPECT_EQ(rows[0].at("val2"), -1.0);
  EXPECT_EQ(rows[0].at("val3"), 150.0);
  EXPECT_EQ(rows[0].at("val4"), 500.0);
  EXPECT_EQ(rows[0].at("val5"), 0.0);
  EXPECT_EQ(rows[0].at("val6"), 0.8);
  // Too few numbers: the last one repeats.
  EXPECT_EQ(rows[1].at("val1"), 1.0);
  EXPECT_EQ(rows[1].at("val3"), 3.0);
  EXPECT_EQ(rows[1].at("val6"), 3.0);
  EXPECT_EQ(rows[2].at("GoodNick"), "scanner");
  EXPECT_EQ(rows[2].at("val1"), 0.0);
  EXPECT_EQ(rows[2].at("val6"), 0.0);
}

TEST_F(KnownSection, ADoubledMarketGoodIsLoggedWithItsLine) {
  Read(R"([BaseGood]
base = b
MarketGood = fox, 1, 1
MarketGood = Fox, 2, 2
MarketGood = hound, 3, 3
)");

  EXPECT_THAT(Column("BaseGoods", "GoodNick"), ElementsAre("fox", "hound"));
  EXPECT_THAT(DataLog(), ElementsAre("#--- Error in FL-MOD-File:\r\n" + Path("\\data\\test.ini") +
                                     "\r\nCant add to Database (cause of allready exist):\r\n"
                                     "[BaseGood]\r\nbase = b\n-> Fox, 2, 2\r\n---."));
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

TEST_F(KnownSection, AShipTakesAllItsFigures) {
  Name(9, "Foxhound");
  Read(R"([Ship]
ids_name = 9
ids_info = 10
ids_info1 = 11
ids_info2 = 12
ids_info3 = 13
ship_class = 1
nickname = li_fighter
type = FIGHTER
mass = 150.5
hold_size = 45
linear_drag = 0.25
max_bank_angle = 35
nanobot_limit = 33
shield_battery_limit = 34
hit_pts = 2800
steering_torque = 45000.5, 46000, 47000
angular_drag = 41000,42000
rotation_inertia = 8400
nudge_force = 30000
strafe_force = 20000
strafe_power_usage = 2.5
)");

  const Row row = TheRow("Ships");
  EXPECT_EQ(row.at("NickName"), "li_fighter");
  EXPECT_EQ(row.at("Type"), "FIGHTER");
  EXPECT_EQ(row.at("RealName"), "Foxhound");
  EXPECT_EQ(row.at("ids_name"), 9);
  EXPECT_EQ(row.at("ids_info"), 10);
  EXPECT_EQ(row.at("ids_info1"), 11);
  EXPECT_EQ(row.at("ids_info2"), 12);
  EXPECT_EQ(row.at("ids_info3"), 13);
  EXPECT_EQ(row.at("ship_class"), 1);
  EXPECT_EQ(row.at("mass"), 150.5);
  EXPECT_EQ(row.at("hold_size"), 45);
  EXPECT_EQ(row.at("linear_drag"), 0.25);
  EXPECT_EQ(row.at("max_bank_angel"), 0);
  EXPECT_EQ(row.at("nanobot_limit"), 33);
  EXPECT_EQ(row.at("shield_battery_limit"), 34);
  EXPECT_EQ(row.at("hit_pts"), 2800);
  EXPECT_EQ(row.at("steering1"), 45000.5);
  EXPECT_EQ(row.at("steering2"), 46000.0);
  EXPECT_EQ(row.at("steering3"), 47000.0);
  EXPECT_EQ(row.at("angular1"), 41000.0);
  EXPECT_EQ(row.at("angular2"), 42000.0);
  EXPECT_EQ(row.at("angular3"), 0.0);
  EXPECT_EQ(row.at("rotation1"), 8400.0);
  EXPECT_EQ(row.at("rotation2"), 0.0);
  EXPECT_EQ(row.at("nudge_force"), 30000.0);
  EXPECT_EQ(row.at("strafe_force"), 20000.0);
  EXPECT_EQ(row.at("strafe_power_usage"), 2.5);
  EXPECT_TRUE(row.at("price").IsNull());
  EXPECT_TRUE(row.at("packagename").IsNull());
}

TEST_F(KnownSection, TheMisspeltBankAngleIsReadUnderItsMisspelling) {
  Read("[Ship]\nnickname = a\nmax_bank_angel = 35\n");

  EXPECT_EQ(TheRow("Ships").at("max_bank_angel"), 35);
}

TEST_F(KnownSection, AShipHasARowForEachHardpointLine) {
  Read(R"([Ship]
nickname = fox
hp_type = hp_gun, HpWeapon01, HpWeapon02
hp_type = hp_shield , HpShield01
HP_TYPE = hp_engine, HpEngine01
)");

  const auto rows = Rows("Ships_Hardpoints");
  ASSERT_THAT(rows, SizeIs(2));  // the key counts in this spelling only
  EXPECT_EQ(rows[0].at("NickName"), "fox");
  EXPECT_EQ(rows[0].at("EquipType"), "hp_gun");
  EXPECT_EQ(rows[0].at("HardPoints"), "HpWeapon01, HpWeapon02");
  EXPECT_EQ(rows[1].at("EquipType"), "hp_shield");
  EXPECT_EQ(rows[1].at("HardPoints"), "HpShield01");
}

TEST_F(KnownSection, AHardpointLineBeforeTheTypeIsTakenForTheType) {
  Read("[Ship]\nnickname = fox\nhp_type = hp_gun, Hp1\ntype = FIGHTER\n");

  EXPECT_EQ(TheRow("Ships").at("Type"), "hp_gun, Hp1");
}

TEST_F(KnownSection, AHardpointLineWithoutACommaKeepsItsValue) {
  Read("[Ship]\nnickname = fox\nhp_type = hp_gun\n");

  EXPECT_TRUE(TheRow("Ships_Hardpoints").at("EquipType").IsNull());
  EXPECT_EQ(TheRow("Ships_Hardpoints").at("HardPoints"), "hp_gun");
  EXPECT_THAT(FailureNumbers(), ElementsAre(5));
}

TEST_F(KnownSection, AnEmptyHardpointFieldIsAFailure) {
  Read("[Ship]\nnickname = fox\nhp_type = , Hp1\n");

  EXPECT_TRUE(TheRow("Ships_Hardpoints").at("EquipType").IsNull());
  EXPECT_EQ(TheRow("Ships_Hardpoints").at("HardPoints"), "Hp1");
  ASSERT_THAT(FailureNumbers(), ElementsAre(3315));
  EXPECT_EQ(log.Failures()[0].What.Description,
            "Field 'Ships_Hardpoints.EquipType' can't be a zero-length string.");
}

TEST_F(KnownSection, ALoadoutHoldsCargoThenEquipment) {
  Read(R"([Loadout]
nickname = fox_loadout
equip = gun, HpWeapon01
equip = engine
cargo = shield_battery, 12
cargo = nanobot
)");

  EXPECT_THAT(Column("Loadout_Cargo", "Cargo"),
              ElementsAre("shield_battery", "nanobot", "gun", "engine"));
  const auto rows = Rows("Loadout_Cargo");
  EXPECT_EQ(rows[0].at("NickName"), "fox_loadout");
  EXPECT_EQ(rows[0].at("Count"), 12);
  EXPECT_TRUE(rows[1].at("Count").IsNull());
  EXPECT_EQ(rows[2].at("Count"), 1);
  EXPECT_EQ(rows[3].at("Count"), 1);
}

TEST_F(KnownSection, ASumOverCargoPassesOverAnEmptyCount) {
  Read("[Loadout]\nnickname = a\ncargo = x, 12\ncargo = x\n");

  Recordset sum = db.OpenRecordset(mustWork, "SELECT sum(Count) AS total FROM Loadout_Cargo");
  EXPECT_EQ(sum["total"].Get(), 12);
}

TEST_F(KnownSection, ACargoCountOutsideItsFieldIsAFailure) {
  Read("[Loadout]\nnickname = a\ncargo = x, 32768\ncargo = y, 32767\n");

  EXPECT_TRUE(Rows("Loadout_Cargo")[0].at("Count").IsNull());
  EXPECT_EQ(Rows("Loadout_Cargo")[1].at("Count"), 32767);
  EXPECT_THAT(FailureNumbers(), ElementsAre(6));
}

TEST_F(KnownSection, CargoWithoutABlankBeforeItsSignIsReadToo) {
  Read("[Loadout]\nnickname = a\ncargo=x, 2\ncargo=y, 3\n");

  EXPECT_THAT(Column("Loadout_Cargo", "Cargo"), ElementsAre("x", "y"));
}

TEST_F(KnownSection, EquipmentWithoutABlankBeforeItsSignIsReadAgainAndAgain) {
  // "[Loadout]" CR LF is 11 characters, "nickname = a" CR LF 14: the line begins behind 25. Cuts
  // of 7 leave 18, 11, 4 characters before it; then it loses its front. That is four rows.
  Read("[Loadout]\nnickname = a\nequip=gun\n");

  EXPECT_THAT(Column("Loadout_Cargo", "Cargo"), ElementsAre("gun", "gun", "gun", "gun"));
}

TEST_F(KnownSection, HeadersAreKnownInWhateverCase) {
  Read("[OBJECT]\nnickname = a\n[object]\nnickname = b\n[oBjEcT]\nnickname = c\n");

  EXPECT_THAT(Column("Objects", "nickname"), ElementsAre("a", "b", "c"));
}

TEST_F(KnownSection, AHeaderWithOneMoreLetterIsAnotherSection) {
  Read("[Objects2]\nnickname = a\n[Object ]\nnickname = b\n");
  StoreSections();

  EXPECT_THAT(Rows("Objects"), IsEmpty());
  EXPECT_THAT(Column("objects2", "nickname"), ElementsAre("a"));
  EXPECT_THAT(Column("object ", "nickname"), ElementsAre("b"));
}

}  // namespace
}  // namespace orrerix
