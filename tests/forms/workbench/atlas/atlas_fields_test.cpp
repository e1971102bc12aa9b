// SPDX-License-Identifier: MIT
// The fields below the heads of a table of the atlas.
#include <QAction>
#include <QScrollBar>
#include <QTest>

#include "atlas_page_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class AtlasFieldsTest : public AtlasPageTest {
 protected:
  bool IsMarked(const char* field) {
    for (const QAction* action : Find<QLineEdit>(page, field).actions()) {
      if (action->isVisible()) return true;
    }
    return false;
  }
};

TEST_F(AtlasFieldsTest, TextsMatchPartsAndNumbersRanges) {
  Open(page);

  Type(page, "Field_hardpoint", "FIGHTER_1");
  EXPECT_THAT(Nicknames(page), ElementsAre("shield_a", "shield_c"));
  Type(page, "Field_capacity", "1500..2500");
  EXPECT_THAT(Nicknames(page), ElementsAre("shield_c"));
  Type(page, "Field_hardpoint", "");
  Type(page, "Field_capacity", ">1500");

  EXPECT_THAT(Nicknames(page), ElementsAre("shield_b", "shield_c"));
}

TEST_F(AtlasFieldsTest, WrongInputIsMarkedAndExplained) {
  Open(page);

  Type(page, "Field_capacity", "much");

  EXPECT_TRUE(IsMarked("Field_capacity"));
  EXPECT_FALSE(IsMarked("Field_regeneration"));
  EXPECT_EQ(State(page),
            "3 of 3 rows. Capacity (points): 'much' is not understood. Write 10..50, >100, >=100, "
            "<5, <=5 or =3");
  EXPECT_THAT(Find<QLineEdit>(page, "Field_capacity").toolTip().toStdString(),
              HasSubstr("is not understood"));
  Type(page, "Field_capacity", "=1000");
  EXPECT_FALSE(IsMarked("Field_capacity"));
  EXPECT_EQ(State(page), "1 of 3 rows");
  EXPECT_THAT(Find<QLineEdit>(page, "Field_capacity").toolTip().toStdString(),
              HasSubstr("Numbers: 10..50"));
}

TEST_F(AtlasFieldsTest, StandBelowTheirHeads) {
  Open(page);
  page.resize(900, 600);
  page.show();
  const QHeaderView& heads = *Table(page).horizontalHeader();
  const QLineEdit& field = Find<QLineEdit>(page, "Field_capacity");

  EXPECT_NEAR(field.x(), heads.sectionViewportPosition(kCapacity), 1);
  EXPECT_NEAR(field.width(), heads.sectionSize(kCapacity), 2);
  EXPECT_GE(field.y(), heads.viewport()->geometry().bottom());
  EXPECT_LE(field.geometry().bottom(), heads.height());
  Table(page).setColumnHidden(kCapacity, true);
  EXPECT_FALSE(field.isVisible());
}

TEST_F(AtlasFieldsTest, AreScrolledIntoViewByTheFocus) {
  Open(page);
  page.resize(500, 600);
  page.show();
  page.activateWindow();
  auto& last = Find<QLineEdit>(page, "Field_sold_at");

  QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(&last, &focus);

  EXPECT_GT(Table(page).horizontalScrollBar()->value(), 0);
  EXPECT_GE(last.x(), 0);
  EXPECT_LT(last.x(), Table(page).viewport()->width());
}

TEST_F(AtlasFieldsTest, ComeBackWithTheAxesOfTheChart) {
  Open(page);
  Type(page, "Field_capacity", "1500..");
  auto& across = Find<QComboBox>(page, "AtlasAxisX");
  across.setCurrentIndex(across.findText("Price (credits)"));
  page.Leave();

  AtlasPage again(host, choice, settings);
  again.Enter();
  ASSERT_TRUE(WaitUntil([&] { return Table(again).model()->columnCount() > 0; }));

  EXPECT_THAT(Nicknames(again), ElementsAre("shield_b", "shield_c"));
  EXPECT_EQ(Find<QLineEdit>(again, "Field_capacity").text(), "1500..");
  EXPECT_EQ(settings.value("atlas/shields/fields").toStringList(), QStringList{"capacity=1500.."});
  EXPECT_EQ(Find<QComboBox>(again, "AtlasAxisX").currentText(), "Price (credits)");
  ChooseTable(again, "Bases");
  ChooseTable(again, "Shields");
  EXPECT_EQ(Find<QComboBox>(again, "AtlasAxisX").currentText(), "Price (credits)");
}

TEST_F(AtlasFieldsTest, AreEmptyWhereRowsAreShownByTheirName) {
  Open(page);
  Type(page, "Field_capacity", ">9000");

  page.ShowRows("shields", "shield_b");

  EXPECT_THAT(Nicknames(page), ElementsAre("shield_b"));
}

TEST_F(AtlasFieldsTest, AnotherLanguageHasItsOwnHeads) {
  choice.Current = Language::German;
  AtlasPage german(host, choice, settings);
  Open(german, "Schilde");

  EXPECT_EQ(Table(german).model()->headerData(kCapacity, Qt::Horizontal).toString(),
            "Kapazit\u00E4t\n(Punkte)");
  EXPECT_EQ(Find<QLineEdit>(german, "Field_capacity").accessibleName(),
            "Filter der Spalte Kapazit\u00E4t (Punkte)");
}

}  // namespace
}  // namespace orrerix
