// SPDX-License-Identifier: MIT
#include "shell/language_texts.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr std::array kAllLanguages = {Language::English, Language::German, Language::French};

TEST(StoredTexts, AreNumberedFrom0To28) {
  int expected = 0;
  for (const LanguageText& text : StoredTexts()) {
    EXPECT_EQ(static_cast<int>(text.Id), expected++);
  }
  EXPECT_EQ(expected, 29);
}

TEST(StoredTexts, FitTheirField) {
  for (const LanguageText& text : StoredTexts()) {
    for (const std::string_view column : text.In) EXPECT_LE(Len(column), 255u);
  }
  // The sentence about the game server is a long one in every language.
  for (const Language language : kAllLanguages) {
    EXPECT_GT(Len(TextIn(language, TextId::SloganTip)), 100u);
    EXPECT_LE(Len(TextIn(language, TextId::SloganTip)), 137u);
  }
}

TEST(Texts, ExistInEveryLanguage) {
  for (int id = 0; id < kTexts; ++id) {
    for (const Language language : kAllLanguages) {
      EXPECT_FALSE(TextIn(language, static_cast<TextId>(id)).empty()) << id;
    }
  }
}

TEST(Texts, HaveTheSamePlacesForValuesInEveryLanguage) {
  const auto places = [](std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = text.find("{}"); at != std::string_view::npos;
         at = text.find("{}", at + 2))
      ++count;
    return count;
  };
  for (int id = 0; id < kTexts; ++id) {
    const auto text = static_cast<TextId>(id);
    EXPECT_EQ(places(TextIn(Language::German, text)), places(TextIn(Language::English, text)))
        << id;
    EXPECT_EQ(places(TextIn(Language::French, text)), places(TextIn(Language::English, text)))
        << id;
  }
}

TEST(Texts, ALanguageWithoutTextsSpeaksEnglishWhereTheFileKeepsNone) {
  const auto unknown = static_cast<Language>(7);

  EXPECT_EQ(TextIn(unknown, TextId::Price), "?????");
  EXPECT_EQ(TextIn(static_cast<Language>(-1), TextId::Price), "?????");
  EXPECT_EQ(TextIn(unknown, TextId::PrintMap), "Print Map");
}

TEST(Texts, ValuesTakeTheirPlaces) {
  EXPECT_EQ(FormatIn(Language::German, TextId::CannotWrite, "a.txt"),
            "'a.txt' kann nicht geschrieben werden");
}

struct TextCase {
  Language In;
  TextId Id;
  std::string_view Text;
};

class TextInLanguage : public ::testing::TestWithParam<TextCase> {};

TEST_P(TextInLanguage, IsThis) {
  EXPECT_EQ(TextIn(GetParam().In, GetParam().Id), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    Samples, TextInLanguage,
    ::testing::Values(
        TextCase{Language::English, TextId::LanguageName, "English"},
        TextCase{Language::German, TextId::LanguageName, "Deutsch"},
        TextCase{Language::French, TextId::LanguageName, "Français"},
        TextCase{Language::English, TextId::JumpGateLines, "Jumpgate Lines"},
        TextCase{Language::English, TextId::JumpHoleLines, "JumpHole Lines"},  // as it stands
        TextCase{Language::German, TextId::SearchPlaces,
                 "Suche nach Planeten, Basen, Stationen,..."},
        TextCase{Language::French, TextId::SearchPlaces,
                 "Rechercher une Planète, Station, Base, Objet,…"},
        TextCase{Language::German, TextId::SearchBribes, "Suche nach Hackern"},
        TextCase{Language::French, TextId::BuyPrices, "Prix d'Achat des Marchandises"},
        TextCase{Language::German, TextId::NoConnection,
                 "Keine Online Verbindung vorhanden ! Bitte einwählen !"},
        TextCase{Language::English, TextId::FailureQuestion,
                 "OK = Resume Function behind Error.\r\nCancel = Abort Function and proceed."},
        TextCase{Language::English, static_cast<TextId>(-1), "?????"}));

}  // namespace
}  // namespace orrerix
