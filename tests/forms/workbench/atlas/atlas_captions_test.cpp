// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_captions.h"

#include <gtest/gtest.h>

#include "atlas/registry.h"

namespace orrerix {
namespace {

TEST(AtlasCaptions, AreThereForAllTablesInAllLanguages) {
  for (const Language language : {Language::English, Language::German, Language::French}) {
    for (const AtlasTable& table : AtlasTables()) {
      EXPECT_TRUE(TranslatedCaption(language, table.Title)) << table.Title;
      for (const ColumnHead& column : table.Columns) {
        EXPECT_TRUE(TranslatedCaption(language, column.Head)) << column.Head;
      }
    }
  }
}

TEST(AtlasCaptions, KeepTheUnit) {
  EXPECT_EQ(TranslatedCaption(Language::German, "Range (m)"), "Reichweite (m)");
  EXPECT_EQ(TranslatedCaption(Language::French, "Hull damage (points/shot)"),
            "D\u00E9g\u00E2ts \u00E0 la coque (points/tir)");
  EXPECT_EQ(TranslatedCaption(Language::English, "Anything (x)"), "Anything (x)");
}

TEST(AtlasCaptions, FallBackToEnglish) {
  EXPECT_FALSE(TranslatedCaption(Language::German, "Anything"));
  EXPECT_FALSE(TranslatedCaption(Language::German, "Range (parsecs)"));
  EXPECT_EQ(AtlasCaption(Language::German, "Anything"), "Anything");
}

}  // namespace
}  // namespace orrerix
