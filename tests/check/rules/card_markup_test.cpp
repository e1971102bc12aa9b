// SPDX-License-Identifier: MIT
#include "check/rules/card_markup.h"

#include <string>

#include <gtest/gtest.h>

namespace orrerix::check {
namespace {

TEST(CardMarkup, ACardIsOneElement) {
  EXPECT_TRUE(IsWellFormedCard("<RDL/>"));
  EXPECT_TRUE(IsWellFormedCard("<RDL><PUSH/><TEXT>a &gt; b</TEXT><PARA/><POP/></RDL>"));
  EXPECT_TRUE(IsWellFormedCard("<RDL ><TRA data=\"1\" mask = '1'/></RDL >"));
  EXPECT_FALSE(IsWellFormedCard(""));
  EXPECT_FALSE(IsWellFormedCard("text"));
  EXPECT_FALSE(IsWellFormedCard("<RDL></RDL><RDL></RDL>"));
  EXPECT_FALSE(IsWellFormedCard("<RDL></RDL>text"));
}

TEST(CardMarkup, MarkAndDeclarationAndBlanksMayStandAround) {
  EXPECT_TRUE(IsWellFormedCard("\xEF\xBB\xBF<?xml version=\"1.0\"?><RDL></RDL>"));
  EXPECT_TRUE(IsWellFormedCard(std::string("<RDL></RDL>\r\n \0\0", 16)));
  EXPECT_FALSE(IsWellFormedCard("<?xml version=\"1.0\"<RDL></RDL>"));
}

TEST(CardMarkup, TagsArePairedInOrder) {
  EXPECT_FALSE(IsWellFormedCard("<RDL>"));
  EXPECT_FALSE(IsWellFormedCard("</RDL>"));
  EXPECT_FALSE(IsWellFormedCard("<RDL><A><B></A></B></RDL>"));
  EXPECT_FALSE(IsWellFormedCard("<RDL></rdl>"));
  EXPECT_FALSE(IsWellFormedCard("<RDL><TEXT></RDL>"));
  EXPECT_FALSE(IsWellFormedCard("<RDL"));
}

TEST(CardMarkup, AttributesAreQuoted) {
  EXPECT_FALSE(IsWellFormedCard("<RDL><TRA data=1/></RDL>"));
  EXPECT_FALSE(IsWellFormedCard("<RDL><TRA data/></RDL>"));
  EXPECT_FALSE(IsWellFormedCard("<RDL><TRA data=\"1/></RDL>"));
  EXPECT_FALSE(IsWellFormedCard("<RDL><TRA a=\"1\"b=\"2\"/></RDL>"));
  EXPECT_FALSE(IsWellFormedCard("<RDL><TRA data=\"<\"/></RDL>"));
}

TEST(CardMarkup, EntitiesAreTheFiveOrNumbers) {
  EXPECT_TRUE(IsWellFormedCard("<R>&amp;&lt;&gt;&quot;&apos;&#160;&#xA0;</R>"));
  EXPECT_FALSE(IsWellFormedCard("<R>&nbsp;</R>"));
  EXPECT_FALSE(IsWellFormedCard("<R>this & that</R>"));
  EXPECT_FALSE(IsWellFormedCard("<R>&#;</R>"));
  EXPECT_FALSE(IsWellFormedCard("<R>&#x;</R>"));
  EXPECT_FALSE(IsWellFormedCard("<R>&amp</R>"));
  EXPECT_FALSE(IsWellFormedCard("<R a='&b;'/>"));
}

TEST(CardMarkup, ControlCharactersAreNoText) {
  EXPECT_TRUE(IsWellFormedCard("<R>\ta\r\nb</R>"));
  EXPECT_FALSE(IsWellFormedCard("<R>\x01</R>"));
  EXPECT_FALSE(IsWellFormedCard(std::string_view("<R>\0</R>", 8)));
}

}  // namespace
}  // namespace orrerix::check
