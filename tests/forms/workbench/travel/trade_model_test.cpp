// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/trade_model.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

// Goods of which one costs nothing, so that its profit has no percentage.
class TradeModelTest : public ::testing::Test {
 protected:
  TradeModelTest() {
    auto world = std::make_shared<TradeWorld>();
    world->Travel.Graph.Systems.resize(1);
    world->Travel.Graph.Objects.resize(2);
    world->Market.Goods.resize(1);
    outcome.World = world;
    outcome.Answer.Plans = {Plan(0, 10), Plan(10, 20), Plan(10, 40)};
    model.Show(outcome);
  }

  static TradePlan Plan(std::int64_t buy, std::int64_t sell) {
    return {{{0, 1, Load{0, buy, sell, 1}, 1000}}, std::nullopt};
  }
  std::vector<std::string> Percents() {
    std::vector<std::string> texts;
    for (int row = 0; row < filter.rowCount(); ++row) {
      texts.push_back(filter.index(row, TradeModel::PercentColumn).data().toString().toStdString());
    }
    return texts;
  }

  LanguageChoice choice;
  TradeOutcome outcome;
  TradeModel model{choice};
  ValueFilter filter{model};
};

TEST_F(TradeModelTest, RowsWithoutAValueStandLastInBothOrders) {
  filter.sort(TradeModel::PercentColumn, Qt::AscendingOrder);
  EXPECT_EQ(Percents(), (std::vector<std::string>{"100%", "300%", ""}));

  filter.sort(TradeModel::PercentColumn, Qt::DescendingOrder);
  EXPECT_EQ(Percents(), (std::vector<std::string>{"300%", "100%", ""}));
}

TEST_F(TradeModelTest, NumbersFollowTheLanguage) {
  outcome.Answer.Plans = {Plan(0, 12345)};
  model.Show(outcome);

  choice.Current = Language::German;

  EXPECT_EQ(model.index(0, TradeModel::ProfitColumn).data().toString(), "12.345");
  EXPECT_EQ(model.headerData(TradeModel::ProfitColumn, Qt::Horizontal, Qt::DisplayRole), "Gewinn");
}

}  // namespace
}  // namespace orrerix
