// SPDX-License-Identifier: MIT
#include "tables/table_choice.h"

#include <gmock/gmock.h>

#include "support/stored_tables.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const StoredTable kGoods =
    TableOf("Goods", {{"nickname", FieldType::Text}, {"price", FieldType::Long}},
            {{"gold", 20}, {"Water", 3}, {"GOLD", Null()}, {"iron", 100}, {"oil", 20}});

TEST(ChosenRows, AreAllInStoredOrderIfNothingElseIsAsked) {
  EXPECT_THAT(ChosenRows(kGoods, {}), ElementsAre(0, 1, 2, 3, 4));
}

TEST(ChosenRows, HoldAllConditions) {
  EXPECT_THAT(ChosenRows(kGoods, {{}, {{0, "Gold"}}, {}, {}}), ElementsAre(0, 2));
  EXPECT_THAT(ChosenRows(kGoods, {{}, {{0, "gold"}, {1, ""}}, {}, {}}), ElementsAre(2));
  EXPECT_THAT(ChosenRows(kGoods, {{}, {{0, "gold"}, {0, "oil"}}, {}, {}}), IsEmpty());
}

TEST(ChosenRows, ComeInOrderAndTiesAsStored) {
  EXPECT_THAT(ChosenRows(kGoods, {{}, {}, {{1, false}}, {}}), ElementsAre(2, 1, 0, 4, 3));
  EXPECT_THAT(ChosenRows(kGoods, {{}, {}, {{1, true}}, {}}), ElementsAre(3, 0, 4, 1, 2));
  EXPECT_THAT(ChosenRows(kGoods, {{}, {}, {{0, false}, {1, true}}, {}}),
              ElementsAre(0, 2, 3, 4, 1));
}

TEST(ChosenRows, AreLimitedAfterSorting) {
  EXPECT_THAT(ChosenRows(kGoods, {{}, {}, {{1, true}}, 2}), ElementsAre(3, 0));
  EXPECT_THAT(ChosenRows(kGoods, {{}, {}, {}, 0}), IsEmpty());
  EXPECT_THAT(ChosenRows(kGoods, {{}, {}, {}, 9}), ElementsAre(0, 1, 2, 3, 4));
}

TEST(TablesByName, AreFoundWhateverTheCase) {
  EXPECT_EQ(FindTable({kGoods.Definition}, "GOODS"), 0u);
  EXPECT_FALSE(FindTable({kGoods.Definition}, "good"));
  EXPECT_THAT(NamesOf(kGoods.Definition.Fields), ElementsAre("nickname", "price"));
  EXPECT_THAT(AllColumns(kGoods.Definition), ElementsAre(0, 1));
}

}  // namespace
}  // namespace orrerix
