// SPDX-License-Identifier: MIT
#include "forms/start/spoiler.h"

#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include "forms/controls/form_geometry.h"
#include "forms/form_fixture.h"
#include "forms/start/spoiler_layout.h"

namespace orrerix {
namespace {

TEST(SpoilerLayout, ButtonsShareTheWidthAtTheBottom) {
  const SpoilerPlaces places = LayOutSpoiler(20000, 12000);

  // (20000 - 5 x 240) / 2; 12000 - 735 - 240 - 400
  EXPECT_EQ(places.Ok, (WholeTwipRect{240, 10625, 9400, 735}));
  EXPECT_EQ(places.Cancel, (WholeTwipRect{10000, 10625, 9400, 735}));
  EXPECT_EQ(places.WarningOff.Top, 10200);  // 10625 - 375 - 50
  EXPECT_EQ(places.HeadLine.Width, 20000);
  EXPECT_EQ(places.Text.Width, 19280);  // 20000 - 3 x 240
  EXPECT_EQ(places.Text.Top + places.Text.Height, 10150);
}

TEST(SpoilerLayout, NothingGoesBelowZero) {
  const SpoilerPlaces places = LayOutSpoiler(100, 100);

  EXPECT_EQ(places.Ok.Width, 0);
  EXPECT_EQ(places.Ok.Top, 0);
  EXPECT_EQ(places.WarningOff.Top, 0);
  EXPECT_EQ(places.Text.Width, 0);
  EXPECT_EQ(places.Text.Height, 0);
}

class SpoilerTest : public ::testing::Test {
 protected:
  SpoilerTest() {
    form.resize(1200, 800);
    form.show();
    PassEvents();
  }

  SpoilerTexts texts = DefaultSpoilerTexts(Language::English);
  PictureStore pictures;
  Spoiler form{texts, pictures, Language::English};
};

TEST_F(SpoilerTest, ItShowsItsTexts) {
  EXPECT_EQ(Find<QLabel>(form, "HeadLine").text(), "Default SPOILER-WARNING");
  EXPECT_EQ(Find<QPushButton>(form, "Ok").text(), "OK - View MAP and spoil it");
  EXPECT_TRUE(Find<QPlainTextEdit>(form, "Text").toPlainText().endsWith("OX - Vantor."));
  EXPECT_EQ(Find<QPlainTextEdit>(form, "Text").toPlainText().count('\n'), 11);
}

TEST_F(SpoilerTest, AModsTextIsNoMarkup) {
  texts.HeadLine = "<b>Beware</b>";
  texts.Text = "<h1>Dragons</h1>";
  Spoiler mods(texts, pictures, Language::English);

  EXPECT_EQ(Find<QLabel>(mods, "HeadLine").textFormat(), Qt::PlainText);
  EXPECT_EQ(Find<QPlainTextEdit>(mods, "Text").toPlainText(), "<h1>Dragons</h1>");
}

TEST_F(SpoilerTest, OkAcceptsAndCancelRejects) {
  QTest::mouseClick(&Find(form, "Ok"), Qt::LeftButton);
  EXPECT_EQ(form.result(), QDialog::Accepted);

  Spoiler other(texts, pictures, Language::English);
  other.show();
  QTest::mouseClick(&Find(other, "Cancel"), Qt::LeftButton);
  EXPECT_EQ(other.result(), QDialog::Rejected);
  EXPECT_FALSE(other.isVisible());
}

TEST_F(SpoilerTest, ClosingItGoesOnToTheMap) {
  form.close();

  EXPECT_EQ(form.result(), QDialog::Accepted);
}

TEST_F(SpoilerTest, EscapeDoesNothing) {
  QTest::keyClick(&form, Qt::Key_Escape);

  EXPECT_TRUE(form.isVisible());
}

TEST_F(SpoilerTest, TheCheckBoxAndTheTextTellOfClicks) {
  std::vector<bool> checks;
  int clicks = 0;
  form.OnWarningOff = [&](bool checked) { checks.push_back(checked); };
  form.OnTextClick = [&] { ++clicks; };

  Find<QCheckBox>(form, "WarningOff").click();
  Find<QCheckBox>(form, "WarningOff").click();
  QTest::mouseClick(Find<QPlainTextEdit>(form, "Text").viewport(), Qt::LeftButton);

  EXPECT_EQ(checks, (std::vector{true, false}));
  EXPECT_EQ(clicks, 1);
}

TEST_F(SpoilerTest, NoLineOfAShortTextIsBroken) {
  texts.Text = "Here be dragons.\r\nMany of them.";
  Spoiler mods(texts, pictures, Language::English);
  mods.resize(1200, 800);
  mods.show();
  PassEvents();

  const auto& text = Find<QPlainTextEdit>(mods, "Text");
  EXPECT_EQ(text.document()->firstBlock().layout()->lineCount(), 1);
}

TEST_F(SpoilerTest, ItsFaceHasTheMetricsOfCourier) {
  const QStringList courier{"Courier New", "Liberation Mono", "DejaVu Sans Mono"};

  EXPECT_EQ(Find<QLabel>(form, "HeadLine").font().families(), courier);
  EXPECT_EQ(Find<QPlainTextEdit>(form, "Text").font().families(), courier);
}

TEST_F(SpoilerTest, TheTextTakesTheLargestSizeThatFitsTheBoxFromEdgeToEdge) {
  texts.Text = "Here be dragons, 33 letters wide.";
  Spoiler mods(texts, pictures, Language::English);
  mods.resize(1200, 800);
  mods.show();
  PassEvents();

  const auto& text = Find<QPlainTextEdit>(mods, "Text");
  const auto widthAt = [&](int points) {
    return QFontMetricsF(CourierFont(points)).horizontalAdvance(text.toPlainText());
  };
  int largest = 1;
  while (widthAt(largest + 1) <= text.width()) ++largest;
  EXPECT_EQ(text.font().pixelSize(), CourierFont(largest).pixelSize());
}

TEST_F(SpoilerTest, AButtonsSizeDependsOnItsWidthAlone) {
  texts.Ok = "Go";
  Spoiler mods(texts, pictures, Language::English);
  mods.resize(1200, 800);
  mods.show();
  PassEvents();

  // Two letters in half of the window: far higher than the button.
  const auto& button = Find<QPushButton>(mods, "Ok");
  EXPECT_GT(QFontMetrics(button.font()).height(), button.height());
}

TEST_F(SpoilerTest, EveryTextFitsItsWidth) {
  const auto& text = Find<QPlainTextEdit>(form, "Text");
  const QFontMetrics letters(text.font());
  int widest = 0;
  for (const QString& line : text.toPlainText().split('\n')) {
    widest = std::max(widest, letters.horizontalAdvance(line));
  }
  EXPECT_LE(widest, text.width());
  const auto& head = Find<QLabel>(form, "HeadLine");
  EXPECT_LE(head.font().pixelSize(), CourierFont(24).pixelSize());
}

}  // namespace
}  // namespace orrerix
