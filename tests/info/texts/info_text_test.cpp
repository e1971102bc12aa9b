// SPDX-License-Identifier: MIT
#include "info/texts/info_text.h"

#include <gmock/gmock.h>

#include "support/universe_fixture.h"

namespace orrerix {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class InfoText : public UniverseFixture {
 protected:
  // A section table with these keys.
  void Section(std::string_view name, std::initializer_list<std::string_view> keys) {
    TableDef table = GenericTable(name);
    for (std::string_view key : keys) {
      Field field;
      field.Name = key;
      field.Type = FieldType::Text;
      table.Fields.push_back(field);
    }
    db.CreateTable(mustWork, table);
  }

  void Good(std::string_view nickname, const Value& price, const Value& freeAmmo = {}) {
    Add("Goods", {{"nickname", nickname},
                  {"category", "equipment"},
                  {"price", price},
                  {"ids_info", 7},
                  {"free_ammo", freeAmmo}});
  }

  void Guns() {
    Section("gun", {"nickname", "refire_delay", "power_usage", "muzzle_velocity", "hp_gun_type",
                    "projectile_archetype"});
    Section("munition", {"nickname", "lifetime", "hull_damage", "energy_damage"});
  }
  void Gun(std::string_view refire = "0.25") {
    Add("gun", {{"nickname", "lamp_gun"},
                {"refire_delay", refire},
                {"power_usage", "16.474"},
                {"muzzle_velocity", "750"},
                {"hp_gun_type", "hp_gun_special_6"},
                {"projectile_archetype", "Lamp_Shot"}});
  }
  void Shot(const Value& energy) {
    Add("munition", {{"nickname", "lamp_shot"},
                     {"lifetime", "1.2"},
                     {"hull_damage", "4100.5"},
                     {"energy_damage", energy}});
  }

  std::string Text(std::string_view nickname, InfoType type) {
    return GetInfoTextType(universe, words, nickname, type);
  }
  std::string Equipment(std::string_view nickname) { return Text(nickname, InfoType::Equipment); }

  FixedLanguage english{Language::English};
  Wording words{english, {}};
};

TEST_F(InfoText, AShipTellsPriceTextsAndFigures) {
  Add("Ships", {{"NickName", "Lamp_Fighter"},
                {"price", 12500},
                {"ids_info1", 8},
                {"ids_info", 9},
                {"mass", 150.5},
                {"steering1", 43000},
                {"steering2", 43001},
                {"steering3", 230000},
                {"angular1", 41000},
                {"angular2", 41001},
                {"angular3", 141000},
                {"rotation1", 8400},
                {"rotation2", 8401},
                {"rotation3", 8402},
                {"nudge_force", 30000},
                {"strafe_force", 20000},
                {"strafe_power_usage", 2}});
  Add("ids_info", {{"ID", 8}, {"Info", "First."}, {"DLL", "x.dll"}});
  Add("ids_info", {{"ID", 9}, {"Info", "Second."}, {"DLL", "x.dll"}});

  EXPECT_EQ(Text("lamp_fighter", InfoType::Ship),
            "\r\n   Price: 12500   -  First.Second.\r\n"
            " Extra-Stats\r\n\r\n"
            " Mass:    \t150.5\r\n"
            " Steering:\t43000\t43001\t230000\r\n"
            " Angular: \t41000\t41001\t141000\r\n"
            " Rotation:\t8400\t8401\t8402\r\n"
            " Nudge-Force:\t30000\r\n"
            " Strafe-Force/-Powerusage: \t20000/2");
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(InfoText, AShipWithoutAPriceHasNoneInItsText) {
  Add("Ships", {{"NickName", "hulk"}, {"ids_info1", 0}, {"ids_info", 0}});

  EXPECT_THAT(Text("hulk", InfoType::Ship), HasSubstr("   Price:    -  "));
}

TEST_F(InfoText, UnknownNicknamesHaveNoText) {
  EXPECT_THAT(Text("nothing", InfoType::Ship), IsEmpty());
  EXPECT_THAT(Text("nothing", InfoType::Equipment), IsEmpty());
  EXPECT_THAT(Text("nothing", InfoType::Group), IsEmpty());
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(InfoText, ANumberThatIsNoTypeHasNoText) {
  Good("lamp", 100);

  EXPECT_THAT(Text("lamp", static_cast<InfoType>(4)), IsEmpty());
}

TEST_F(InfoText, AGoodTellsItsPriceAndItsInfo) {
  Good("lamp", 1200);
  Add("ids_info", {{"ID", 7}, {"Info", "It shines."}, {"DLL", "x.dll"}});

  EXPECT_EQ(Equipment("LAMP"), "\r\n   Price: 1200  -  It shines.");
}

TEST_F(InfoText, FreeAmmoIsPartOfThePrice) {
  Good("launcher", 1000, " Rocket , 50");
  Good("rocket", 12);
  Add("ids_info", {{"ID", 7}, {"Info", "Bang."}, {"DLL", "x.dll"}});

  // 1000 + 50 x 12
  EXPECT_EQ(Equipment("launcher"), "\r\n   Price: 1600  -  Bang.\r\n incl. 50 X Ammo á $12");
}

TEST_F(InfoText, FreeAmmoThatIsNoGoodLeavesThePriceAlone) {
  Good("launcher", 1000, "rocket, 50");

  EXPECT_THAT(Equipment("launcher"), HasSubstr("Price: 1000  -"));
  EXPECT_THAT(Equipment("launcher"), Not(HasSubstr("incl.")));
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(InfoText, FreeAmmoWithoutACommaLooksForAGoodWithoutANickname) {
  Good("launcher", 1000, "50 rockets");
  EXPECT_THAT(Equipment("launcher"), Not(HasSubstr("incl.")));

  Good("", 2);
  EXPECT_THAT(Equipment("launcher"), HasSubstr("Price: 1100  -"));
  EXPECT_THAT(Equipment("launcher"), HasSubstr(" incl. 50 X Ammo á $2"));
}

TEST_F(InfoText, APriceBeyondThirtyTwoBitsIsAFailureAndStaysAsItIs) {
  Good("launcher", 2000000000, "rocket, 50");
  Good("rocket", 200000000);

  EXPECT_THAT(Equipment("launcher"), HasSubstr("Price: 2000000000  -"));
  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.GetInfoTextType");
  EXPECT_EQ(log.Failures()[0].Info, "While getting Infodata for launcher Type #2");
  EXPECT_EQ(log.Failures()[0].What.Number, 6);
}

TEST_F(InfoText, AShieldTellsItsFigures) {
  Section("shieldgenerator", {"nickname", "max_capacity", "rebuild_power_draw", "regeneration_rate",
                              "shield_type", "hp_type"});
  Add("shieldgenerator", {{"nickname", "lamp_shield"},
                          {"max_capacity", "12765.175"},
                          {"rebuild_power_draw", "1010.5"},
                          {"regeneration_rate", "17"},
                          {"shield_type", "S_Graviton01"},
                          {"hp_type", "hp_shield_1"}});

  EXPECT_EQ(Equipment("lamp_shield"),
            "\r\n\r\n            Max-Capacity: 12,765.18"
            "\r\n Rebuild Power usage / s: 1,011"
            "\r\n Regeneration per second: 17.00"
            "\r\n\r\n             Shield-Type: S_Graviton01"
            "\r\n        Needed Hardpoint: hp_shield_1");
}

TEST_F(InfoText, AGunWithEnergyDamageTellsBothDamages) {
  Guns();
  Gun();
  Shot("200");

  // 1 / 0.25; 750 x 1.2; 4100.5 x 0.25 = 1025.125; 200 x 0.25
  EXPECT_EQ(Equipment("lamp_gun"),
            "\r\n\r\n          Refire-Rate: 0.25 = 4.00 Shots per second"
            "\r\n          Power-Usage: 16.47"
            "\r\n     Projectile-Speed: 750"
            "\r\n     Needed Hardpoint: hp_gun_special_6"
            "\r\n\r\n             LifeTime: 1.20 = 900 Range"
            "\r\n          Hull-Damage: 1,025.13 = 4,101 per second"
            "\r\n Energy/Shield-Damage: 50.00 = 200 per second");
}

TEST_F(InfoText, AGunWithoutEnergyDamageDoesHalfItsHullDamageToShields) {
  Guns();
  Gun();
  Shot("0");

  // 4100.5 x 0.25 / 2 = 512.5625; 4100.5 / 2 = 2050.25
  EXPECT_THAT(Equipment("lamp_gun"),
              EndsWith("\r\n          Hull-Damage: 1,025.13 = 4,101 per second"
                       "\r\n        Shield-Damage: 512.56 = 2,050 per second"));
}

TEST_F(InfoText, AGoodThatIsAGunHasBothParts) {
  Guns();
  Gun();
  Good("lamp_gun", 100);

  EXPECT_THAT(Equipment("lamp_gun"), ::testing::StartsWith("\r\n   Price: 100  -  "));
  EXPECT_THAT(Equipment("lamp_gun"), HasSubstr("Refire-Rate"));
}

TEST_F(InfoText, AGunWithoutMunitionStopsAfterItsHardpoint) {
  Guns();
  Gun();

  EXPECT_THAT(Equipment("lamp_gun"), EndsWith("Needed Hardpoint: hp_gun_special_6"));
}

TEST_F(InfoText, AGunWithoutRefireHasNoRateAndTellsTheRest) {
  Guns();
  Gun("0");
  Shot("200");

  const std::string text = Equipment("lamp_gun");

  EXPECT_THAT(text, ::testing::StartsWith("\r\n          Power-Usage: 16.47"));
  EXPECT_THAT(text, EndsWith("Energy/Shield-Damage: 0.00 = 200 per second"));
  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].What.Number, 11);
}

TEST_F(InfoText, TablesAndFieldsThatNoFileHasFilledCountAsEmpty) {
  Section("gun", {"nickname", "refire_delay"});
  Add("gun", {{"nickname", "lamp_gun"}, {"refire_delay", "0.5"}});

  EXPECT_EQ(Equipment("lamp_gun"),
            "\r\n\r\n          Refire-Rate: 0.50 = 2.00 Shots per second"
            "\r\n          Power-Usage: 0.00"
            "\r\n     Projectile-Speed: 0"
            "\r\n     Needed Hardpoint: ");
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(InfoText, FiguresUseTheSignsOfTheLanguage) {
  Guns();
  Gun();
  Shot("2000000");
  words.Separators = {".", ","};

  EXPECT_THAT(Equipment("lamp_gun"),
              EndsWith("Energy/Shield-Damage: 500.000,00 = 2.000.000 per second"));
}

TEST_F(InfoText, AFactionTellsItsNameAndItsStory) {
  Add("Groups", {{"NickName", "lamp_grp"}, {"Name", "The Lamps"}, {"ids_info", 7}});
  Add("ids_info", {{"ID", 7}, {"Info", "They shine."}, {"DLL", "x.dll"}});

  EXPECT_EQ(Text("LAMP_GRP", InfoType::Group), "\r\nThe Lamps\r\n\r\nThey shine.");
}

TEST_F(InfoText, AQuoteInANicknameIsAFailureWithoutAText) {
  EXPECT_THAT(Text("a'b", InfoType::Ship), IsEmpty());
  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].What.Number, 3075);
  EXPECT_EQ(log.Failures()[0].Info, "While getting Infodata for a'b Type #1");
}

}  // namespace
}  // namespace orrerix
