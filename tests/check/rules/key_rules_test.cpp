// SPDX-License-Identifier: MIT
#include "check/rules/key_rules.h"

#include "check/game_fixture.h"
#include "check/rules/key_spelling.h"

namespace orrerix::check {
namespace {

class KeyRules : public CheckedGameTest {
 protected:
  // Sections of guns that each have the lines.
  static std::string Guns(int count, const std::string& lines) {
    std::string text;
    for (int i = 0; i < count; ++i) text += "[Gun]\n" + lines;
    return text;
  }
};

TEST_F(KeyRules, ARareKeyLikeACommonOneIsMisspelt) {
  Data("equipment", "[Gun]\nhit_pst = 1\n" + Guns(50, "hit_pts = 1\n"));

  EXPECT_THAT(Found("key-misspelt"), ElementsAre("equipment:2 hit_pst"));
  EXPECT_THAT(Messages("key-misspelt"), ElementsAre("the key hit_pst is probably hit_pts: 1"));
}

TEST_F(KeyRules, AKeyThatIsMoreThanAFiftiethIsRight) {
  Data("equipment", "[Gun]\nhit_pst = 1\n" + Guns(49, "hit_pts = 1\n"));

  EXPECT_THAT(Found("key-misspelt"), IsEmpty());
}

TEST_F(KeyRules, SectionsAreCountedNotLines) {
  Data("equipment", "[Gun]\nhit_pst = 1\nhit_pst = 2\n" + Guns(50, "hit_pts = 1\nhit_pts = 1\n"));

  EXPECT_THAT(Found("key-misspelt"), ElementsAre("equipment:2 hit_pst"));
}

TEST_F(KeyRules, AKeyBesideTheOneThatItIsLikeIsRight) {
  Data("equipment", "[Gun]\nhit_pst = 1\nhit_pts = 1\n" + Guns(60, "hit_pts = 1\n"));

  EXPECT_THAT(Found("key-misspelt"), IsEmpty());
}

TEST_F(KeyRules, SectionsOfOtherNamesAndRolesDoNotCount) {
  Data("equipment", "[Engine]\nhit_pst = 1\n" + Guns(60, "hit_pts = 1\n"));
  Data("constants", "[Gun]\nhit_pst = 1\n");

  EXPECT_THAT(Found("key-misspelt"), IsEmpty());
}

TEST_F(KeyRules, TheCommonestOfSeveralIsNamed) {
  Data("equipment", "[Gun]\nmas = 1\n" + Guns(50, "mass = 1\nmast = 1\n") + Guns(1, "mast = 1\n"));

  EXPECT_THAT(Messages("key-misspelt"), ElementsAre("the key mas is probably mast: 1"));
}

TEST(KeySpelling, OneLetterMoreLessOrOtherOrTwoSwappedIsASlip) {
  EXPECT_TRUE(IsOneSlipFrom(U"colour", U"color"));
  EXPECT_TRUE(IsOneSlipFrom(U"pos", U"poss"));
  EXPECT_TRUE(IsOneSlipFrom(U"pos", U"pas"));
  EXPECT_TRUE(IsOneSlipFrom(U"pos", U"pso"));
  EXPECT_FALSE(IsOneSlipFrom(U"pos", U"pos"));
  EXPECT_FALSE(IsOneSlipFrom(U"pos", U"sop"));
  EXPECT_FALSE(IsOneSlipFrom(U"pos", U"po_ss"));
}

TEST(KeySpelling, DigitsAloneAreNoSlip) {
  EXPECT_FALSE(IsOneSlipFrom(U"ids_info1", U"ids_info2"));
  EXPECT_FALSE(IsOneSlipFrom(U"ids_info1", U"ids_info"));
  EXPECT_FALSE(IsOneSlipFrom(U"hp12", U"hp21"));
  EXPECT_TRUE(IsOneSlipFrom(U"ids_inf0", U"ids_info"));
}

}  // namespace
}  // namespace orrerix::check
