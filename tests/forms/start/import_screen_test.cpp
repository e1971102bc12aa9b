// SPDX-License-Identifier: MIT
#include "forms/start/import_screen.h"

#include "forms/form_fixture.h"

namespace orrerix {
namespace {

class ImportScreenTest : public FormFixture {
 protected:
  ImportScreenTest() {
    form.resize(800, 600);
    screen.resize(800, 600);
    form.show();
  }

  QWidget form;
  LanguageChoice choice;
  ImportScreen screen{pictures, choice, &form};
};

TEST_F(ImportScreenTest, BeforeAnImportThereAreTextPathAndButton) {
  screen.LayOut(12000, 9000, false);

  EXPECT_TRUE(Find(form, "ImportText").isVisible());
  EXPECT_TRUE(Find(form, "GameFolderEdit").isVisible());
  EXPECT_TRUE(Find(form, "StartButton").isVisible());
  EXPECT_FALSE(Find(form, "MemFrame").isVisible());
  EXPECT_FALSE(Find(form, "Progress0").isVisible());
  EXPECT_EQ(screen.StartButton().text(), "Start getting Data");
  EXPECT_EQ(screen.ImportText().toPlainText(), "Analyzing Database.....\n");
}

TEST_F(ImportScreenTest, DuringAnImportThereAreTextProgressAndMemory) {
  screen.LayOut(12000, 9000, true);

  EXPECT_TRUE(Find(form, "ImportText").isVisible());
  EXPECT_FALSE(Find(form, "GameFolderEdit").isVisible());
  EXPECT_FALSE(Find(form, "StartButton").isVisible());
  EXPECT_TRUE(Find(form, "MemFrame").isVisible());
  EXPECT_TRUE(Find(form, "Progress0").isVisible());
}

TEST_F(ImportScreenTest, TheProgressGrowsFromTheMiddleOfItsFrame) {
  screen.LayOut(12000, 9000, true);

  screen.ShowProgress(100, 50, {4, 2});

  const QRect frame = Find(form, "Progress0").geometry();
  const QRect overall = Find(form, "Progress1").geometry();
  const QRect inner = Find(form, "Progress2").geometry();
  // 2 of 4 steps and half of the next: 5/8 of the frame; half of that within.
  EXPECT_NEAR(overall.width(), frame.width() * 5 / 8.0, 1);
  EXPECT_NEAR(inner.width(), overall.width() / 2.0, 1);
  EXPECT_NEAR(overall.center().x(), frame.center().x(), 1);
  EXPECT_NEAR(inner.center().y(), frame.center().y(), 1);
  EXPECT_TRUE(Find(form, "Progress2").isVisible());
}

TEST_F(ImportScreenTest, TheThreeSegmentsOfABarFillItsWidth) {
  screen.LayOut(12000, 9000, true);

  screen.Memory().MemoryUpdate(log, GlobalMemoryStatus(), 12000, false);

  const QRect first = Find(form, "MemLab0").geometry();
  const QRect second = Find(form, "MemLab1").geometry();
  const QRect third = Find(form, "MemLab2").geometry();
  EXPECT_EQ(first.right() + 1, second.left());
  EXPECT_EQ(second.right() + 1, third.left());
  // 150 twips before the form's edge
  EXPECT_EQ(third.right() + 1, (12000 - 150) / 15);
}

TEST_F(ImportScreenTest, AMinimisedFormGetsItsCaptionsAllTheSame) {
  screen.LayOut(12000, 9000, true);
  const QRect before = Find(form, "MemLab0").geometry();

  screen.Memory().MemoryUpdate(log, GlobalMemoryStatus(), 3000, true);

  EXPECT_EQ(Find(form, "MemLab0").geometry(), before);
  EXPECT_TRUE(Find<QLabel>(form, "MemLab2").text().endsWith(" MB "));
  EXPECT_TRUE(Find<QLabel>(form, "MemHeadLab0").text().startsWith("Startup Memory Usage "));
}

TEST_F(ImportScreenTest, WhatTakesTheKeyboardHasANameForScreenReaders) {
  for (const QWidget* child : screen.findChildren<QWidget*>()) {
    if (child->focusPolicy() == Qt::NoFocus || child->objectName().isEmpty()) continue;
    if (child->objectName() == "StartButton") continue;  // named by its caption
    EXPECT_FALSE(child->accessibleName().isEmpty()) << child->objectName().toStdString();
  }
}

}  // namespace
}  // namespace orrerix
