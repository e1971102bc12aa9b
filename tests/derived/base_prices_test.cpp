// SPDX-License-Identifier: MIT
#include "derived/base_prices.h"

#include <gmock/gmock.h>

#include "derived/universe_builders.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class BasePrices : public DerivedFixture {
 protected:
  void Good(std::string_view nickname, const Value& price, std::string_view category = "commodity",
            std::string_view realname = "") {
    Add("Goods",
        {{"nickname", nickname}, {"category", category}, {"price", price}, {"realname", realname}});
  }
  void Market(std::string_view base, std::string_view good, double val5, double val6) {
    Add("BaseGoods", {{"Base", base}, {"GoodNick", good}, {"val5", val5}, {"val6", val6}});
  }
  void Dock(std::string_view nickname, std::string_view base) {
    Object(nickname, {.DockWith = base});
  }
  std::vector<std::string> Prices() {
    std::vector<std::string> prices;
    for (Row& row : Rows("BaseGoodPrices")) {
      prices.push_back(row["BaseNick"].Text() + " " + row["GoodNick"].Text() + " " +
                       row["Price"].Text() + " " + row["Sell"].Text() + " " +
                       row["SysNick"].Text());
    }
    return prices;
  }
};

TEST_F(BasePrices, AFactorOfOneKeepsThePrice) {
  Good("commodity_water", 40);
  Market("base", "commodity_water", 0, 1.0);
  Dock("dock", "base");

  CalcBasePrices2(universe);

  EXPECT_THAT(Prices(), ElementsAre("dock commodity_water 40 1 li01"));
}

TEST_F(BasePrices, TheProductIsRounded) {
  // 99 x 1.15 = 113.85
  Good("commodity_water", 99);
  Market("base", "commodity_water", 1, 1.15);
  Dock("dock", "base");

  CalcBasePrices2(universe);

  EXPECT_THAT(Prices(), ElementsAre("dock commodity_water 114 2 li01"));
}

TEST_F(BasePrices, ATieIsRoundedToTheEvenNumber) {
  // 5 x 0.5 = 2.5 and 7 x 0.5 = 3.5
  Good("commodity_a", 5, "commodity", "A");
  Good("commodity_b", 7, "commodity", "B");
  Market("base", "commodity_a", 0, 0.5);
  Market("base", "commodity_b", 0, 0.5);
  Dock("dock", "base");

  CalcBasePrices2(universe);

  EXPECT_THAT(Column("BaseGoodPrices", "Price"), ElementsAre("2", "4"));
}

TEST_F(BasePrices, AMarketLineOfAnUnknownGoodIsDroppedWithoutATrace) {
  Market("base", "commodity_ghost", 0, 1);
  Dock("dock", "base");

  CalcBasePrices2(universe);

  EXPECT_THAT(Prices(), IsEmpty());
  EXPECT_THAT(DataLog(), IsEmpty());
}

TEST_F(BasePrices, AMarketThatNothingDocksWithGivesNoRow) {
  Good("commodity_water", 40);
  Market("base", "commodity_water", 0, 1);

  CalcBasePrices2(universe);

  EXPECT_THAT(Prices(), IsEmpty());
}

TEST_F(BasePrices, OnlyCommoditiesCountWhateverTheCaseOfTheCategory) {
  Good("gun", 400, "equipment");
  Good("commodity_water", 40, "COMMODITY");
  Market("base", "gun", 0, 1);
  Market("base", "commodity_water", 0, 1);
  Dock("dock", "base");

  CalcBasePrices2(universe);

  EXPECT_THAT(Prices(), ElementsAre("dock commodity_water 40 1 li01"));
}

TEST_F(BasePrices, AGoodOfAnotherCategoryWithACommoditysNicknameIsNotPriced) {
  Good("commodity_water", 40, "commodity");
  Good("Commodity_Water", 900, "equipment");
  Market("base", "COMMODITY_WATER", 0, 1);
  Dock("dock", "base");

  CalcBasePrices2(universe);

  EXPECT_THAT(Prices(), ElementsAre("dock COMMODITY_WATER 40 1 li01"));
}

TEST_F(BasePrices, AnObjectWhoseSystemIsNullTakesTheStartOfTheBase) {
  Good("commodity_water", 40);
  Market("ku04_01_base", "commodity_water", 0, 1);
  Add("Objects", {{"nickname", "dock"}, {"dock_with", "ku04_01_base"}});

  CalcBasePrices2(universe);

  EXPECT_THAT(Prices(), ElementsAre("dock commodity_water 40 1 ku04"));
}

TEST_F(BasePrices, AnEmptySystemStaysEmpty) {
  Good("commodity_water", 40);
  Market("ku04_01_base", "commodity_water", 0, 1);
  Object("dock", {.System = "", .DockWith = "ku04_01_base"});

  CalcBasePrices2(universe);

  EXPECT_THAT(Prices(), ElementsAre("dock commodity_water 40 1 "));
}

TEST_F(BasePrices, RowsComeByNameThenByMarketThenByObject) {
  Good("commodity_b", 1, "commodity", "beta");
  Good("commodity_a", 1, "commodity", "Alpha");
  Good("commodity_a2", 1, "commodity", "alpha");
  Market("base", "commodity_b", 0, 1);
  Market("base", "commodity_a2", 0, 1);
  Market("base", "commodity_a", 0, 1);
  Dock("z", "base");
  Dock("y", "base");

  CalcBasePrices2(universe);

  EXPECT_THAT(Prices(), ElementsAre("z commodity_a2 1 1 li01", "y commodity_a2 1 1 li01",
                                    "z commodity_a 1 1 li01", "y commodity_a 1 1 li01",
                                    "z commodity_b 1 1 li01", "y commodity_b 1 1 li01"));
}

TEST_F(BasePrices, NumbersThatDoNotFitTheirFieldsAreNull) {
  Good("commodity_dear", 2000000000, "commodity", "A");
  Good("commodity_odd", 1, "commodity", "B");
  Market("base", "commodity_dear", 0, 2);
  Market("base", "commodity_odd", 300, 1);
  Dock("dock", "base");

  CalcBasePrices2(universe);

  EXPECT_THAT(Prices(), ElementsAre("dock commodity_dear  1 li01", "dock commodity_odd 1  li01"));
}

class RowByRowPrices : public BasePrices {
 protected:
  void Calculate() {
    const GameFolder game("");
    Import import{universe, game, host, {}, {}};
    Routine routine(log, "Caller");
    routine.Run([&] { CalcBasePrices(routine, import); });
    EXPECT_THAT(log.Failures(), ::testing::IsEmpty());
  }
};

TEST_F(RowByRowPrices, EveryCommodityHasARowAtEveryObjectWithAMarket) {
  Good("commodity_a", 99, "commodity", "A");
  Good("commodity_b", 10, "commodity", "B");
  Good("commodity_c", 10, "commodity", "C");
  Market("base", "commodity_a", 0, 1.15);
  Market("base", "commodity_b", 1, 1);
  Dock("dock", "base");
  Dock("silent", "other");

  Calculate();

  // 113.85 is cut; a market line with 0 sells, one with 1 does not; c is not traded.
  EXPECT_THAT(Prices(), ElementsAre("dock commodity_a 113 2 li01", "dock commodity_b 10 1 li01",
                                    "dock commodity_c 10 0 li01"));
  EXPECT_THAT(Column("Objects", "has_commodities"), ElementsAre("1", "0"));
}

TEST_F(RowByRowPrices, OneStepIsCountedAndShownFromStartToEnd) {
  Dock("dock", "base");
  Dock("dock2", "base");

  Calculate();

  ASSERT_EQ(host.Progress.size(), 2u);
  EXPECT_EQ(host.Progress.front().Maximum, 2);
  EXPECT_EQ(host.Progress.front().Value, 0);
  EXPECT_EQ(host.Progress.back().Value, 2);
  EXPECT_EQ(host.Progress.back().Progress.ImportDone, 1);
}

}  // namespace
}  // namespace orrerix
