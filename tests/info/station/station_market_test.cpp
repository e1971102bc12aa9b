// SPDX-License-Identifier: MIT
#include "info/station/station_market.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "support/station_fixture.h"

namespace orrerix {

bool operator==(const PriceItem& a, const PriceItem& b) {
  return a.Group == b.Group && a.Good == b.Good && a.Price == b.Price &&
         a.Difference == b.Difference;
}

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class MarketPrices : public StationFixture {
 protected:
  MarketPrices() { Place("pier", "Pier Nine"); }

  std::vector<PriceItem> Prices(StationMode mode = StationMode::Prices) {
    return Read("pier", mode).Prices;
  }
  // The rows of one group in the trades' view.
  std::vector<PriceItem> Trades(int group) {
    std::vector<PriceItem> trades = Prices(StationMode::Trades);
    std::erase_if(trades, [&](const PriceItem& item) { return item.Group != group; });
    return trades;
  }
};

TEST_F(MarketPrices, PricesComeByGroupAndGoodWithTheirSurcharge) {
  Price("pier", "commodity_water", 30, 1);
  Price("pier", "commodity_gold", 50, 2);
  Price("pier", "commodity_food", 20, 2);
  Good("Commodity_Gold", "Gold", 40);
  Good("commodity_food", "Food", 25);

  EXPECT_THAT(Prices(), ElementsAre(PriceItem{2, "commodity_food", "20", "-5"},
                                    PriceItem{2, "commodity_gold", "50", "10"},
                                    PriceItem{1, "commodity_water", "30", ""}));
}

TEST_F(MarketPrices, OtherViewsHaveOnlyWhatThePlaceSells) {
  Price("pier", "commodity_water", 30, 1);
  Price("pier", "commodity_gold", 50, 2);

  EXPECT_THAT(Prices(StationMode::Info), SizeIs(1));
  EXPECT_THAT(Prices(StationMode::Ships), SizeIs(1));
}

TEST_F(MarketPrices, ThePricesOfTheBaseGoBeforeThoseOfTheObject) {
  Dock("mole", "Mole");
  Object("mole", 100, "mole_base");
  Price("mole", "commodity_gold", 50, 2);
  EXPECT_THAT(Read("mole").Prices, ElementsAre(PriceItem{2, "commodity_gold", "50", ""}));

  Price("mole_base", "commodity_gold", 60, 2);
  EXPECT_THAT(Read("mole").Prices, ElementsAre(PriceItem{2, "commodity_gold", "60", ""}));
}

TEST_F(MarketPrices, AGoodWithoutAPriceBreaksTheQueriesOfItsTrades) {
  Add("BaseGoodPrices",
      {{"SysNick", "sys_a"}, {"BaseNick", "pier"}, {"GoodNick", "commodity_gold"}, {"Sell", 2}});
  Price("mole", "commodity_gold", 90, 1);

  EXPECT_THAT(Prices(StationMode::Trades), ElementsAre(PriceItem{2, "commodity_gold", "", ""}));

  // One query for its own system, one for the others.
  ASSERT_EQ(log.Failures().size(), 2u);
  EXPECT_EQ(log.Failures().front().What.Number, 3075);
}

TEST_F(MarketPrices, ARowThatIsInNoGroupIsAFailureAndCountsAsTheLast) {
  Add("BaseGoodPrices",
      {{"SysNick", "sys_a"}, {"BaseNick", "pier"}, {"GoodNick", "commodity_gold"}, {"Price", 50}});

  EXPECT_THAT(Prices(), ElementsAre(PriceItem{0, "commodity_gold", "50", ""}));

  ASSERT_EQ(log.Failures().size(), 1u);
  EXPECT_EQ(log.Failures().front().What.Number, 94);
}

TEST_F(MarketPrices, RowsBeforeACancelledFailureStay) {
  messages.Answer = MessageAnswer::Cancel;
  Price("pier", "commodity_food", 20, 2);
  Add("BaseGoodPrices",
      {{"SysNick", "sys_a"}, {"BaseNick", "pier"}, {"GoodNick", "commodity_gold"}, {"Sell", 2}});
  Good("commodity_gold", "Gold", 40);
  Price("pier", "commodity_water", 30, 1);

  // What the second one charges above its list price cannot be said; there the reading ends.
  EXPECT_THAT(Prices(), ElementsAre(PriceItem{2, "commodity_food", "20", ""},
                                    PriceItem{2, "commodity_gold", "", ""}));
}

TEST_F(MarketPrices, WithNothingToSellThereAreNoTrades) {
  Price("pier", "commodity_gold", 50, 1);
  Price("mole", "commodity_gold", 90, 1);

  EXPECT_THAT(Prices(StationMode::Trades), IsEmpty());
}

TEST_F(MarketPrices, TradesComeInsideAndOutsideTheSystem) {
  Price("pier", "commodity_gold", 50, 2);
  Price("mole", "commodity_gold", 90, 1);
  Price("buoy", "commodity_gold", 50, 1);  // no profit
  Price("quay", "Commodity_GOLD", 70, 1, "sys_b");

  EXPECT_THAT(Prices(StationMode::Trades),
              ElementsAre(PriceItem{2, "commodity_gold", "50", ""},
                          PriceItem{1, "sys_a,mole,commodity_gold", "90", "40"},
                          PriceItem{0, "sys_b,quay,Commodity_GOLD", "70", "20"}));
}

TEST_F(MarketPrices, OfEachGoodElevenPlacesAreTaken) {
  Price("pier", "commodity_gold", 100, 2);
  for (int i = 1; i <= 12; ++i) Price(fmt::format("base_{}", i), "commodity_gold", 100 + i, 1);

  const std::vector<PriceItem> trades = Trades(1);

  ASSERT_THAT(trades, SizeIs(11));
  EXPECT_EQ(trades.front().Good, "sys_a,base_12,commodity_gold");
  EXPECT_EQ(trades.back().Good, "sys_a,base_2,commodity_gold");  // the cheapest is lost
}

TEST_F(MarketPrices, FifteenTradesAreListed) {
  Price("pier", "commodity_food", 100, 2);
  Price("pier", "commodity_gold", 100, 2);
  for (int i = 1; i <= 9; ++i) {
    Price(fmt::format("base_{}", i), "commodity_food", 100 + 10 * i, 1);
    Price(fmt::format("base_{}", i), "commodity_gold", 105 + 10 * i, 1);
  }

  const std::vector<PriceItem> trades = Trades(1);

  // Profits 95, 90, 85 and so on in turn; the fifteenth is 25.
  ASSERT_THAT(trades, SizeIs(15));
  EXPECT_EQ(trades[0], (PriceItem{1, "sys_a,base_9,commodity_gold", "195", "95"}));
  EXPECT_EQ(trades[1], (PriceItem{1, "sys_a,base_9,commodity_food", "190", "90"}));
  EXPECT_EQ(trades[14], (PriceItem{1, "sys_a,base_2,commodity_gold", "125", "25"}));
}

TEST_F(MarketPrices, EqualProfitsKeepTheOrderOfTheGoods) {
  Price("pier", "commodity_gold", 200, 2);
  Price("pier", "commodity_food", 100, 2);
  Price("mole", "commodity_gold", 250, 1);
  Price("mole", "commodity_food", 150, 1);
  Price("quay", "commodity_food", 150, 1);

  EXPECT_THAT(Trades(1), ElementsAre(PriceItem{1, "sys_a,mole,commodity_food", "150", "50"},
                                     PriceItem{1, "sys_a,quay,commodity_food", "150", "50"},
                                     PriceItem{1, "sys_a,mole,commodity_gold", "250", "50"}));
}

// The goods for sale under one of four spellings of the place.
class ForSaleTest : public StationFixture {
 protected:
  ForSaleTest() {
    Dock("pier", "Pier Nine");
    Object("pier", 100, "harbour");
    Add("Goods", {{"nickname", "lamp"}, {"realname", "Lamp"}, {"category", "equipment"}});
    Add("Ships", {{"NickName", "arrow"}, {"RealName", "Arrow"}, {"packagename", "arrow_package"}});
  }
  std::vector<std::string> Equipment() {
    std::vector<std::string> nicknames;
    for (const ForSale& item : Read("pier").Equipment) nicknames.push_back(item.Nickname);
    return nicknames;
  }
};

TEST_F(ForSaleTest, ShipsAreFoundByTheirPackage) {
  Market("harbour", "Arrow_Package");
  Market("harbour", "ghost_package");  // no such ship

  const StationData data = Read("pier");

  ASSERT_THAT(data.Ships, SizeIs(1));
  EXPECT_EQ(data.Ships[0].Nickname, "arrow_package");
  EXPECT_EQ(data.Ships[0].RealName, "Arrow");
  EXPECT_THAT(data.Equipment, IsEmpty());
}

TEST_F(ForSaleTest, WhatWasFoundBeforeACancelledFailureStays) {
  messages.Answer = MessageAnswer::Cancel;
  Market("harbour", "arrow_package");
  Market("harbour", "captain's_package");

  EXPECT_THAT(Read("pier").Ships, SizeIs(1));
}

TEST_F(ForSaleTest, WhatThePlaceOnlyBuysIsNotForSale) {
  Market("harbour", "arrow_package", 1);
  Market("harbour", "lamp", 1);

  EXPECT_THAT(Read("pier").Ships, IsEmpty());
  EXPECT_THAT(Read("pier").Equipment, IsEmpty());
}

TEST_F(ForSaleTest, TheFirstSpellingThatSellsAnythingCounts) {
  Market("pier_base", "lamp");
  EXPECT_THAT(Equipment(), ElementsAre("lamp"));

  Add("Goods", {{"nickname", "beam"}, {"realname", "Beam"}, {"category", "equipment"}});
  Market("pier", "beam");
  EXPECT_THAT(Equipment(), ElementsAre("beam"));

  Add("Goods", {{"nickname", "saw"}, {"realname", "Saw"}, {"category", "equipment"}});
  Market("Harbour_Base", "saw");
  EXPECT_THAT(Equipment(), ElementsAre("saw"));

  Add("Goods", {{"nickname", "axe"}, {"realname", "Axe"}, {"category", "equipment"}});
  Market("harbour", "axe");
  EXPECT_THAT(Equipment(), ElementsAre("axe"));
}

TEST_F(ForSaleTest, CommoditiesAndNamelessAmmunitionAreNoEquipment) {
  Good("commodity_gold", "Gold", 40);
  Good("gun_ammo", "0 - 0", 1);
  Good("rocket_ammo", "Rockets", 1);
  Good("nameless", "0 - 0", 1);
  for (const char* good : {"commodity_gold", "gun_ammo", "rocket_ammo", "nameless", "unknown"}) {
    Market("harbour", good);
  }

  EXPECT_THAT(Equipment(), ElementsAre("rocket_ammo", "nameless"));
}

}  // namespace
}  // namespace orrerix
