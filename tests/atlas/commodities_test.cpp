// SPDX-License-Identifier: MIT
#include "atlas/atlas_fixture.h"

namespace orrerix {
namespace {

class Commodities : public AtlasFixture {
 protected:
  Commodities() {
    System("Li01", "New York");
    Add("Goods", {{"nickname", "commodity_gold"},
                  {"equipment", "gold"},
                  {"realname", "Gold"},
                  {"category", "commodity"},
                  {"price", 100}});
    Add("commodity", {{"nickname", "gold"}, {"volume", 2}, {"decay_per_second", 0}});
    for (const char* base : {"mine", "fort", "yard"}) Base(base);
  }
  // Sell: 1 sold and taken, 2 taken only.
  void Price(std::string_view dock, int price, int sell) {
    Add("BaseGoodPrices",
        {{"BaseNick", dock}, {"GoodNick", "commodity_gold"}, {"Price", price}, {"Sell", sell}});
  }
};

TEST_F(Commodities, HaveTheCheapestAndTheDearestPlace) {
  Price("mine_dock", 80, 1);
  Price("fort_dock", 60, 2);
  Price("yard_dock", 200, 2);

  ExpectFields(TheOnly("commodities"), {{"name", "Gold"},
                                        {"nickname", "commodity_gold"},
                                        {"price", 100},
                                        {"cheapest", 80},
                                        {"cheapest_at", "mine (New York)"},
                                        {"dearest", 200},
                                        {"dearest_at", "yard (New York)"},
                                        {"spread", 120},
                                        {"spread_percent", 150},
                                        {"spread_volume", 60},
                                        {"volume", 2},
                                        {"decay", 0},
                                        {"sellers", 1},
                                        {"takers", 2},
                                        {"sold_at", "mine (New York)"}});
}

TEST_F(Commodities, CountABaseOnceAndKnownPricesOnly) {
  Dock("mine_ring", "mine");
  Price("mine_dock", 80, 1);
  Price("mine_ring", 10, 1);
  Price("fort_dock", 0, 2);
  Price("nowhere", 900, 2);
  Price("yard_dock", 900, 0);

  ExpectFields(TheOnly("commodities"),
               {{"cheapest", 80}, {"dearest", 80}, {"spread", 0}, {"sellers", 1}, {"takers", 0}});
}

TEST_F(Commodities, ThatNobodySellsHaveNoSpread) {
  Price("yard_dock", 200, 2);

  ExpectFields(TheOnly("commodities"), {{"cheapest", {}},
                                        {"cheapest_at", {}},
                                        {"dearest", 200},
                                        {"spread", {}},
                                        {"spread_percent", {}},
                                        {"spread_volume", {}},
                                        {"sellers", 0}});
}

}  // namespace
}  // namespace orrerix
