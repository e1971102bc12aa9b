// SPDX-License-Identifier: MIT
#include "routes/gate_number.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(NicknameNumber, IsTheOneThatTheGameKnows) {
  EXPECT_EQ(NicknameNumber("Li03_to_Li01"), 2298368769u);
}

TEST(NicknameNumber, IgnoresCase) {
  EXPECT_EQ(NicknameNumber("LI03_TO_li01"), 2298368769u);
}

TEST(NicknameNumber, OfAnEmptyNicknameIsTheHighestBitAlone) {
  EXPECT_EQ(NicknameNumber(""), 0x80000000u);
}

}  // namespace
}  // namespace orrerix
