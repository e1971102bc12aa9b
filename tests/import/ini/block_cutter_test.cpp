// SPDX-License-Identifier: MIT
#include "import/ini/block_cutter.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> Blocks(std::string_view file) {
  std::vector<std::string> blocks;
  BlockCutter cutter(file);
  while (const auto block = cutter.Next()) blocks.emplace_back(*block);
  return blocks;
}

TEST(BlockCutter, CutsBeforeEachBracketAndLosesTheCharacterBeforeIt) {
  EXPECT_THAT(Blocks("[a]\r\nx = 1\r\n[b]\r\ny = 2\r\n"),
              ElementsAre("[a]\r\nx = 1\r", "[b]\r\ny = 2\r\n"));
}

TEST(BlockCutter, LosesTheLastCharacterOfAValueThatTouchesTheNextHeader) {
  EXPECT_THAT(Blocks("[a]x[b]y"), ElementsAre("[a]", "[b]y"));
}

TEST(BlockCutter, TextBeforeTheFirstBracketIsDroppedWhereAnotherFollows) {
  EXPECT_THAT(Blocks("; a file\r\n[a]\r\n[b]\r\n"), ElementsAre("[a]\r", "[b]\r\n"));
}

TEST(BlockCutter, TheLastBlockKeepsWhatStandsBeforeItsBracket) {
  EXPECT_THAT(Blocks("; a file\r\n[a]\r\n"), ElementsAre("; a file\r\n[a]\r\n"));
}

TEST(BlockCutter, ABracketInACommentOrAValueStartsABlock) {
  EXPECT_THAT(Blocks("[a]\r\n;[b]\r\nname = x[1]\r\n"),
              ElementsAre("[a]\r\n", "[b]\r\nname = ", "[1]\r\n"));
}

TEST(BlockCutter, BracketsSideBySideLeaveAnEmptyBlock) {
  EXPECT_THAT(Blocks("[[a]"), ElementsAre("", "[a]"));
}

TEST(BlockCutter, AFileWithoutBracketsHasNoBlocks) {
  EXPECT_THAT(Blocks("name = 1\r\n"), IsEmpty());
  EXPECT_THAT(Blocks(""), IsEmpty());
}

TEST(BlockCutter, ALastBlockOfOneBracketIsABlock) {
  EXPECT_THAT(Blocks("["), ElementsAre("["));
}

TEST(BlockCutter, ABlockOfExactlyTheBufferIsWhole) {
  // 30,000 characters are read; with all of the file read the length does not matter.
  const std::string block = "[a]" + std::string(29997, 'x');

  EXPECT_THAT(Blocks(block), ElementsAre(block));
}

TEST(BlockCutter, ABlockBeyondTheBufferIsCutAndItsRestDropped) {
  // The first 30,000 characters are not more than 30,000, so the second chunk is read: the buffer
  // then holds all 40,000 characters up to the next header, and more.
  const std::string two = "[a]" + std::string(39996, 'x') + "\n" + "[b]" + std::string(30000, 'y');
  EXPECT_THAT(Blocks(two),
              ElementsAre("[a]" + std::string(39996, 'x'), "[b]" + std::string(30000, 'y')));

  // Here two chunks hold no second header: the block ends at 60,000, and what follows up to the
  // next header has none of its own.
  const std::string three = "[a]" + std::string(69996, 'x') + "\n" + "[b]y";
  EXPECT_THAT(Blocks(three),
              ElementsAre("[a]" + std::string(59997, 'x'), std::string(9999, 'x') + "\n[b]y"));
}

TEST(BlockCutter, TheRestOfACutBlockIsDroppedWhereTwoHeadersFollow) {
  const std::string file = "[a]" + std::string(69996, 'x') + "\n" + "[b]y\n[c]z";

  EXPECT_THAT(Blocks(file), ElementsAre("[a]" + std::string(59997, 'x'), "[b]y", "[c]z"));
}

TEST(BlockCutter, ABlockOfMegabytesIsTakenInPieces) {
  // After the cut at 60,000 the buffer is empty and no further header comes: all is dropped.
  const std::string file = "[a]" + std::string(5'000'000, 'x');

  EXPECT_THAT(Blocks(file), ElementsAre("[a]" + std::string(59997, 'x')));
}

TEST(BlockCutter, TellsHowMuchIsCut) {
  BlockCutter cutter("[a]12\n[b]34");
  EXPECT_EQ(cutter.Consumed(), 0u);

  cutter.Next();
  EXPECT_EQ(cutter.Consumed(), 6u);

  cutter.Next();
  EXPECT_EQ(cutter.Consumed(), 11u);
  EXPECT_FALSE(cutter.Next());
}

}  // namespace
}  // namespace orrerix
