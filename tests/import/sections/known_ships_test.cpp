// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "import/sections/known_sections.h"
#include "support/known_section_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

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
  // "[Loadout]" CR LF is 11 characters, "nickname = a" CR LF 14: the line begins after 25. Cuts
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
