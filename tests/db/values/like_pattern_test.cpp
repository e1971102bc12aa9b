// SPDX-License-Identifier: MIT
#include "db/values/like_pattern.h"

#include <string>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

enum class LikeResult { No, Yes, InvalidPattern };

LikeResult Like(std::string_view text, std::string_view pattern) {
  const auto compiled = LikePattern::Compile(pattern);
  if (!compiled) return LikeResult::InvalidPattern;
  return compiled->Matches(text) ? LikeResult::Yes : LikeResult::No;
}

struct LikeCase {
  std::string_view Text;
  std::string_view Pattern;
  LikeResult Result;
};

class LikeOf : public ::testing::TestWithParam<LikeCase> {};

TEST_P(LikeOf, ATextAndAPattern) {
  EXPECT_EQ(Like(GetParam().Text, GetParam().Pattern), GetParam().Result);
}

constexpr LikeResult kYes = LikeResult::Yes;
constexpr LikeResult kNo = LikeResult::No;
constexpr LikeResult kInvalid = LikeResult::InvalidPattern;

INSTANTIATE_TEST_SUITE_P(
    Runs, LikeOf,
    ::testing::Values(LikeCase{"Planet Fox", "*fox*", kYes}, LikeCase{"Planet Fox", "fox*", kNo},
                      LikeCase{"fox", "*", kYes}, LikeCase{"", "*", kYes}, LikeCase{"", "", kYes},
                      LikeCase{"a", "", kNo}, LikeCase{"FOX", "fox", kYes},
                      LikeCase{"abcabd", "*abd", kYes}, LikeCase{"aab", "*ab", kYes},
                      LikeCase{"abc", "a**c", kYes}, LikeCase{"abc", "a*b*c*", kYes},
                      LikeCase{"ac", "a*b*c", kNo}));

INSTANTIATE_TEST_SUITE_P(Single, LikeOf,
                         ::testing::Values(LikeCase{"fox", "f?x", kYes},
                                           LikeCase{"füx", "f?x", kYes}, LikeCase{"fx", "f?x", kNo},
                                           LikeCase{"a1", "a#", kYes}, LikeCase{"ab", "a#", kNo},
                                           LikeCase{"a", "a?", kNo},
                                           // Wildcards of other engines are plain characters.
                                           LikeCase{"fox", "f_x", kNo},
                                           LikeCase{"f_x", "f_x", kYes}, LikeCase{"fox", "%", kNo},
                                           LikeCase{"100%", "100%", kYes}));

INSTANTIATE_TEST_SUITE_P(
    Sets, LikeOf,
    ::testing::Values(
        LikeCase{"b", "[a-c]", kYes}, LikeCase{"B", "[a-c]", kYes}, LikeCase{"d", "[a-c]", kNo},
        LikeCase{"d", "[!a-c]", kYes}, LikeCase{"b", "[!a-c]", kNo}, LikeCase{"x", "[axz]", kYes},
        LikeCase{"-", "[a-]", kYes}, LikeCase{"-", "[-a]", kYes}, LikeCase{"*", "[*]", kYes},
        LikeCase{"a", "[*]", kNo}, LikeCase{"?", "[?]", kYes}, LikeCase{"#", "[#]", kYes},
        LikeCase{"[", "[[]", kYes}, LikeCase{"5", "[0-9a-f]", kYes},
        LikeCase{"e", "[0-9a-f]", kYes}, LikeCase{"ab", "a[]b", kYes}, LikeCase{"]", "]", kYes},
        LikeCase{"!", "!", kYes}, LikeCase{"Fox 7", "fox [5-9]*", kYes}));

INSTANTIATE_TEST_SUITE_P(Invalid, LikeOf,
                         ::testing::Values(LikeCase{"a", "[", kInvalid},
                                           LikeCase{"a", "*[abc", kInvalid},
                                           LikeCase{"a", "[c-a]", kInvalid},
                                           // Also where the match would never get there.
                                           LikeCase{"a", "b[", kInvalid},
                                           LikeCase{"", "[z-a]", kInvalid}));

TEST(LikePattern, IsQuickOnManyRuns) {
  std::string pattern;
  for (int i = 0; i < 40; ++i) pattern += "*a";
  EXPECT_EQ(Like(std::string(2000, 'a') + "b", pattern), kNo);
}

}  // namespace
}  // namespace orrerix
