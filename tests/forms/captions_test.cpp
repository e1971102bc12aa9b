// SPDX-License-Identifier: MIT
// Windows speak the language in use.
#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

#include "form_fixture.h"
#include "forms/start/import_screen.h"
#include "forms/start/loading.h"
#include "forms/start/spoiler.h"
#include "forms/start/update.h"

namespace orrerix {
namespace {

TEST(Captions, OfTheNoticeOfALaterVersionFollowTheLanguage) {
  PictureStore pictures;
  const Update update("", pictures, Language::German);

  EXPECT_EQ(update.windowTitle(), "Update verfügbar");
}

TEST(Captions, OfTheImportScreenFollowTheLanguage) {
  PictureStore pictures;
  const LanguageChoice choice{Language::French};
  QWidget form;
  const ImportScreen screen(pictures, choice, &form);

  EXPECT_EQ(Find<QPushButton>(screen, "StartButton").text(), "Lire les données");
}

TEST(Captions, OfTheWarningFollowTheLanguage) {
  PictureStore pictures;
  const Spoiler spoiler(DefaultSpoilerTexts(Language::German), pictures, Language::German);

  EXPECT_EQ(Find<QPushButton>(spoiler, "Cancel").text(), "Abbrechen - Beenden und selbst suchen");
  EXPECT_EQ(Find<QPushButton>(spoiler, "Cancel").toolTip(), "Abbrechen - Programm beenden");
}

TEST(Captions, OfTheStartFormFollowTheLanguage) {
  PictureStore pictures;
  const LanguageChoice choice{Language::French};
  const Loading loading(pictures, choice);

  EXPECT_EQ(loading.windowTitle(), "chargement de FL Orrerix...");
}

}  // namespace
}  // namespace orrerix
