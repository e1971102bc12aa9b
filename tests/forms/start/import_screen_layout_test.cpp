// SPDX-License-Identifier: MIT
#include "forms/start/import_screen_layout.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(ImportScreenLayout, BeforeAnImportTheTextFillsTheFormAboveThePathBox) {
  const ImportScreenLayout layout = LayOutImportScreen({12000, 9000, 2000, 1500, false});

  EXPECT_EQ(layout.Text, (WholeTwipRect{100, 50, 11700, 8000}));
  // 12000 - 300 - 2000, 50 + 8000 + 100
  EXPECT_EQ(layout.StartButton, (WholeTwipRect{9700, 8150, 2000, 0}));
  // 9700 - 100 - 200
  EXPECT_EQ(layout.GameFolder, (WholeTwipRect{100, 8150, 9400, 0}));
}

TEST(ImportScreenLayout, DuringAnImportTheProgressHasTheRightHalfAndTheMemoryTheFoot) {
  const ImportScreenLayout layout = LayOutImportScreen({12000, 9000, 2000, 1500, true});

  // 9000 - 500 - 1500
  EXPECT_EQ(layout.MemFrame, (WholeTwipRect{0, 7000, 11950, 1500}));
  // (12000 - 300) / 2 - 50, 7000 - 50
  EXPECT_EQ(layout.Text, (WholeTwipRect{100, 50, 5800, 6950}));
  EXPECT_EQ(layout.Progress, (WholeTwipRect{6000, 50, 5800, 6950}));
}

TEST(ImportScreenLayout, NothingGoesBelowZeroOnATinyForm) {
  for (const bool importing : {false, true}) {
    const ImportScreenLayout layout = LayOutImportScreen({100, 100, 2000, 1500, importing});
    EXPECT_EQ(layout.Text.Width, 0);
    EXPECT_EQ(layout.Text.Height, 0);
    EXPECT_EQ(layout.StartButton.Left, 0);
    EXPECT_EQ(layout.GameFolder.Width, 0);
  }
  EXPECT_EQ(LayOutImportScreen({100, 100, 2000, 1500, true}).MemFrame,
            (WholeTwipRect{0, 0, 50, 1500}));
}

TEST(ImportScreenLayout, TheWindowIsAsWideAsTheScreenAndStandsInTheMiddle) {
  // 19200 / 2 + 300 + 1500 = 11400; 15360 / 2 - 11400 / 2 = 1980
  EXPECT_EQ(ImportWindowPlace(19200, 15360, 1500), (WholeTwipRect{0, 1980, 19200, 11400}));
}

TEST(ImportScreenLayout, AWindowHigherThanTheScreenStartsAtItsTop) {
  // 20490 / 2 + 300 + 1500 = 12045
  EXPECT_EQ(ImportWindowPlace(20490, 11520, 1500), (WholeTwipRect{0, 0, 20490, 12045}));
}

}  // namespace
}  // namespace orrerix
