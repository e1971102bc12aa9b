// SPDX-License-Identifier: MIT
#include "check/rules/text_rules.h"

#include "check/game_fixture.h"

namespace orrerix::check {
namespace {

class TextRules : public CheckedGameTest {};

TEST_F(TextRules, TheFirstTextAboveAllHeadersIsFound) {
  Data("goods", "; a comment\n\nprice = 5\nand more\n[Good]\nnickname = g\n");
  Data("constants", "no header at all");

  EXPECT_THAT(Found("text-before-section"),
              ElementsAre("constants:1 no header at all", "goods:3 price"));
}

TEST_F(TextRules, ALineUnderAHeaderNeedsAnEqualsSign) {
  Data("constants", "[A]\nkey value\n  ; comment\n\t\n[B]\nkey = value\nmore ; = comment\n");

  EXPECT_THAT(Found("no-equals"), ElementsAre("constants:2 key value", "constants:7 more"));
}

TEST_F(TextRules, KeysThatStandAloneInTheGameAreLeftAlone) {
  Data("mbases", "[BaseFaction]\noffers_missions\n[MBase]\noffers_missions\n");
  Data("ships", "[collisiongroup]\nSeparable\n");
  Configure("bases");

  EXPECT_THAT(Found("no-equals"), ElementsAre("mbases:4 offers_missions"));
}

TEST_F(TextRules, AHeaderNeedsABracketAndAName) {
  Data("constants", "[A\n[]\n[ ]\n[B] rest\n[C;]\n");

  EXPECT_THAT(Found("bad-header"),
              ElementsAre("constants:1 -", "constants:2 -", "constants:3 -", "constants:5 -"));
}

TEST_F(TextRules, ASecondLeadKeyShowsAForgottenHeader) {
  Data("goods", R"(
[Good]
nickname = a
category = equipment

nickname = b
category = commodity
NickName = c
)");
  Data("mbases", "[BaseFaction]\nfaction = a\nweight = 1\nfaction = b\n");
  Data("markets", "[BaseGood]\nbase = a\nbase = b\n");
  Data("fuses", "[Fuse]\nname = a\nname = b\n");
  Data("bodyparts", "[Head]\nnickname = a\nnickname = b\n");

  EXPECT_THAT(Found("forgotten-header"),
              ElementsAre("bodyparts:3 nickname", "fuses:3 name", "goods:5 nickname",
                          "goods:7 NickName", "markets:3 base", "mbases:4 faction"));
}

TEST_F(TextRules, ASectionThatNoRuleKnowsMayRepeatItsNickname) {
  Data("constants", "[Good]\nnickname = a\nnickname = b\n");
  OneSystem("[Asteroids]\nnickname = a\nnickname = b\n");

  EXPECT_THAT(Found("forgotten-header"), IsEmpty());
}

TEST_F(TextRules, APartThatIsCutOffIsASectionOfItsOwn) {
  Data("equipment", "[Gun]\nnickname = a\n\nnickname = b\n");
  Data("loadouts", "[Loadout]\nnickname = l\nequip = b\n");

  EXPECT_THAT(Found("loadout-item"), IsEmpty());
  const auto findings = Run({"forgotten-header"}).Findings;
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_EQ(findings.front().Section, "Gun");
  EXPECT_EQ(findings.front().Nickname, "b");
}

TEST_F(TextRules, BytesThatNoTextHasAreFoundOnce) {
  Data("constants", std::string_view("[A]\na = 1\nb = \0\nc = \0\n", 20));
  Data("fonts", "[A]\r\nname = Gr\xFC\xDF\x65\r\nkey = \x81\r\n");
  Data("huds", "[A]\rname = \xEF\xBF\xBD\r");
  Data("igraph", "[A]\nname = \xC3\xBC\n");
  Data("logos", "[A]\nx \x81\n");
  Data("intro", "[A]\nname = \xFC\n");

  EXPECT_THAT(Found("bad-bytes"),
              ElementsAre("constants:3 b", "fonts:3 key", "huds:2 name", "logos:2 x \xC2\x81"));
}

}  // namespace
}  // namespace orrerix::check
