// SPDX-License-Identifier: MIT
#include "db/values/text.h"

#include <string>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

struct CaseCase {
  std::string_view Text;
  std::string_view Upper;
  std::string_view Lower;
};

class CaseOf : public ::testing::TestWithParam<CaseCase> {};

TEST_P(CaseOf, AText) {
  EXPECT_EQ(Ucase(GetParam().Text), GetParam().Upper);
  EXPECT_EQ(Lcase(GetParam().Text), GetParam().Lower);
}

INSTANTIATE_TEST_SUITE_P(Texts, CaseOf,
                         ::testing::Values(CaseCase{"Li01_Base [x]", "LI01_BASE [X]",
                                                    "li01_base [x]"},
                                           CaseCase{"äÖüé", "ÄÖÜÉ", "äöüé"},
                                           // Letters without a single other form stay.
                                           CaseCase{"Straße ŉ", "STRAßE ŉ", "straße ŉ"},
                                           CaseCase{"ÿŸ šŠ œŒ žŽ", "ŸŸ ŠŠ ŒŒ ŽŽ", "ÿÿ šš œœ žž"},
                                           CaseCase{"привет", "ПРИВЕТ", "привет"},
                                           CaseCase{"", "", ""}, CaseCase{"€…×÷", "€…×÷", "€…×÷"}));

TEST(Ucase, KeepsBytesThatAreNoUtf8) {
  EXPECT_EQ(Ucase("a\xFF"
                  "b\xC3"),
            "A\xFF"
            "B\xC3");
}

TEST(FoldAscii, LeavesOtherLettersAlone) {
  EXPECT_EQ(FoldAscii("FoxÄ"), "foxÄ");
}

TEST(EqualIgnoringCase, IsAboutAsciiLettersOnly) {
  EXPECT_TRUE(EqualIgnoringCase("Fox", "fOX"));
  EXPECT_FALSE(EqualIgnoringCase("Ä", "ä"));
  EXPECT_FALSE(EqualIgnoringCase("Fox", "Foxy"));
  EXPECT_FALSE(EqualIgnoringCase("@", "`"));
  EXPECT_TRUE(EqualIgnoringCase("", ""));
}

TEST(AsciiLength, EndsAtTheFirstByteBeyondAscii) {
  EXPECT_EQ(AsciiLength(""), 0u);
  EXPECT_EQ(AsciiLength("fox"), 3u);
  EXPECT_EQ(AsciiLength("a fox of more than eight"), 24u);
  EXPECT_EQ(AsciiLength("twelve chars\x80"), 12u);
  EXPECT_EQ(AsciiLength("\xFFseven"), 0u);
  EXPECT_EQ(AsciiLength("sevenchä"), 7u);
  EXPECT_EQ(AsciiLength(std::string_view("a\0\x7F", 3)), 3u);
}

TEST(Len, CountsCharacters) {
  EXPECT_EQ(Len("fox"), 3u);
  EXPECT_EQ(Len("fünf€🚀"), 6u);
  EXPECT_EQ(Len(std::string_view("a\0b", 3)), 3u);
  EXPECT_EQ(Len(""), 0u);
}

TEST(LeftAndRight, CutBetweenCharacters) {
  EXPECT_EQ(Left("fünf", 2), "fü");
  EXPECT_EQ(Left("fünf", 0), "");
  EXPECT_EQ(Left("fünf", 9), "fünf");
  EXPECT_EQ(Right("fünf", 3), "ünf");
  EXPECT_EQ(Right("fünf", 0), "");
  EXPECT_EQ(Right("fünf", 9), "fünf");
}

TEST(Trim, RemovesBlanksOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim(" \ta\r\n "), "\ta\r\n");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(Contains, MindsCase) {
  EXPECT_TRUE(Contains("*archetype*", "type"));
  EXPECT_FALSE(Contains("*archetype*", "Type"));
  EXPECT_TRUE(Contains("a", ""));
}

TEST(AppendUtf8, WritesEveryCodePoint) {
  std::string text;
  for (const char32_t c : {U'A', U'ü', U'€', U'\U0001F680', U'\U0010FFFF'}) AppendUtf8(text, c);

  EXPECT_EQ(text, "Aü€🚀\U0010FFFF");
}

TEST(AppendUtf8, WritesAQuestionMarkForWhatIsNone) {
  std::string text;
  for (const std::uint32_t c : {0xD800u, 0xDFFFu, 0x110000u}) {
    AppendUtf8(text, static_cast<char32_t>(c));
  }

  EXPECT_EQ(text, "???");
}

TEST(NextCodePoint, WalksAnyTextToItsEnd) {
  const std::string_view text = "a€\xFF\xE2\x82";
  std::u32string walked;
  for (std::size_t at = 0; at < text.size();) walked.push_back(NextCodePoint(text, at));

  EXPECT_EQ(walked, (std::u32string{U'a', U'€', 0xFF, 0xE2, 0x82}));
}

TEST(CompareIgnoringCase, OrdersAsTheEngineDoes) {
  using namespace std::string_literals;
  EXPECT_LT(CompareIgnoringCase("alpha", "Beta"), 0);
  EXPECT_GT(CompareIgnoringCase("beta", "Alpha"), 0);
  EXPECT_EQ(CompareIgnoringCase("FoX", "fOx"), 0);
  EXPECT_LT(CompareIgnoringCase("fox", "Foxes"), 0);
  EXPECT_LT(CompareIgnoringCase("", "a"), 0);
  EXPECT_LT(CompareIgnoringCase("z", "\xC3\xA4"), 0);  // bytes count without a sign
  EXPECT_NE(CompareIgnoringCase("\xC3\xA4", "\xC3\x84"), 0);
  EXPECT_EQ(CompareIgnoringCase("a\0b"s, "A\0c"s), 0);
  EXPECT_LT(CompareIgnoringCase("a\0b"s, "a\0bc"s), 0);
}

TEST(HashIgnoringCase, IsThatOfAnyTextThatIsEqual) {
  using namespace std::string_literals;
  EXPECT_EQ(HashIgnoringCase("Commodity_Water"), HashIgnoringCase("COMMODITY_WATER"));
  EXPECT_EQ(HashIgnoringCase("a\0b"s), HashIgnoringCase("A\0c"s));
  EXPECT_NE(HashIgnoringCase("Commodity_Water"), HashIgnoringCase("Commodity_Wafer"));
  EXPECT_NE(HashIgnoringCase("a"), HashIgnoringCase("aa"));
}

}  // namespace
}  // namespace orrerix
