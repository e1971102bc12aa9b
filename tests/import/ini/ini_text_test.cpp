// SPDX-License-Identifier: MIT
#include "import/ini/ini_text.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

struct ValueCase {
  std::string_view Text;
  std::string_view Key;
  std::string_view Value;
};

class GetINIValueOf : public ::testing::TestWithParam<ValueCase> {};

TEST_P(GetINIValueOf, ATextAndAKey) {
  EXPECT_EQ(GetINIValue(GetParam().Text, GetParam().Key), GetParam().Value);
}

INSTANTIATE_TEST_SUITE_P(
    Forms, GetINIValueOf,
    ::testing::Values(
        ValueCase{"[x]\r\nprice = 300\r\n", "price", "300"},
        ValueCase{"price=300\r\n", "price", "300"},
        // Without a blank after "=" a letter is lost, but only if one precedes it.
        ValueCase{"name =Fox\r\n", "name", "ox"}, ValueCase{"name=Fox\r\n", "name", "Fox"},
        ValueCase{"name =   Fox Hole  \r\n", "name", "Fox Hole"},
        ValueCase{"PRICE = 300\r\n", "price", "300"}, ValueCase{"price = 300\r\n", "PRICE", "300"},
        // The first place where a text ends in the key.
        ValueCase{"hp_type = a\r\ntype = b\r\n", "type", "a"},
        ValueCase{"spin_pos = 1\r\npos = 2\r\n", "pos", "1"},
        // Only the first occurrence, and the form with the blank before the other.
        ValueCase{"a = 1\r\na = 2\r\n", "a", "1"}, ValueCase{"a=1\r\na = 2\r\n", "a", "2"},
        ValueCase{"price = 300", "price", "300"}, ValueCase{"price =", "price", ""},
        ValueCase{"price = ", "price", ""}, ValueCase{"price=", "price", ""},
        ValueCase{"cost = 3", "price", ""}, ValueCase{"", "price", ""},
        // Tabs are no blanks, and a lone LF ends no value.
        ValueCase{"a = \t1\r\n", "a", "\t1"}, ValueCase{"a = 1\nb = 2\r\n", "a", "1\nb = 2"},
        // A key with a "=" of its own, and two signs after one key.
        ValueCase{"x=a = 1\r\n", "x=a", "1"}, ValueCase{"a==1\r\n", "a", "=1"},
        ValueCase{"=1\r\n", "", "1"}, ValueCase{"xa=1\r\n", "xxa", ""},
        // After "key =" one character is skipped, whatever it is: here the CR.
        ValueCase{"a =\r\nb = 2\r\n", "a", "\nb = 2"}));

TEST(RemoveComments, GoUpToTheNextCarriageReturn) {
  EXPECT_EQ(RemoveComments("price = 300 ; not much\r\nmass = 1\r\n"),
            "price = 300 \r\nmass = 1\r\n");
  EXPECT_EQ(RemoveComments("; all\r\n;of it\r\n"), "\r\n\r\n");
}

TEST(RemoveComments, GoToTheEndWhereNoCarriageReturnFollows) {
  EXPECT_EQ(RemoveComments("a = 1 ; one\nb = 2\n"), "a = 1 ");
  EXPECT_EQ(RemoveComments("a;"), "a");
  EXPECT_EQ(RemoveComments(""), "");
}

TEST(RemoveComments, AlsoGoFromInsideAValue) {
  EXPECT_EQ(RemoveComments("name = a;b;c\rx"), "name = a\rx");
}

struct LineEndCase {
  std::string_view Text;
  std::string_view Fixed;
};

class FixCrLfOf : public ::testing::TestWithParam<LineEndCase> {};

TEST_P(FixCrLfOf, AText) {
  std::string text(GetParam().Text);

  text = FixCrLf(std::move(text));

  EXPECT_EQ(text, GetParam().Fixed);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, FixCrLfOf,
    ::testing::Values(LineEndCase{"a\nb", "a\r\nb"}, LineEndCase{"a\rb", "a\r\nb"},
                      LineEndCase{"a\r\nb", "a\r\nb"}, LineEndCase{"a\n\nb", "a\r\n\r\nb"},
                      LineEndCase{"a\r\rb", "a\r\n\r\nb"}, LineEndCase{"a\n\rb", "a\r\n\r\nb"},
                      // Neither the first nor the last character is examined.
                      LineEndCase{"\nb", "\nb"}, LineEndCase{"\rb", "\rb"},
                      LineEndCase{"a\n", "a\n"}, LineEndCase{"a\r", "a\r"},
                      LineEndCase{"a\nb\n", "a\r\nb\n"}, LineEndCase{"\n\nb", "\n\r\nb"},
                      LineEndCase{"", ""}, LineEndCase{"\n", "\n"}, LineEndCase{"=", "="},
                      // Runs of blanks before "=".
                      LineEndCase{"a   = 1", "a = 1"}, LineEndCase{"a =  1", "a =  1"},
                      LineEndCase{"a= 1", "a= 1"}, LineEndCase{"   =", " ="},
                      LineEndCase{"a  =  = b", "a = = b"}, LineEndCase{"a\t  = 1", "a\t = 1"},
                      LineEndCase{"a  b  = 1", "a  b = 1"}));

// The looks at a whole text take many characters at a time: wherever it is, one fault counts.
TEST(FixCrLf, FindsOneFaultAtEveryPlaceOfALongText) {
  const std::string line(70, 'x');
  for (std::size_t at = 1; at + 2 < line.size(); ++at) {
    const std::string before = line.substr(0, at);
    const std::string behind = line.substr(at);
    for (const auto& [fault, fixed] : {LineEndCase{"\n", "\r\n"}, LineEndCase{"\r", "\r\n"},
                                       LineEndCase{"  =", " ="}, LineEndCase{"\r\n", "\r\n"}}) {
      std::string text = before + std::string(fault) + behind;
      text = FixCrLf(std::move(text));
      EXPECT_EQ(text, before + std::string(fixed) + behind) << at;
    }
  }
}

TEST(UpperAscii, LeavesAllOtherBytesAlone) {
  EXPECT_EQ(UpperAscii("Li01_base \xE4\xFF{z}"), "LI01_BASE \xE4\xFF{Z}");
}

TEST(FindText, TellsTheFirstPlace) {
  EXPECT_EQ(FindText("abcabc", "bc"), 1u);
  EXPECT_EQ(FindText("abc", "abcd"), std::string_view::npos);
  EXPECT_EQ(FindText("", "a"), std::string_view::npos);
}

TEST(CleanBlock, IsTheBlockItselfWhereNothingIsToBeChanged) {
  const std::string_view block = "\r\n[a]\r\nb = 1\r\n";

  const CleanBlock clean(block);

  EXPECT_EQ(clean.Text(), "[a]\r\nb = 1\r\n");
  EXPECT_EQ(clean.Text().data(), block.data() + 2);
}

TEST(CleanBlock, HasNeitherCommentsNorOtherLineEnds) {
  EXPECT_EQ(CleanBlock("[a]\nb   = 1 ; [c]\r\nd\n").Text(), "[a]\r\nb = 1 \r\nd\n");
  EXPECT_EQ(CleanBlock("; here\r\n[a]\r\nb = 1\r\n").Text(), "[a]\r\nb = 1\r\n");
  EXPECT_EQ(CleanBlock("x\n[a]\nb = 1").Text(), "[a]\r\nb = 1");
}

TEST(CleanBlock, CanBeEmpty) {
  EXPECT_EQ(CleanBlock("").Text(), "");
  EXPECT_EQ(CleanBlock("; all").Text(), "");
}

}  // namespace
}  // namespace orrerix
