// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/trade_worlds.h"

#include <chrono>

#include "travel_page_fixture.h"

namespace orrerix {
namespace {

class TradeWorldsTest : public TravelPageFixture {
 protected:
  std::shared_ptr<const TradeWorld> World(const TravelRequest& request = {}) {
    return worlds.Of(UniverseFile(), request, [] { return false; });
  }
};

TEST_F(TradeWorldsTest, TheSameQuestionIsReadOnce) {
  TravelRequest noHoles;
  noHoles.Wishes.NoHoles = true;

  const auto first = World();

  EXPECT_EQ(World(), first);
  EXPECT_NE(World(noHoles), first);
  EXPECT_EQ(World(), first);
  EXPECT_EQ(first->Market.Stops.size(), 2u);
  EXPECT_EQ(first->Times->Docks().size(), 2u);
}

TEST_F(TradeWorldsTest, AFileThatHasChangedIsReadAnew) {
  const auto first = World();

  std::filesystem::last_write_time(
      UniverseFile(), std::filesystem::last_write_time(UniverseFile()) + std::chrono::seconds(5));

  EXPECT_NE(World(), first);
}

TEST_F(TradeWorldsTest, AReadingThatIsCancelledGivesNothing) {
  EXPECT_EQ(worlds.Of(UniverseFile(), {}, [] { return true; }), nullptr);
}

}  // namespace
}  // namespace orrerix
