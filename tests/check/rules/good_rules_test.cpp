// SPDX-License-Identifier: MIT
#include "check/rules/good_rules.h"

#include "check/game_fixture.h"

namespace orrerix::check {
namespace {

class GoodRules : public CheckedGameTest {};

TEST_F(GoodRules, ACategoryNeedsItsParts) {
  Data("goods", R"(
[Good]
nickname = a
[Good]
nickname = b
category = junk
[Good]
nickname = c
category = Equipment
[Good]
nickname = d
category = commodity
equipment =
[Good]
nickname = e
category = ship
[Good]
nickname = f
category = shiphull
[Good]
nickname = g
category = ship
hull = b
[Good]
nickname = h
category = ship
hull = f
)");

  EXPECT_THAT(Found("good-part"),
              ElementsAre("goods:1 -", "goods:5 category", "goods:6 -", "goods:12 equipment",
                          "goods:13 -", "goods:16 -", "goods:22 hull"));
}

TEST_F(GoodRules, AGoodThatIsSoldNeedsAPrice) {
  Data("goods", R"(
[Good]
nickname = a
category = equipment
[Good]
nickname = b
category = commodity
price = 0
[Good]
nickname = c
category = shiphull
price = 0.0
[Good]
nickname = d
category = ship
[Good]
nickname = e
category = commodity
price = 0
)");
  Data("markets", R"(
[BaseGood]
base = x
MarketGood = B, 0, -1, 10, 1, 0, 1
MarketGood = e, 0, -1, 10, 0, 0, 1
)");

  EXPECT_THAT(Found("price-missing"), ElementsAre("goods:1 -", "goods:7 price"));
}

TEST_F(GoodRules, AMarketListsAGoodOnce) {
  Data("markets", R"(
[BaseGood]
base = x
MarketGood = a, 0, -1, 1, 1, 0, 1
MarketGood = b, 0, -1, 1, 1, 0, 1
MarketGood = A, 0, -1, 1, 1, 0, 1
[BaseGood]
base = y
MarketGood = a, 0, -1, 1, 1, 0, 1
)");
  Data("markets", "[BaseGood]\nbase = X\nMarketGood = b, 0, -1, 1, 1, 0, 1\n");

  EXPECT_THAT(Found("market-duplicate"),
              ElementsAre("markets:5 MarketGood", "markets:3 MarketGood"));
}

TEST_F(GoodRules, AnItemOnSaleNeedsAShipThatMountsIt) {
  Data("ships", "[Ship]\nnickname = s\nhp_type = gun_1, Hp1\nhp_type = shield_1, Hp2\n");
  Data("equipment", R"(
[Gun]
nickname = small
hp_gun_type = GUN_1
[Gun]
nickname = large
hp_gun_type = gun_2
[Gun]
nickname = unsold
hp_gun_type = gun_3
[ShieldGenerator]
nickname = shield
hp_type = shield_2
[Thruster]
nickname = thruster
hp_type = none
)");
  Data("goods", R"(
[Good]
nickname = small_good
equipment = small
[Good]
nickname = large_good
equipment = Large
[Good]
nickname = shield_good
equipment = shield
[Good]
nickname = thruster_good
equipment = thruster
[Good]
nickname = unsold_good
equipment = unsold
)");
  Data("markets", R"(
[BaseGood]
base = x
MarketGood = small_good, 0, -1, 1, 1, 0, 1
MarketGood = large_good, 0, -1, 1, 1, 0, 1
MarketGood = shield_good, 0, -1, 1, 1, 0, 1
MarketGood = thruster_good, 0, -1, 1, 1, 0, 1
MarketGood = unsold_good, 0, -1, 0, 0, 0, 1
)");

  EXPECT_THAT(Found("mount-impossible"),
              ElementsAre("equipment:6 hp_gun_type", "equipment:12 hp_type"));

  Configure("ships = absent.ini");
  EXPECT_THAT(Found("mount-impossible"), IsEmpty());
}

}  // namespace
}  // namespace orrerix::check
