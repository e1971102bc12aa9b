// SPDX-License-Identifier: MIT
#include "routes/travel.h"

#include <gmock/gmock.h>

#include "routes/travel_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

class TravelTest : public TravelFixture {
 protected:
  TravelTest() {
    System("li01");
    Dock("anvil", "li01", "0, 0, 0", "traders");
    Dock("brook", "li01", "3000, 0, 0");
    Add("Ships", {{"NickName", "hauler"}, {"hold_size", 250}});
    Add("BaseGoodPrices",
        {{"BaseNick", "anvil"}, {"GoodNick", "gold"}, {"Price", 100}, {"Sell", 1}});
  }

  Travel Read() { return ReadTravel(mustWork, db, request); }

  // The name that stands for nothing, with its kind.
  std::pair<NameKind, std::string> Unknown() {
    try {
      Read();
    } catch (const UnknownName& error) {
      return {error.Kind, error.Name};
    }
    return {NameKind::Place, "all are known"};
  }

  TravelRequest request;
};

TEST_F(TravelTest, TheShipSaysItsHoldAndTheCallerHasTheLastWordAboutSpeeds) {
  request.Ship = "Hauler";

  const Travel travel =
      ReadTravel(mustWork, db, request, [](TravelModel& m) { m.CruiseSpeed = 450; });

  EXPECT_EQ(travel.ShipHold, 250);
  EXPECT_EQ(travel.Model.CruiseSpeed, 450);
  EXPECT_EQ(travel.Model.LaneSeconds, 10);
}

TEST_F(TravelTest, NamesThatStandForNothingAreRefused) {
  request.Ship = "none";
  EXPECT_EQ(Unknown(), std::pair(NameKind::Ship, std::string("none")));

  request = {};
  request.Wishes.Avoid = {"li01", "nowhere"};
  EXPECT_EQ(Unknown(), std::pair(NameKind::PlaceToAvoid, std::string("nowhere")));

  request = {};
  request.Wishes.AvoidFactions = {"traders", "nobody"};
  EXPECT_EQ(Unknown(), std::pair(NameKind::Faction, std::string("nobody")));
}

TEST_F(TravelTest, WishesMayBeRowsOfASearch) {
  request.Wishes.Avoid = {"brook\tSome name", "li01\tLiberty"};
  request.Wishes.AvoidFactions = {"traders\tTraders"};

  const Travel travel = Read();

  EXPECT_TRUE(travel.Limits.Closed[*travel.Graph.FindObject("anvil")]);
  EXPECT_TRUE(travel.Limits.Closed[*travel.Graph.FindObject("brook")]);
  EXPECT_TRUE(travel.Limits.Forbidden[*travel.Graph.FindObject("anvil")]);
}

TEST_F(TravelTest, StopsAreOpenDocksWithAMarket) {
  const Travel travel = Read();
  const Market market = ReadMarket(mustWork, db, travel.Graph, travel.Limits);

  EXPECT_THAT(RequireStops(travel, market, "li01"), ElementsAre(*travel.Graph.FindObject("anvil")));
  EXPECT_THROW(RequireStops(travel, market, "brook"), UnknownName);
  EXPECT_THAT(RequireStops(travel, market, "brook", true),
              ElementsAre(*travel.Graph.FindObject("brook")));
  EXPECT_THROW(RequirePlace(travel.Graph, "nowhere"), UnknownName);
}

TEST_F(TravelTest, ProfitPerMinuteCountsAtLeastAMillisecond) {
  EXPECT_EQ(PerMinute(100, 30'000), 200);
  EXPECT_EQ(PerMinute(1, 0), 60'000);
}

}  // namespace
}  // namespace orrerix
