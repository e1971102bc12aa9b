// SPDX-License-Identifier: MIT
#include "info/station/station_data.h"

#include <gmock/gmock.h>

#include "support/station_fixture.h"

namespace orrerix {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

using Station = StationFixture;

TEST_F(Station, CaptionAndInfoTellNamePlaceAndOwner) {
  Dock("pier", "Pier Nine");
  Object("pier", 100, "", "lamp_grp");
  Info(100, "A pier.");
  Add("Groups", {{"NickName", "lamp_grp"},
                 {"ids_name", 65537},
                 {"ids_short_name", 65538},
                 {"ids_info", 101}});
  Name(65537, "The Lamps");
  Name(65538, "Lamps");
  Info(101, "They shine.");

  const StationData data = Read("PIER");

  EXPECT_EQ(data.Caption, "Pier Nine  Lantern [X=D.6/Y=4.5]  Owner: Lamps");
  EXPECT_EQ(data.Info,
            "\r\nPier Nine  Lantern [X=D.6/Y=4.5]  Owner: Lamps\r\n\r\n"
            "A pier.\r\n\r\n"
            "The Lamps\r\n\r\nThey shine.\r\n");
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(Station, WithoutAnOwnerThereIsNoneInTheTexts) {
  Place("pier", "Pier Nine");
  Info(100, "A pier.");

  EXPECT_EQ(Read("pier").Caption, "Pier Nine  Lantern [X=D.6/Y=4.5]");
  EXPECT_EQ(Read("pier").Info, "\r\nPier Nine  Lantern [X=D.6/Y=4.5]\r\n\r\nA pier.\r\n\r\n");
}

TEST_F(Station, AnInfoThatNamesAClassGoesOnInTheNextNumber) {
  Place("pier", "Pier Nine");
  Info(100, "CLASS: Pier");
  Info(101, "Second half.");

  EXPECT_EQ(Read("pier").Info,
            "\r\nPier Nine  Lantern [X=D.6/Y=4.5]\r\n\r\nCLASS: Pier\r\n\r\nSecond half.\r\n\r\n");
}

TEST_F(Station, AClassInSmallLettersDoesNot) {
  Place("pier", "Pier Nine");
  Info(100, "A class of its own");
  Info(101, "Second half.");

  EXPECT_THAT(Read("pier").Info, ::testing::EndsWith("A class of its own\r\n\r\n"));
}

TEST_F(Station, TheBaseIsWhatTheObjectDocksWith) {
  Dock("pier", "Pier Nine");
  Object("pier", 100, " Pier_Base ");
  Place("buoy", "Buoy");

  EXPECT_EQ(Read("pier").Base, "Pier_Base");
  EXPECT_EQ(Read("buoy").Base, "buoy");
}

// A planet with a market and two docking rings.
class Planet : public Station {
 protected:
  Planet() {
    Place("whisper", "Whisper");
    for (const char* ring : {"ring_1", "ring_2"}) {
      Dock(ring, "Dockring: Whisper");
      Object(ring, 200, "Whisper_Base");
    }
    Info(100, "Diameter: 9 km");
    Info(101, "A quiet planet.");
    Info(200, "A ring.");
    Price("whisper", "commodity_gold", 50, 2);
    Good("commodity_gold", "Gold", 40);
  }
};

TEST_F(Planet, ARingShowsThePlanetsInfoAfterItsOwn) {
  EXPECT_EQ(Read("ring_2").Info,
            "\r\nDockring: Whisper  Lantern [X=D.6/Y=4.5]\r\n\r\nA ring.\r\n\r\n"
            "Diameter: 9 km\r\n\r\nA quiet planet.\r\n\r\n");
}

TEST_F(Planet, ARingShowsThePlanetsPrices) {
  for (const char* ring : {"ring_1", "ring_2"}) {
    const StationData data = Read(ring);

    EXPECT_EQ(data.Base, "Whisper");
    ASSERT_THAT(data.Prices, SizeIs(1));
    EXPECT_EQ(data.Prices[0].Price, "50");
    EXPECT_EQ(data.Prices[0].Difference, "10");
  }
}

TEST_F(Planet, ARingThatNamesNoPlanetKeepsItsBase) {
  Dock("ring_3", "Dockring: Nowhere");
  Object("ring_3", 200, "Nowhere_Base");

  EXPECT_EQ(Read("ring_3").Base, "Nowhere_Base");
  EXPECT_THAT(Read("ring_3").Info, ::testing::EndsWith("A ring.\r\n\r\n"));
}

TEST_F(Planet, ARingWithAShortBaseIsAFailureAndTellsOnlyItself) {
  Dock("ring_3", "Dockring: Nowhere");
  Object("ring_3", 200, "base");

  EXPECT_THAT(Read("ring_3").Info, ::testing::EndsWith("A ring.\r\n\r\n"));
  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].Source, "StationInfo.Form_Initialize");
  EXPECT_EQ(log.Failures()[0].Info, "While initializing Station-Infos");
  EXPECT_EQ(log.Failures()[0].What.Number, 5);
}

TEST_F(Station, AnObjectThatTheMapLacksHasNoTextsAndPricesButItsMarket) {
  Object("pier", 100, "pier_base");
  Info(100, "A pier.");
  Price("pier", "commodity_gold", 50, 2);
  Market("pier_base", "lamp");
  Add("Goods", {{"nickname", "lamp"}, {"realname", "Lamp"}, {"category", "equipment"}});

  const StationData data = Read("pier");

  EXPECT_EQ(data.Caption, "");
  EXPECT_EQ(data.Info, "");
  EXPECT_THAT(data.Prices, IsEmpty());
  EXPECT_THAT(data.Equipment, SizeIs(1));
}

TEST_F(Station, AnUnknownNicknameGivesNothing) {
  const StationData data = Read("nowhere");

  EXPECT_EQ(data.Caption, "");
  EXPECT_EQ(data.Info, "");
  EXPECT_EQ(data.Base, "nowhere");
  EXPECT_THAT(data.Prices, IsEmpty());
  EXPECT_THAT(data.Ships, IsEmpty());
  EXPECT_THAT(data.Equipment, IsEmpty());
  EXPECT_THAT(log.Failures(), IsEmpty());
}

}  // namespace
}  // namespace orrerix
