// SPDX-License-Identifier: MIT
#include "info/texts/hover_text.h"

#include <gmock/gmock.h>

#include "support/station_fixture.h"

namespace orrerix {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

class Hover : public StationFixture {
 protected:
  void Object(std::string_view nickname, const Value& reputation, const Value& loadout) {
    Add("Objects", {{"nickname", nickname}, {"reputation", reputation}, {"loadout", loadout}});
  }
  // An object without an owner, as the map and the game's files have it.
  void Wreck() {
    Dock("wreck", "Old Hulk");
    Object("wreck", "", "hulk_cargo");
  }
  void Cargo(const Value& cargo, const Value& count, std::string_view loadout = "hulk_cargo") {
    Add("Loadout_Cargo", {{"NickName", loadout}, {"Cargo", cargo}, {"Count", count}});
  }
  void Good(std::string_view nickname, std::string_view realname, const Value& price) {
    Add("Goods", {{"nickname", nickname},
                  {"category", "equipment"},
                  {"realname", realname},
                  {"price", price}});
  }

  std::string Text(std::string_view tag) { return HoverText(universe, names, english, tag); }
  // The cargo rows of the wreck, with the nickname below them.
  std::string Rows() {
    const std::string head = " Old Hulk\r\n Lantern [X=D.6/Y=4.5]\r\n\r\n";
    const std::string text = Text("wreck");
    EXPECT_EQ(text.substr(0, head.size()), head);
    return text.substr(head.size());
  }
};

TEST_F(Hover, AnOwnedObjectTellsNameOwnerAndPlace) {
  Dock("pier", "Pier Nine");
  Object("pier", "lamp_grp", "");
  Add("Groups", {{"NickName", "lamp_grp"}, {"ids_short_name", 65538}});
  Name(65538, "Lamps");

  EXPECT_EQ(Text("pier"),
            " Pier Nine\r\n Lamps\r\n Lantern [X=D.6/Y=4.5]\r\n\r\n (Click for more) pier");
}

TEST_F(Hover, AnObjectWhosePlaceIsUnknownHasAnEmptyLineForIt) {
  Add("DockObjects",
      {{"nickname", "pier"}, {"realname", "Pier Nine"}, {"MapX", 7}, {"MapY", 4}, {"PosY", 0.5}});
  Object("pier", "lamp_grp", "");

  EXPECT_EQ(Text("pier"),
            " Pier Nine\r\n Short-Name-ID: lamp_grp\r\n \r\n\r\n (Click for more) pier");
  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures().front().What.Number, 94);
}

TEST_F(Hover, AnOwnerWithoutAGroupIsToldByItsNickname) {
  Dock("pier", "Pier Nine");
  Object("pier", "lamp_grp", "");

  EXPECT_EQ(Text("pier"),
            " Pier Nine\r\n Short-Name-ID: lamp_grp\r\n Lantern [X=D.6/Y=4.5]\r\n\r\n"
            " (Click for more) pier");
}

TEST_F(Hover, TheCaseOfTheNicknameDoesNotMatter) {
  Dock("Pier", "Pier Nine");
  Object("PIER", "lamp_grp", "");

  EXPECT_THAT(Text("pier"), ::testing::StartsWith(" Pier Nine\r\n"));
}

TEST_F(Hover, AnObjectThatTheGamesFilesLackTellsOnlyItsNickname) {
  Dock("pier", "Pier Nine");

  EXPECT_EQ(Text("pier"), "pier");
}

TEST_F(Hover, AnObjectThatTheMapLacksTellsOnlyItsNickname) {
  Object("pier", "lamp_grp", "");

  EXPECT_EQ(Text("pier"), "pier");
}

TEST_F(Hover, AJumpIconTellsWhatItCarries) {
  EXPECT_EQ(Text("\r\n  Jumpgate\r\n  a TO\r\n  b"), "\r\n  Jumpgate\r\n  a TO\r\n  b");
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(Hover, ATagThatBreaksTheQueryIsAFailureAndStandsAlone) {
  EXPECT_EQ(Text("a'b"), "a'b");
  ASSERT_THAT(log.Failures(), SizeIs(2));  // both tables are asked
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.Image1_MouseMove");
  EXPECT_EQ(log.Failures()[0].Info, "");
  EXPECT_EQ(log.Failures()[0].What.Number, 3075);
}

TEST_F(Hover, AWreckWithNothingAboardTellsItsPlace) {
  Wreck();

  EXPECT_EQ(Rows(), "wreck");
}

TEST_F(Hover, AReputationOrLoadoutOfNullIsNone) {
  Dock("wreck", "Old Hulk");
  Object("wreck", Value(), Value());

  EXPECT_EQ(Rows(), "wreck");
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(Hover, CargoIsToldWithAmountNameAndPrice) {
  Wreck();
  Good("lamp", "Bright Lamp", 250);
  Cargo("lamp", 3);

  EXPECT_EQ(Rows(), " 3 x Bright Lamp á 250 = 750\r\nwreck");
}

TEST_F(Hover, CargoIsListedBackwardsByNickname) {
  Wreck();
  Good("b", "Second", 1);
  Good("a", "First", 1);
  Good("C", "Third", 1);
  Cargo("b", 1);
  Cargo("C", 1);
  Cargo("a", 1);

  EXPECT_EQ(Rows(), " 1 x Third á 1 = 1\r\n 1 x Second á 1 = 1\r\n 1 x First á 1 = 1\r\nwreck");
}

TEST_F(Hover, TheSameCargoIsOneRowUnderItsFirstSpelling) {
  Wreck();
  Cargo("Lamp", 1);
  Cargo("LAMP", 2);
  Cargo("lamp", 4, "HULK_CARGO");
  Cargo("lamp", 9, "another_cargo");

  EXPECT_EQ(Rows(), " NOT FOUND: Lamp\r\nwreck");
  Good("lamp", "Bright Lamp", 10);
  EXPECT_EQ(Rows(), " 7 x Bright Lamp á 10 = 70\r\nwreck");
}

TEST_F(Hover, CargoWithoutAGoodIsNotFoundAndStandsInFrontOfTheRowsBefore) {
  Wreck();
  Good("a", "First", 5);
  Cargo("a", 2);
  Cargo("b", 2);

  EXPECT_EQ(Rows(), " NOT FOUND: b\r\n 2 x First á 5 = 10\r\nwreck");
}

TEST_F(Hover, ACommodityHasItsOwnName) {
  Wreck();
  Good("commodity_Water", "of the good", 30);
  Add("commodity", {{"nickname", "commodity_water"}, {"realname", "Spring Water"}});
  Cargo("Commodity_water", 20);

  EXPECT_EQ(Rows(), " 20 x Spring Water á 30 = 600\r\nwreck");
}

TEST_F(Hover, AmmunitionIsNamedAfterItsGun) {
  Wreck();
  Good("flare_ammo", "", 4);
  Good("flare", "Flare Gun", 900);
  Cargo("Flare_Ammo", 50);

  EXPECT_EQ(Rows(), " 50 x Flare Gun-" + english.Text(TextId::Ammunition) + " á 4 = 200\r\nwreck");
}

TEST_F(Hover, AmmunitionWhoseGunIsMissingHasNoName) {
  Wreck();
  Good("flare_ammo", "Flares", 4);
  Cargo("flare_ammo", 50);

  EXPECT_EQ(Rows(), " 50 x  á 4 = 200\r\nwreck");
}

TEST_F(Hover, NullIsWrittenAsNothing) {
  Wreck();
  Good("a", "First", Value());
  Good("b", "Second", 5);
  Cargo("a", 2);
  Cargo("b", Value());

  EXPECT_EQ(Rows(), "  x Second á 5 = \r\n 2 x First á  = \r\nwreck");
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(Hover, LargeAmountsDoNotOverflow) {
  Wreck();
  Good("a", "First", 2000000000);
  Cargo("a", 30000);
  Cargo("a", 30000);

  EXPECT_EQ(Rows(), " 60000 x First á 2000000000 = 120000000000000\r\nwreck");
}

TEST_F(Hover, TheTagOfAnIconIsTheNicknameAsTheMapHasIt) {
  Dock("Pier_Nine", "");

  EXPECT_EQ(IconTag(universe, "PIER_nine"), "Pier_Nine");
  EXPECT_EQ(IconTag(universe, "Elsewhere"), "Elsewhere");
}

TEST_F(Hover, OnlyAnObjectOfTheMapOpensAStationWindow) {
  Dock("Pier_Nine", "");
  Object("buoy", "lamp_grp", "");

  EXPECT_TRUE(OpensStation(universe, "pier_nine"));
  EXPECT_FALSE(OpensStation(universe, "buoy"));
  EXPECT_FALSE(OpensStation(universe, "\r\n  Jumpgate\r\n  a TO\r\n  b"));
}

}  // namespace
}  // namespace orrerix
