// SPDX-License-Identifier: MIT
#include "info/texts/text_wrap.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

// A character of one point is 12 twips wide.
std::string Wrap(std::string_view text, int characters) {
  return WrapText(text, FixedTextMeasure(), 1, characters * 12);
}

TEST(WrapText, ALineThatFitsKeepsABlankBeforeItsEnd) {
  EXPECT_EQ(Wrap("ab cd\r\n", 20), "ab cd \r\n");
}

TEST(WrapText, AnEmptyTextStaysEmpty) {
  EXPECT_EQ(Wrap("", 20), "");
}

TEST(WrapText, LineEndsStay) {
  EXPECT_EQ(Wrap("\r\nab\r\n\r\ncd", 20), "\r\nab \r\n\r\ncd\r\n");
}

TEST(WrapText, AfterALineEndThatStandsAloneTheNextLineIsTakenAsItIs) {
  EXPECT_EQ(Wrap("\r\n\r\nab", 20), "\r\n \r\nab\r\n");
}

TEST(WrapText, ARestWithoutALineEndGetsNoBlank) {
  EXPECT_EQ(Wrap("ab\r\n\r\n", 20), "ab \r\n\r\n");
  EXPECT_EQ(Wrap("one two three", 13), "one two\r\nthree\r\n");
}

TEST(WrapText, ALineThatIsAsWideAsTheBoxIsBroken) {
  // "abc def" and its blank are 8 characters: not less than 8. The next word with its blank is 4,
  // and 3 + 4 is less than 8.
  EXPECT_EQ(Wrap("abc def\r\n", 9), "abc def \r\n");
  EXPECT_EQ(Wrap("abc def\r\n", 8), "abc def\r\n");
  EXPECT_EQ(Wrap("abc def\r\n", 7), "abc\r\ndef \r\n");
}

TEST(WrapText, WordsAreCollectedWhileTheyFit) {
  EXPECT_EQ(Wrap("one two three four five\r\n", 10), "one two\r\nthree\r\nfour five\r\n");
}

TEST(WrapText, AWordThatIsTooWideStandsOnALineOfItsOwn) {
  EXPECT_EQ(Wrap("a incomprehensible b\r\n", 6), "a\r\nincomprehensible\r\nb \r\n");
}

TEST(WrapText, WithoutRoomEachWordHasItsLine) {
  EXPECT_EQ(Wrap("a b\r\n", -5), "a\r\nb\r\n");
}

}  // namespace
}  // namespace orrerix
