// SPDX-License-Identifier: MIT
#include "db/values/case_folding.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(SimpleCase, MapsOneCharacterToOne) {
  EXPECT_EQ(SimpleUpperCase(U'a'), U'A');
  EXPECT_EQ(SimpleUpperCase(U'ä'), U'Ä');
  EXPECT_EQ(SimpleUpperCase(U'ÿ'), U'Ÿ');
  EXPECT_EQ(SimpleUpperCase(U'\u00B5'), U'\u039C');
  EXPECT_EQ(SimpleLowerCase(U'Z'), U'z');
  EXPECT_EQ(SimpleLowerCase(U'Ÿ'), U'ÿ');
  EXPECT_EQ(SimpleLowerCase(U'Ж'), U'ж');
}

TEST(SimpleCase, LeavesWhatHasNoOtherForm) {
  for (const char32_t c : {U'ß', U'1', U'€', U'×', U'÷', U'\U0001F680', U'一'}) {
    EXPECT_EQ(SimpleUpperCase(c), c);
    EXPECT_EQ(SimpleLowerCase(c), c);
  }
}

}  // namespace
}  // namespace orrerix
