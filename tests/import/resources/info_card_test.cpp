// SPDX-License-Identifier: MIT
#include "import/resources/info_card.h"

#include <string>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(CleanEnd, LosesBlanksOnBothSidesAndControlsAtTheEnd) {
  EXPECT_EQ(CleanEnd("  Fox \r\n\t "), "Fox");
  EXPECT_EQ(CleanEnd(std::string_view("Fox\0  \0", 7)), "Fox");
  EXPECT_EQ(CleanEnd("Fox\v\f"), "Fox");
}

TEST(CleanEnd, KeepsControlsFromFourteenOnAndThoseInFront) {
  EXPECT_EQ(CleanEnd("Fox\x0E"), "Fox\x0E");
  EXPECT_EQ(CleanEnd("\r\nFox"), "\r\nFox");
  EXPECT_EQ(CleanEnd("Fox\x0D"), "Fox");
}

TEST(CleanEnd, MayLeaveNothing) {
  EXPECT_EQ(CleanEnd("    "), "");
  EXPECT_EQ(CleanEnd(" \r\n \t "), "");
  EXPECT_EQ(CleanEnd(""), "");
}

struct CardCase {
  std::string Card;
  std::string Text;
};

class InfoCardToTextOf : public ::testing::TestWithParam<CardCase> {};

TEST_P(InfoCardToTextOf, ACard) {
  EXPECT_EQ(InfoCardToText(GetParam().Card), GetParam().Text);
}

const std::string kBom = "\uFEFF";
const std::string kProlog = "<?xml version=\"1.0\" encoding=\"UTF-16\"?>";

INSTANTIATE_TEST_SUITE_P(
    Cards, InfoCardToTextOf,
    ::testing::Values(
        // Byte-order mark, prolog, root element.
        CardCase{kBom + kProlog + "<RDL><PUSH/><TEXT>Planet Fox</TEXT><POP/></RDL>", "Planet Fox"},
        // The first character goes whatever it is.
        CardCase{"Planet", "lanet"}, CardCase{"Ö", ""}, CardCase{"", ""},
        // Without a mark the "<" goes and "xml>" is left over.
        CardCase{"<xml>Fox</xml>", "Fox"}, CardCase{kBom + "xml>Fox", "Fox"},
        CardCase{kBom + "XML>Fox", "XML>Fox"},
        // What stands before the prolog goes with it; another prolog is a tag.
        CardCase{kBom + "rubbish " + kProlog + "Fox", "Fox"},
        CardCase{kBom + "<?xml version='1.0'?>Fox", "Fox"},
        // Paragraphs; the tag is known in this spelling only.
        CardCase{kBom + "a<PARA/>b", "a\r\nb"}, CardCase{kBom + "a<para/>b", "ab"},
        CardCase{kBom + "a<PARA/><PARA/><PARA/>b", "a\r\nb"},
        CardCase{kBom + "<PARA/>a<PARA/>", "\r\na\r\n"},
        // Tags.
        CardCase{kBom + "a<b>c</b>d", "acd"}, CardCase{kBom + "a<b", "a<b"},
        CardCase{kBom + "a<b<c>d", "ad"}, CardCase{kBom + "1>0<b>x</b>", "1>0<b>x</b>"},
        CardCase{kBom + "<i>a</i> > <b>c</b>", "a > <b>c</b>"},
        // Entities are dropped and not decoded.
        CardCase{kBom + "Smith &amp; Sons", "Smith  Sons"}, CardCase{kBom + "a&amp;b", "ab"},
        CardCase{kBom + "a; b &amp; c", "a; b &amp; c"}, CardCase{kBom + "a & b", "a & b"},
        // "&lt;" leaves nothing that could be a tag.
        CardCase{kBom + "a&lt;b&gt;c", "abc"},
        // Blanks and tabs before a line end.
        CardCase{kBom + "a  <PARA/>b", "a\r\nb"}, CardCase{kBom + "a\t\t<PARA/>b", "a\r\nb"},
        CardCase{kBom + "a \t <PARA/>b", "a\r\nb"},
        // Blanks, then tabs, twice: from the line end a tab goes in the first round, a blank and a
        // tab in the second, and the next blank stays.
        CardCase{kBom + "a \t \t \t<PARA/>b", "a \t \r\nb"},
        // Lines that hold blanks only vanish; line ends at both sides stay single.
        CardCase{kBom + "a<PARA/>  <PARA/>b", "a\r\nb"}));

}  // namespace
}  // namespace orrerix
