// SPDX-License-Identifier: MIT
#include "db/values/run_store.h"

#include <vector>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(RunStore, KeepsRunsOfAllLengthsInTheirPlaces) {
  RunStore<int> store;
  std::vector<std::span<const int>> kept;
  for (int length = 0; length < 300; ++length)
    kept.push_back(store.Keep(std::vector(length, length)));

  for (int length = 0; length < 300; ++length) {
    EXPECT_EQ(std::vector<int>(kept[length].begin(), kept[length].end()),
              std::vector(length, length));
    EXPECT_NE(kept[length].data(), nullptr);
  }
}

}  // namespace
}  // namespace orrerix
