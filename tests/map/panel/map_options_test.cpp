// SPDX-License-Identifier: MIT
#include "map/panel/map_options.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(MapOptions, TheWholeGridStartsWithoutBackgrounds) {
  EXPECT_EQ(MapOptions::Defaults(false).On,
            (std::array<bool, 6>{false, false, true, true, true, true}));
}

TEST(MapOptions, AZoomedViewStartsWithEverything) {
  EXPECT_EQ(MapOptions::Defaults(true).On,
            (std::array<bool, 6>{true, true, true, true, true, true}));
}

TEST(MapOptions, EachViewHasKeysOfItsOwn) {
  EXPECT_EQ(SettingKey(false, 3), "SET1-3");
  EXPECT_EQ(SettingKey(true, 5), "SET2-5");
}

TEST(MapOptions, ASettingIsOnIfItsNumberIsAboveZero) {
  EXPECT_TRUE(IsOn("1"));
  EXPECT_TRUE(IsOn(" 0.5x"));
  EXPECT_FALSE(IsOn("0"));
  EXPECT_FALSE(IsOn("-1"));
  EXPECT_FALSE(IsOn(""));
  EXPECT_FALSE(IsOn("on"));
}

}  // namespace
}  // namespace orrerix
