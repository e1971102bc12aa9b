// SPDX-License-Identifier: MIT
#include "forms/controls/row_list.h"

#include <QHelpEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

class RowListTest : public testing::Test {
 protected:
  RowListTest() {
    for (int i = 0; i < 100; ++i) list.addItem("row");
    list.show();
  }

  int RowHeight() const { return list.visualItemRect(list.item(0)).height(); }

  // In a height of seven rows and a half.
  void ShowSevenAndAHalf() {
    list.resize(200, 7 * RowHeight() + RowHeight() / 2 + 2 * list.frameWidth());
  }

  RowList list{nullptr};
};

TEST_F(RowListTest, ShowsNoHalfRowAtItsEnd) {
  ASSERT_GT(RowHeight(), 1);

  ShowSevenAndAHalf();

  EXPECT_EQ(list.viewport()->height(), 7 * RowHeight());
}

TEST_F(RowListTest, ItsLastPageEndsWithItsLastRow) {
  ShowSevenAndAHalf();

  list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum());

  EXPECT_EQ(list.visualItemRect(list.item(99)).bottom(), list.viewport()->height() - 1);
  EXPECT_EQ(list.visualItemRect(list.item(93)).top(), 0);
}

TEST_F(RowListTest, ARowThatDoesNotFitIsShownAsFarAsItGoes) {
  list.resize(200, RowHeight() / 2 + 2 * list.frameWidth());

  EXPECT_EQ(list.viewport()->height(), RowHeight() / 2);
}

// What the list shows as a tool tip of its first row.
QString TipOf(RowList& list) {
  QToolTip::hideText();
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
  const QPoint place = list.visualItemRect(list.item(0)).center();
  QHelpEvent event(QEvent::ToolTip, place, list.viewport()->mapToGlobal(place));
  QCoreApplication::sendEvent(list.viewport(), &event);
  return QToolTip::isVisible() ? QToolTip::text() : QString();
}

TEST_F(RowListTest, ARowThatIsCutShowsItsWholeTextAsATip) {
  list.resize(200, 100);
  list.item(0)->setText("A row that is a good deal longer than the list is wide, & plain");

  EXPECT_TRUE(TipOf(list).contains("wide, &amp; plain"));
}

TEST_F(RowListTest, ARowThatFitsHasNoTip) {
  list.resize(list.sizeHintForColumn(0) + 50, 100);

  EXPECT_EQ(TipOf(list), "");
}

}  // namespace
}  // namespace orrerix
