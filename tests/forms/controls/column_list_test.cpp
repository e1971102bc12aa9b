// SPDX-License-Identifier: MIT
#include "forms/controls/column_list.h"

#include <QTest>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

class ColumnListTest : public ::testing::Test {
 protected:
  ColumnListTest() {
    list.SetColumns({{"Name", 0.75, false}, {"Price", 0.25, true}}, "sorts");
    auto* item = new QListWidgetItem("Beam", &list);
    item->setData(ColumnList::kCellsRole, QStringList{"50"});
    list.OnHead = [this](int column) { pressed.push_back(column); };
    list.resize(200, 100);
    list.show();
  }

  QPushButton& Head(int column) {
    return *list.findChild<QPushButton*>(QString("Head%1").arg(column));
  }

  ColumnList list{nullptr};
  std::vector<int> pressed;
};

TEST_F(ColumnListTest, HeadsStandAboveTheRowsOverTheirColumns) {
  EXPECT_LE(Head(0).geometry().bottom(), list.viewport()->geometry().top());
  const int width = list.viewport()->width();
  EXPECT_EQ(Head(0).width(), qRound(width * 0.75));
  EXPECT_EQ(Head(1).x(), list.viewport()->x() + qRound(width * 0.75));
}

TEST_F(ColumnListTest, AHeadIsPressedByMouseAndKeyboard) {
  QTest::mouseClick(&Head(1), Qt::LeftButton);
  QTest::keyClick(&Head(0), Qt::Key_Space);

  EXPECT_EQ(pressed, (std::vector<int>{1, 0}));
  EXPECT_EQ(Head(1).accessibleName(), "Price");
  EXPECT_EQ(Head(1).toolTip(), "sorts");
}

TEST_F(ColumnListTest, CellsAreTheTextAndWhatStandsBeside) {
  const QModelIndex row = list.model()->index(0, 0);

  EXPECT_EQ(ColumnList::CellText(row, 0), "Beam");
  EXPECT_EQ(ColumnList::CellText(row, 1), "50");
  EXPECT_EQ(ColumnList::CellText(row, 2), "");
  EXPECT_EQ(list.CellRect({0, 10, 200, 12}, 1), QRect(150, 10, 50, 12));
}

TEST_F(ColumnListTest, HeadsThatAreNotWantedAnyMoreAreHidden) {
  list.SetColumns({{"Name", 1, false}}, "");

  EXPECT_TRUE(Head(0).isVisible());
  EXPECT_FALSE(Head(1).isVisible());
}

}  // namespace
}  // namespace orrerix
