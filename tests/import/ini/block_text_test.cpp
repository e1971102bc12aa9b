// SPDX-License-Identifier: MIT
#include "import/ini/block_text.h"

#include <gtest/gtest.h>

#include "db/failure.h"
#include "import/ini/ini_text.h"

namespace orrerix {
namespace {

TEST(BlockText, FindsWithoutRegardToCase) {
  const BlockText block("[Ship]\r\nAddOn = x\r\n");

  EXPECT_EQ(block.Find("ADDON"), 8u);
  EXPECT_FALSE(block.Find("CARGO"));
  EXPECT_TRUE(block.Holds("ADDON ="));
  EXPECT_TRUE(block.StartsWith("[SHIP]"));
}

TEST(BlockText, FindsExactSpellingsOnlyIfAskedTo) {
  const BlockText block("HP_TYPE = a\r\nhp_type = b\r\n");

  EXPECT_EQ(block.FindExact("hp_type ="), 13u);
}

TEST(BlockText, PositionsCountFromWhatIsLeft) {
  BlockText block("a = 1\r\nb = 2\r\nb = 3\r\n");

  block.Cut(7);

  EXPECT_EQ(block.Text(), "b = 2\r\nb = 3\r\n");
  EXPECT_EQ(block.Value("B"), "2");
  EXPECT_EQ(block.Find("B"), 0u);
}

TEST(BlockText, GivesTheValuesOfItsTextWhereverThatIsCut) {
  const std::string_view text = "= 0\r\n =1\r\na=2\r\nba  = 3\r\na= =4\r\nA = 5, b=6\r\nab =7";
  for (std::size_t cut = 0; cut <= text.size(); ++cut) {
    BlockText block(text);
    block.Cut(cut);

    for (const std::string_view key : {"A", "B", "BA", "AB", "2", "="}) {
      EXPECT_EQ(block.Value(key), GetINIValue(text.substr(cut), key)) << cut << " " << key;
    }
  }
}

TEST(BlockText, CutsAtMostAll) {
  BlockText block("abc");

  block.Cut(7);

  EXPECT_TRUE(block.Empty());
  EXPECT_EQ(block.Size(), 0u);
  EXPECT_EQ(block.Value("A"), "");
}

TEST(CutAtComma, GivesBothSidesOfTheFirst) {
  const CommaCut cut = CutAtComma("a, b, c");

  EXPECT_TRUE(cut.Found);
  EXPECT_EQ(cut.Before, "a");
  EXPECT_EQ(cut.After, " b, c");
}

TEST(CutAtComma, LeavesATextWithoutOneInFront) {
  const CommaCut cut = CutAtComma("abc");

  EXPECT_FALSE(cut.Found);
  EXPECT_EQ(cut.Before, "abc");
  EXPECT_EQ(cut.After, "");
}

TEST(RequireBeforeComma, FailsWithFiveWithoutAComma) {
  EXPECT_EQ(RequireBeforeComma("a,b"), "a");
  EXPECT_EQ(RequireAfterComma("a,b"), "b");
  for (const auto require : {RequireBeforeComma, RequireAfterComma}) {
    try {
      require("ab");
      ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number, 5);
      EXPECT_EQ(failure.Description, "Invalid procedure call or argument");
    }
  }
}

}  // namespace
}  // namespace orrerix
