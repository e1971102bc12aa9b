// SPDX-License-Identifier: MIT
#include "space/summary.h"

#include <gmock/gmock.h>

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr CellArea kGrid{{0, 0}, {MapMaxX, MapMaxY}};
constexpr MapCell kHome{3, 4};
constexpr MapCell kAway{5, 6};

// Home belongs to the Wardens and has two bases; Away belongs to nobody. A gate joins them.
Space TwoSystems() {
  Space space;
  space.Factions = {"Wardens"};
  space.Systems = {{"home", "Home", kHome, 100000, 0},
                   {"away", "Away", kAway, 100000, std::nullopt}};
  space.Spots = {{"pier", "Pier", SpotKind::Station, "", {}, kHome, {}},
                 {"anvil", "anvil", SpotKind::Station, "", {}, kHome, {}},
                 {"wreck", "Wreck", SpotKind::Wreck, "", {}, kAway, {}},
                 {"gun", "Gun", SpotKind::Platform, "", {}, kHome, {}}};
  space.Gates = {{"there", "", false, "", kHome, {}, kAway},
                 {"back", "", false, "", kAway, {}, kHome}};
  space.Bodies = {{"sun", "Sun", BodyKind::Sun, kHome, {}, 0}};
  return space;
}

SummaryLine Count(SummaryKind kind, std::size_t count) {
  return {kind, count, "", ""};
}

TEST(Summary, OfManySystemsItCountsWhatIsThere) {
  EXPECT_THAT(SummaryOf(TwoSystems(), kGrid, 5),
              ElementsAre(Count(SummaryKind::Systems, 2), Count(SummaryKind::Owners, 1),
                          Count(SummaryKind::Bases, 2), Count(SummaryKind::Gates, 2),
                          Count(SummaryKind::Bodies, 1), Count(SummaryKind::Wrecks, 1)));
}

TEST(Summary, OfOneSystemItNamesOwnerBasesAndWhereGatesLead) {
  EXPECT_THAT(
      SummaryOf(TwoSystems(), {kHome, kHome}, 5),
      ElementsAre(SummaryLine{SummaryKind::System, 0, "Home", "home", kHome},
                  SummaryLine{SummaryKind::Owner, 0, "Wardens", ""}, Count(SummaryKind::Bases, 2),
                  SummaryLine{SummaryKind::Base, 0, "anvil", "anvil"},
                  SummaryLine{SummaryKind::Base, 0, "Pier", "pier"}, Count(SummaryKind::Gates, 1),
                  SummaryLine{SummaryKind::Gate, 0, "Away", "", kAway},
                  Count(SummaryKind::Bodies, 1)));
}

TEST(Summary, ASystemWithoutOwnerAndBasesSaysSo) {
  EXPECT_THAT(SummaryOf(TwoSystems(), {kAway, kAway}, 5),
              ElementsAre(SummaryLine{SummaryKind::System, 0, "Away", "away", kAway},
                          SummaryLine{SummaryKind::Owner, 0, "", ""}, Count(SummaryKind::Bases, 0),
                          Count(SummaryKind::Gates, 1),
                          SummaryLine{SummaryKind::Gate, 0, "Home", "", kHome},
                          Count(SummaryKind::Wrecks, 1)));
}

TEST(Summary, NamesBeyondTheMostAreCounted) {
  EXPECT_THAT(SummaryOf(TwoSystems(), {kHome, kHome}, 1),
              ElementsAre(testing::_, testing::_, Count(SummaryKind::Bases, 2),
                          SummaryLine{SummaryKind::Base, 0, "anvil", "anvil"},
                          Count(SummaryKind::More, 1), testing::_, testing::_, testing::_));
}

TEST(Summary, AnEmptyPartOfTheMapHasNone) {
  EXPECT_THAT(SummaryOf(TwoSystems(), {{0, 0}, {1, 1}}, 5), IsEmpty());
}

}  // namespace
}  // namespace orrerix
