// SPDX-License-Identifier: MIT
#include "forms/error_log_window.h"

#include <QScrollBar>

#include "form_fixture.h"
#include "forms/controls/plated_label.h"

namespace orrerix {
namespace {

class ErrorLogWindowTest : public FormFixture {
 protected:
  QString TextOf(const char* box) {
    PassEvents();
    return Find<QPlainTextEdit>(window, box).toPlainText();
  }

  void Fail() {
    EXPECT_EQ(log.AddDataError("OrrerixMain.GetName", {6, "Overflow", "Orrerix"}, ""),
              ErrorAnswer::GoOn);
    PassEvents();
  }

  bool importing = false;
  LanguageChoice choice;
  ErrorLogWindow window{log, [this] { return importing; }, choice};
};

TEST_F(ErrorLogWindowTest, ItComesWithTheFirstLine) {
  EXPECT_FALSE(window.isVisible());

  log.AddErrorLine("Cant find file: [x]");

  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(window.windowTitle(), "FL-Orrerix Error Logfile.");
  EXPECT_EQ(TextOf("DataLog"),
            "FreeLancer-Files Error Logfile\n=======================\n\nCant find file: [x]");
  EXPECT_FALSE(Find(window, "ProgramLog").isVisible());
  EXPECT_FALSE(Find(window, "Label1_1").isVisible());
}

TEST_F(ErrorLogWindowTest, TheCaretStandsAtTheEnd) {
  for (int i = 0; i < 100; ++i) log.AddErrorLine("line");
  PassEvents();

  EXPECT_TRUE(Find<QPlainTextEdit>(window, "DataLog").textCursor().atEnd());
}

TEST_F(ErrorLogWindowTest, LinesThatComeTogetherAreShownTogether) {
  log.AddErrorLine("first");
  const auto& box = Find<QPlainTextEdit>(window, "DataLog");
  int changes = 0;
  QObject::connect(&box, &QPlainTextEdit::textChanged, [&changes] { ++changes; });

  for (int i = 0; i < 1000; ++i) log.AddErrorLine("line");
  PassEvents();

  EXPECT_EQ(changes, 1);
  EXPECT_EQ(box.document()->blockCount(), 2 + 1 + 1 + 1000);
  const QScrollBar& bar = *box.verticalScrollBar();
  EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(ErrorLogWindowTest, InItsHalfTheDataLogStillShowsItsEnd) {
  for (int i = 0; i < 100; ++i) log.AddErrorLine("line");
  PassEvents();

  Fail();

  const QScrollBar& bar = *Find<QPlainTextEdit>(window, "DataLog").verticalScrollBar();
  EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(ErrorLogWindowTest, AProgramErrorBringsTheLowerHalf) {
  Fail();

  EXPECT_TRUE(Find(window, "ProgramLog").isVisible());
  EXPECT_TRUE(Find(window, "Label1_1").isVisible());
  EXPECT_TRUE(TextOf("ProgramLog").contains("\n--> 6 in OrrerixMain.GetName Line 0\n"));
  EXPECT_EQ(Find(window, "Label1_1").geometry().bottom() + 1,
            Find(window, "ProgramLog").geometry().top());
}

TEST_F(ErrorLogWindowTest, TheDataLogFillsTheWindowUntilThen) {
  log.AddErrorLine("line");
  window.resize(800, 600);
  PassEvents();

  // 2 x 120 twips less than the outer width, 2 x 240 + 300 less than the outer height
  EXPECT_EQ(Find(window, "DataLog").size(), window.frameGeometry().size() - QSize(16, 52));
}

TEST_F(ErrorLogWindowTest, DuringAnImportClosingHidesItWithItsText) {
  importing = true;
  log.AddErrorLine("one");

  window.close();
  EXPECT_FALSE(window.isVisible());
  log.AddErrorLine("two");

  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(TextOf("DataLog").endsWith("\none\ntwo"));
}

TEST_F(ErrorLogWindowTest, OutsideAnImportClosingIsForGood) {
  log.AddErrorLine("one");

  window.close();
  log.AddErrorLine("two");

  EXPECT_FALSE(window.isVisible());
  EXPECT_FALSE(TextOf("DataLog").contains("one"));
}

TEST_F(ErrorLogWindowTest, ItTakesNoFocus) {
  EXPECT_TRUE(window.testAttribute(Qt::WA_ShowWithoutActivating));
}

// Red on blue is hard to read.
TEST_F(ErrorLogWindowTest, ItsHeadingsStandOnADarkPlate) {
  Fail();

  const QImage heading = Find(window, "Label1_1").grab().toImage();

  int plate = 0;
  int red = 0;
  for (int y = 0; y < heading.height(); ++y) {
    for (int x = 0; x < heading.width(); ++x) {
      plate += heading.pixelColor(x, y) == PlatedLabel::kPlate;
      red += heading.pixelColor(x, y) == QColor(Qt::red);
    }
  }
  EXPECT_GT(red, 100);
  EXPECT_GT(plate, red);
}

}  // namespace
}  // namespace orrerix
