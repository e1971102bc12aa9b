// SPDX-License-Identifier: MIT
#include "routes/trades.h"

#include <gmock/gmock.h>

#include "routes/travel_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// Three docks in a row, 3000 units (10 seconds) apart: with launch and docking 25 and 35 seconds.
class TradesTest : public TravelFixture {
 protected:
  TradesTest() {
    Dock("anvil", "li01", "0, 0, 0");
    Dock("brook", "li01", "3000, 0, 0");
    Dock("coast", "li01", "6000, 0, 0");
  }

  void Sells(std::string_view dock, std::string_view good, int price) {
    Price(dock, good, price, 1);
  }
  void Takes(std::string_view dock, std::string_view good, int price) {
    Price(dock, good, price, 2);
  }
  void Price(std::string_view dock, std::string_view good, int price, int sell) {
    Add("BaseGoodPrices", {{"SysNick", "li01"},
                           {"BaseNick", dock},
                           {"GoodNick", good},
                           {"Price", price},
                           {"Sell", sell}});
  }
  void Volume(std::string_view good, int volume) {
    Add("Goods",
        {{"nickname", good}, {"realname", good}, {"category", "commodity"}, {"equipment", good}});
    Add("commodity", {{"nickname", good}, {"volume", volume}});
  }

  const Market& TheMarket() {
    limits_ = Limits();
    market_ = ReadMarket(mustWork, db, Graph(), limits_);
    return market_;
  }
  TradeAnswer Find() {
    TheMarket();
    const TravelTimes times(Graph(), model, limits_);
    return FindTrades(market_, times, question);
  }

  // A plan as its stops with the goods between them.
  std::string TextOf(const TradePlan& plan) {
    std::string text = Nickname(plan.Legs.front().From);
    for (const TradeLeg& leg : plan.Legs) {
      text += " -" + (leg.Cargo ? market_.Goods[leg.Cargo->Good].Nickname : std::string()) + "> " +
              Nickname(leg.To);
    }
    return text;
  }
  std::vector<std::string> Texts(const TradeAnswer& answer) {
    std::vector<std::string> texts;
    for (const TradePlan& plan : answer.Plans) texts.push_back(TextOf(plan));
    return texts;
  }
  std::vector<NodeIndex> At(std::string_view dock) { return {*Graph().FindObject(dock)}; }

  TradeQuestion question;

 private:
  TravelLimits limits_;
  Market market_;
};

TEST_F(TradesTest, AGoodIsCarriedToWhereItIsDearer) {
  Sells("anvil", "gold", 100);
  Takes("brook", "gold", 150);
  Takes("coast", "gold", 90);

  const TradeAnswer answer = Find();

  ASSERT_THAT(Texts(answer), ElementsAre("anvil -gold> brook"));
  EXPECT_EQ(answer.Count, 1u);
  EXPECT_EQ(answer.Plans[0].Profit(), 5000);  // 100 units of hold
  EXPECT_EQ(answer.Plans[0].Time(), 25000);
}

TEST_F(TradesTest, WhatABaseOnlyTakesCannotBeBoughtThere) {
  Takes("anvil", "gold", 100);
  Takes("brook", "gold", 150);

  EXPECT_THAT(Find().Plans, IsEmpty());
}

TEST_F(TradesTest, TheMostProfitAMinuteComesFirst) {
  Sells("anvil", "gold", 100);
  Takes("brook", "gold", 150);  // 50 in 25 seconds
  Takes("coast", "gold", 165);  // 65 in 35 seconds

  EXPECT_THAT(Texts(Find()), ElementsAre("anvil -gold> brook", "anvil -gold> coast"));
  question.Sorting = PlanSorting::Profit;
  EXPECT_THAT(Texts(Find()), ElementsAre("anvil -gold> coast", "anvil -gold> brook"));
}

TEST_F(TradesTest, EqualProfitsComeByTimeThenByNickname) {
  Sells("brook", "gold", 100);
  Takes("coast", "gold", 150);
  Takes("anvil", "gold", 150);
  Sells("anvil", "iron", 10);
  Takes("coast", "iron", 60);
  question.Sorting = PlanSorting::Profit;

  EXPECT_THAT(Texts(Find()),
              ElementsAre("brook -gold> anvil", "brook -gold> coast", "anvil -iron> coast"));
}

TEST_F(TradesTest, HoldAndMoneyLimitTheUnits) {
  Volume("gold", 3);
  Sells("anvil", "gold", 100);
  Takes("brook", "gold", 150);
  question.Hold = 50;

  EXPECT_EQ(Find().Plans[0].Legs[0].Cargo->Units, 16);  // 50 / 3
  question.Credits = 730;
  EXPECT_EQ(Find().Plans[0].Legs[0].Cargo->Units, 7);
  question.Credits = 99;
  EXPECT_THAT(Find().Plans, IsEmpty());
}

TEST_F(TradesTest, AWayBackCarriesItsBestLoad) {
  Sells("anvil", "gold", 100);
  Takes("brook", "gold", 150);
  Sells("brook", "iron", 10);
  Takes("anvil", "iron", 40);
  question.From = At("anvil");

  const TradeAnswer answer = Find();

  ASSERT_THAT(answer.Plans, SizeIs(1));
  ASSERT_TRUE(answer.Plans[0].Back);
  EXPECT_EQ(answer.Plans[0].Back->Time, 25000);
  EXPECT_EQ(answer.Plans[0].Back->Cargo->Profit(), 3000);
}

TEST_F(TradesTest, ALoopLeadsBackAndIsFoundOnce) {
  Sells("anvil", "gold", 100);
  Takes("brook", "gold", 150);
  Sells("brook", "iron", 10);
  Takes("anvil", "iron", 40);
  question.Loop = true;
  question.Hops = 2;

  const TradeAnswer answer = Find();

  ASSERT_THAT(Texts(answer), ElementsAre("anvil -gold> brook -iron> anvil"));
  EXPECT_EQ(answer.Count, 1u);
  EXPECT_EQ(answer.Plans[0].Profit(), 8000);
  EXPECT_EQ(answer.Plans[0].Time(), 50000);
}

TEST_F(TradesTest, MoneyGrowsFromLegToLeg) {
  Sells("anvil", "gold", 100);
  Takes("brook", "gold", 200);
  Sells("brook", "iron", 150);
  Takes("coast", "iron", 160);
  question.Hops = 2;
  question.From = At("anvil");
  question.Credits = 100;

  const TradeAnswer answer = Find();

  // One unit of gold makes 200 credits, which buy one unit of iron; the start's money buys none.
  EXPECT_THAT(Texts(answer), ElementsAre("anvil -gold> brook"));
  question.Credits = 150;
  EXPECT_THAT(Texts(Find()), testing::UnorderedElementsAre("anvil -gold> brook",
                                                           "anvil -gold> brook -iron> coast"));
}

TEST_F(TradesTest, OnlyTheKeptStopsAreGoneOnTo) {
  Sells("anvil", "gold", 100);
  Takes("brook", "gold", 150);
  Takes("coast", "gold", 300);
  question.Hops = 2;
  question.Width = 1;
  question.From = At("anvil");

  EXPECT_THAT(Texts(Find()), ElementsAre("anvil -gold> coast"));
  question.Width = 2;
  EXPECT_THAT(Find().Plans, SizeIs(2));
}

TEST_F(TradesTest, ATourGoesThroughItsPlacesEvenEmpty) {
  Sells("anvil", "gold", 100);
  Takes("coast", "gold", 150);
  Takes("brook", "iron", 1);
  question.From = At("anvil");
  question.Via = {At("brook"), At("coast")};

  const TradeAnswer answer = Find();

  ASSERT_THAT(Texts(answer), ElementsAre("anvil -> brook -> coast"));
  EXPECT_EQ(answer.Plans[0].Profit(), 0);
  EXPECT_EQ(answer.Plans[0].Time(), 50000);
}

TEST_F(TradesTest, WhatIsAboardIsSoldWhereItIsTaken) {
  Takes("brook", "gold", 150);
  Sells("coast", "gold", 180);
  question.From = At("anvil");
  question.Carry = CarriedGood{TheMarket().FindGood("GOLD").value(), 30};
  question.Sorting = PlanSorting::Profit;

  const TradeAnswer answer = Find();

  ASSERT_THAT(Texts(answer), ElementsAre("anvil -gold> coast", "anvil -gold> brook"));
  EXPECT_EQ(answer.Plans[0].Profit(), 5400);  // bought for nothing
  EXPECT_EQ(answer.Plans[0].Spending(), 0);
}

TEST_F(TradesTest, DocksOfOneBaseMakeOnePlan) {
  Dock("ring_far", "li01", "9000, 0, 0", "", "brook_base");
  Sells("anvil", "gold", 100);
  Takes("brook", "gold", 150);
  Takes("ring_far", "gold", 150);

  const TradeAnswer answer = Find();

  EXPECT_THAT(Texts(answer), ElementsAre("anvil -gold> brook"));
  EXPECT_EQ(answer.Count, 1u);
}

TEST_F(TradesTest, APlanThatLastsTooLongIsLeftOut) {
  Sells("anvil", "gold", 100);
  Takes("brook", "gold", 150);
  Takes("coast", "gold", 300);
  question.LongestTime = 25000;

  EXPECT_THAT(Texts(Find()), ElementsAre("anvil -gold> brook"));
}

TEST_F(TradesTest, AllPlansAreCountedAndTheBestAreShown) {
  Sells("anvil", "gold", 100);
  Takes("brook", "gold", 150);
  Takes("coast", "gold", 300);
  question.Top = 1;

  const TradeAnswer answer = Find();

  EXPECT_THAT(Texts(answer), ElementsAre("anvil -gold> coast"));  // 200 in 35 s, 50 in 25 s
  EXPECT_EQ(answer.Count, 2u);
}

TEST_F(TradesTest, OddPricesAreNoOffers) {
  Sells("anvil", "gold", 0);
  Price("anvil", "iron", 10, 3);
  Price("anvil", "", 10, 1);
  Takes("brook", "gold", 150);
  Takes("brook", "iron", 150);

  EXPECT_THAT(Find().Plans, IsEmpty());
}

}  // namespace
}  // namespace orrerix
