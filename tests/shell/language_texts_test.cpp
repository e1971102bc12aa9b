// SPDX-License-Identifier: MIT
#include "shell/language_texts.h"

#include <gtest/gtest.h>

#include "db/text.h"

namespace orrerix {
namespace {

TEST(LanguageTexts, AreNumberedFrom0To28) {
  int expected = 0;
  for (const LanguageText& text : LanguageTexts()) {
    EXPECT_EQ(text.ID, expected++);
    EXPECT_FALSE(text.English.empty() || text.German.empty() || text.French.empty()) << text.ID;
  }
  EXPECT_EQ(expected, 29);
}

TEST(LanguageTexts, FitTheirField) {
  for (const LanguageText& text : LanguageTexts()) {
    EXPECT_LE(Len(text.English), 255u);
    EXPECT_LE(Len(text.German), 255u);
    EXPECT_LE(Len(text.French), 255u);
  }
  // The sentence about the game server is a long one in every language.
  for (int language = 0; language < 3; ++language) {
    EXPECT_GT(Len(TextIn(language, 13)), 100u);
    EXPECT_LE(Len(TextIn(language, 13)), 137u);
  }
}

struct TextCase {
  int Language;
  int ID;
  std::string_view Text;
};

class TextInLanguage : public ::testing::TestWithParam<TextCase> {};

TEST_P(TextInLanguage, IsThis) {
  EXPECT_EQ(TextIn(GetParam().Language, GetParam().ID), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    Samples, TextInLanguage,
    ::testing::Values(TextCase{0, 0, "English"}, TextCase{1, 0, "Deutsch"},
                      TextCase{2, 0, "Français"}, TextCase{0, 3, "Jumpgate Lines"},
                      TextCase{0, 4, "JumpHole Lines"},  // the capital belongs there
                      TextCase{1, 9, "Suche nach Planeten, Basen, Stationen,..."},
                      TextCase{2, 9, "Rechercher une Planète, Station, Base, Objet,…"},
                      TextCase{1, 27, "Suche nach Hackern"},
                      TextCase{2, 28, "Prix d'Achat des Marchandises"}, TextCase{0, 29, "?????"},
                      TextCase{0, -1, "?????"}, TextCase{3, 0, "?????"}, TextCase{-1, 0, "?????"}));

}  // namespace
}  // namespace orrerix
