// SPDX-License-Identifier: MIT
#include "routes/good_offers.h"

#include <gmock/gmock.h>

#include "routes/travel_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Three docks in a row, 3000 units (10 seconds) apart: with launch and docking 25 and 35 seconds.
// An island has no way to it.
class GoodOffersTest : public TravelFixture {
 protected:
  GoodOffersTest() {
    System("li01");
    System("li02");
    Dock("anvil", "li01", "0, 0, 0");
    Dock("brook", "li01", "3000, 0, 0");
    Dock("coast", "li01", "6000, 0, 0");
    Dock("isle", "li02", "0, 0, 0");
  }

  void Price(std::string_view dock, std::string_view good, int price, int sell) {
    Add("BaseGoodPrices",
        {{"BaseNick", dock}, {"GoodNick", good}, {"Price", price}, {"Sell", sell}});
  }
  void Read() {
    travel.Graph = Graph();
    travel.Model = model;
    travel.Limits = Limits();
    market = ReadMarket(mustWork, db, travel.Graph, travel.Limits);
  }
  std::vector<std::string> Best(const std::optional<std::vector<NodeIndex>>& from) {
    const TravelTimes times(travel.Graph, travel.Model, travel.Limits);
    std::vector<std::string> texts;
    for (const auto& leg : BestTradeOfGoods(market, times, {10, std::nullopt}, from)) {
      texts.push_back(!leg ? "none"
                           : Nickname(leg->From) + " " + Nickname(leg->To) + " " +
                                 std::to_string(leg->Cargo->Profit()) + " in " +
                                 std::to_string(leg->Time));
    }
    return texts;
  }
  std::vector<std::string> Offers(std::string_view good, const std::optional<TravelPlace>& from) {
    std::vector<std::string> texts;
    for (const GoodOffer& offer : OffersOf(market, travel, *market.FindGood(good), from)) {
      texts.push_back(Nickname(offer.Dock) + (offer.IsSold ? " sells " : " takes ") +
                      std::to_string(offer.Price) + " " +
                      (offer.WayThere ? std::to_string(offer.WayThere->Time()) : "no way"));
    }
    return texts;
  }
  NodeIndex Node(std::string_view nickname) { return *travel.Graph.FindObject(nickname); }

  Travel travel;
  Market market;
};

// Gold: 10 x 25 in 25 s are 10 a second, 10 x 34 in 35 s less; from brook 10 x 9 in 25 s.
TEST_F(GoodOffersTest, TheBestTradeOfEachGoodHasTheMostProfitByTime) {
  Price("anvil", "gold", 100, 1);
  Price("brook", "gold", 125, 1);
  Price("coast", "gold", 134, 2);
  Price("isle", "gold", 900, 2);
  Price("brook", "iron", 50, 1);
  Read();

  EXPECT_THAT(Best(std::nullopt), ElementsAre("anvil brook 250 in 25000", "none"));
  EXPECT_THAT(Best(std::vector{Node("brook")}), ElementsAre("brook coast 90 in 25000", "none"));
  EXPECT_THAT(Best(std::vector<NodeIndex>{}), ElementsAre("none", "none"));
}

TEST_F(GoodOffersTest, StandByPriceThenTimeThenNickname) {
  Price("anvil", "gold", 100, 1);
  Price("brook", "gold", 130, 2);
  Price("coast", "gold", 130, 2);
  Price("isle", "gold", 130, 2);
  Read();

  EXPECT_THAT(Offers("gold", TravelPlace{{Node("coast")}, true}),
              ElementsAre("coast takes 130 0", "brook takes 130 25000", "isle takes 130 no way",
                          "anvil sells 100 35000"));
  EXPECT_THAT(Offers("gold", std::nullopt),
              ElementsAre("brook takes 130 no way", "coast takes 130 no way",
                          "isle takes 130 no way", "anvil sells 100 no way"));
}

TEST_F(GoodOffersTest, OnlyDocksThatSellAGoodHaveACheapestPrice) {
  Price("anvil", "gold", 100, 1);
  Price("brook", "gold", 90, 2);
  Price("coast", "gold", 95, 1);
  Read();
  const GoodIndex gold = *market.FindGood("gold");

  EXPECT_EQ(CheapestAt(market, {Node("anvil"), Node("brook"), Node("coast")}, gold), 95);
  EXPECT_EQ(CheapestAt(market, {Node("brook")}, gold), std::nullopt);
}

TEST_F(GoodOffersTest, AnAnswerThatIsNotWantedAnyMoreStops) {
  Price("anvil", "gold", 100, 1);
  Price("brook", "gold", 130, 2);
  Read();
  const TravelTimes times(travel.Graph, travel.Model, travel.Limits);
  const auto stop = [] { return false; };

  EXPECT_FALSE(BestTradeOfGoods(market, times, {10, std::nullopt}, std::nullopt, stop).front());
  EXPECT_THAT(OffersOf(market, travel, 0, std::nullopt, stop), IsEmpty());
}

}  // namespace
}  // namespace orrerix
