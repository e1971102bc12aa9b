// SPDX-License-Identifier: MIT
#include "demo/content/text_libraries.h"

#include <gtest/gtest.h>

#include "demo/bytes.h"

namespace orrerix::demo {
namespace {

TEST(TextLibraries, ATextNumberIsThePlaceOfTheLibraryTimes65536PlusTheNumber) {
  TextLibraries texts;

  EXPECT_EQ(texts.Name(Library::Names, "first"), 65536 + 1);
  EXPECT_EQ(texts.Name(Library::Names, "second"), 65536 + 2);
  EXPECT_EQ(texts.Name(Library::Misc, "first"), 4 * 65536 + 1);
}

TEST(TextLibraries, TheSameNameKeepsItsNumber) {
  TextLibraries texts;
  const int number = texts.Name(Library::Names, "Hällmark");
  texts.Name(Library::Names, "other");

  EXPECT_EQ(texts.Name(Library::Names, "Hällmark"), number);
}

TEST(TextLibraries, CardsOfOneThingFollowOneAnother) {
  TextLibraries texts;

  EXPECT_EQ(texts.Cards(Library::Cards, {"facts", "story"}), 2 * 65536 + 1);
  EXPECT_EQ(texts.Cards(Library::Cards, {"facts", "story"}), 2 * 65536 + 3);
  EXPECT_EQ(texts.SharedCard(Library::Cards, "shared"), 2 * 65536 + 5);
  EXPECT_EQ(texts.SharedCard(Library::Cards, "shared"), 2 * 65536 + 5);
}

TEST(TextLibraries, ALibraryHoldsItsOwnTextsOnly) {
  TextLibraries texts;
  texts.Name(Library::Names, "here");

  EXPECT_EQ(U16At(texts.Image(Library::Names), 0x200 + 14), 1u);
  EXPECT_EQ(U16At(texts.Image(Library::People), 0x200 + 14), 0u);
}

}  // namespace
}  // namespace orrerix::demo
