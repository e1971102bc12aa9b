// SPDX-License-Identifier: MIT
#include "db/rows/key_set.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

// Rows whose keys are their own numbers, and whose hashes are all alike: each finds the others on
// its way.
class KeySetOfNumbers : public ::testing::Test {
 protected:
  static constexpr std::size_t kHash = 15;

  void Put(KeySet::Row row) {
    keys.MakeRoom();
    keys.Put(row, kHash);
  }
  bool Holds(KeySet::Row row) const {
    return keys.Holds(kHash, [row](KeySet::Row other) { return other == row; });
  }

  KeySet keys;
};

TEST_F(KeySetOfNumbers, HoldsNothingAtFirst) {
  EXPECT_FALSE(Holds(0));
}

TEST_F(KeySetOfNumbers, HoldsWhatWasPutInAlsoWhenItGrows) {
  for (KeySet::Row row = 0; row < 100; ++row) Put(row);

  for (KeySet::Row row = 0; row < 100; ++row) EXPECT_TRUE(Holds(row)) << row;
  EXPECT_FALSE(Holds(100));
}

TEST_F(KeySetOfNumbers, ARowThatIsTakenOutHidesNoOther) {
  for (KeySet::Row row = 0; row < 5; ++row) Put(row);

  keys.Erase(2, kHash);

  EXPECT_FALSE(Holds(2));
  EXPECT_TRUE(Holds(1));
  EXPECT_TRUE(Holds(4));
}

TEST_F(KeySetOfNumbers, ClearTakesAllOut) {
  Put(7);

  keys.Clear();

  EXPECT_FALSE(Holds(7));
}

}  // namespace
}  // namespace orrerix
