// SPDX-License-Identifier: MIT
#include "forms/map/info_box.h"

#include <QAbstractScrollArea>
#include <QImage>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

#include <gtest/gtest.h>

#include "forms/controls/control_name.h"
#include "info/boxes/box_controls.h"
#include "picture/qt_text_measure.h"

namespace orrerix {
namespace {

// 3000 x 1500 twips are 200 x 100 pixels.
TEST(InfoBox, HasItsOwnColoursAlsoOnAListsView) {
  QAbstractScrollArea map;
  map.setGeometry(0, 0, 300, 200);
  InfoBox box("Information", map.viewport());

  box.Show({BoxShape({0, 0, 3000, 1500}, ShapeForm::Rectangle),
            BoxText({200, 150, 2550, 1200}, "Courette")});
  const QImage image = box.grab().toImage();

  ASSERT_EQ(image.size(), QSize(200, 100));
  EXPECT_EQ(image.pixelColor(0, 50), QColor(64, 128, 176));
  EXPECT_EQ(image.pixelColor(100, 99), QColor(64, 128, 176));
  EXPECT_EQ(image.pixelColor(5, 50), QColor(0, 0, 64));
  EXPECT_EQ(image.pixelColor(190, 95), QColor(0, 0, 64));
}

// The characters before and after each place where the box breaks a line of the text.
QStringList BreaksOf(const TextBox& box) {
  QStringList breaks;
  for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next()) {
    for (int i = 1; i < block.layout()->lineCount(); ++i) {
      breaks << block.text().mid(block.layout()->lineAt(i).textStart() - 1, 2);
    }
  }
  return breaks;
}

TEST(InfoBox, AtEveryWidthItsTextBreaksBetweenWords) {
  const std::string text =
      "\r\n   Price: 120  -  The Autocannons of the Navy, reliable as ever\r\n"
      "          Refire-Rate: 0.12 = 8.33 Shots per second";
  const QRegularExpression withinWord("\\w\\w");
  QWidget map;
  map.resize(1000, 400);
  InfoBox box("Information", &map);
  map.show();

  // From less than one word to the whole line.
  for (int width = 300; width < 9000; width += 105) {
    box.Show({BoxShape({0, 0, width + 450.0, 3000}, ShapeForm::Rectangle),
              BoxText({200, 150, static_cast<double>(width), 2700}, text)});
    const QStringList breaks = BreaksOf(*box.findChild<TextBox*>(NameOf(ControlId::BoxText)));
    EXPECT_EQ(breaks.filter(withinWord).join(' ').toStdString(), "") << width;
  }
}

TEST(InfoBox, BreaksNoLineThatItWasMadeFor) {
  std::string text;
  for (int i = 0; i < 100; ++i) text += "a line of this text\r\n";
  text += "and the longest line of them all, which the box is made for";
  const QtTextMeasure measure(FixedFont);
  const QString longest = QString::fromStdString(text).section('\n', -1);
  const double width = measure.TextWidth(longest.toStdString(), 9) + 400;
  QWidget map;
  map.resize(1000, 400);
  InfoBox box("Information", &map);
  map.show();

  // As the box for a text is laid out: the text has 450 twips less than its box.
  box.Show({BoxShape({0, 0, width, 3000}, ShapeForm::Rectangle),
            BoxText({200, 150, width - 450, 2700}, text)});

  const auto& shown = *box.findChild<TextBox*>("InfoText");
  EXPECT_TRUE(shown.verticalScrollBar()->isVisible());
  EXPECT_EQ(BreaksOf(shown).size(), 0);
}

TEST(InfoBox, HidesWithoutControls) {
  QWidget map;
  InfoBox box("Information", &map);
  box.Show({BoxShape({0, 0, 3000, 1500}, ShapeForm::Rectangle),
            BoxText({200, 150, 2550, 1200}, "Courette")});
  ASSERT_FALSE(box.isHidden());

  box.Show({});

  EXPECT_TRUE(box.isHidden());
}

}  // namespace
}  // namespace orrerix
