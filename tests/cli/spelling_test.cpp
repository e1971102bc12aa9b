// SPDX-License-Identifier: MIT
#include "cli/spelling.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(MostAlike, FindsTheCandidateThatNeedsTheFewestChanges) {
  EXPECT_EQ(MostAlike("scne", {"station", "scene", "search"}), "scene");
  EXPECT_EQ(MostAlike("hoover", {"hover", "info"}), "hover");
  EXPECT_EQ(MostAlike("nane", {"info", "name"}), "name");
}

TEST(MostAlike, IgnoresCase) {
  EXPECT_EQ(MostAlike("GOODS", {"Groups", "goods"}), "goods");
}

TEST(MostAlike, TakesTheFirstOfEqualCandidates) {
  EXPECT_EQ(MostAlike("cat", {"bat", "hat"}), "bat");
}

TEST(MostAlike, HasNoAnswerWithoutCandidates) {
  EXPECT_EQ(MostAlike("x", {}), "");
}

}  // namespace
}  // namespace orrerix
