// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_model.h"

#include <QFont>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/workbench/atlas/atlas_conditions.h"
#include "forms/workbench/atlas/atlas_pins.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

enum Columns { Name, Type, Hardpoint, Price, Speed };

// Four guns; the justice has no price.
class AtlasModelTest : public ::testing::Test {
 protected:
  AtlasModelTest() {
    for (const ColumnHead& column : table.Columns) {
      rows.Definition.Fields.emplace_back().Name = column.Head;
    }
    Gun("Vulcan", "ballistic", "hp_gun_1", 300, 600.5);
    Gun("justice", "Laser", "hp_gun_2", Null(), 700);
    Gun("Lavablade", "laser", "HP_Gun_1", 300, 700);
    Gun("Drail", Null(), Null(), 90, 600.5);
    model.Show(table, rows);
  }
  void Gun(const Value& name, const Value& type, const Value& hardpoint, const Value& price,
           const Value& speed) {
    for (const Value& value : {name, type, hardpoint, price, speed}) rows.Cells.push_back(value);
  }

  std::vector<std::string> Texts(const QAbstractItemModel& of, int column) {
    std::vector<std::string> texts;
    for (int row = 0; row < of.rowCount(); ++row) {
      texts.push_back(of.index(row, column).data().toString().toStdString());
    }
    return texts;
  }
  std::vector<std::string> Names() { return Texts(model, Name); }
  void Conditions(const QString& text) {
    model.Choose({{}, ParseConditions(table, text, Language::English).All, {}});
  }
  std::string ErrorIn(const QString& text) {
    return ParseConditions(table, text, Language::English).Error.toStdString();
  }

  AtlasTable table{"guns",
                   "Guns",
                   "Guns.",
                   {{"name", "Name", "the name"},
                    {"type", "Weapon type", "weapon_type <of> [Munition]"},
                    {"hardpoint", "Hardpoint type", "hp_gun_type"},
                    {"price", "Price (credits)", "list price"},
                    {"speed", "Speed (m/s)", "muzzle_velocity"}},
                   {}};
  StoredTable rows;
  AtlasModel model;
};

TEST_F(AtlasModelTest, ShowsAllRowsInStoredOrderAndWhatIsMissingAsEmpty) {
  EXPECT_THAT(Names(), ElementsAre("Vulcan", "justice", "Lavablade", "Drail"));
  EXPECT_THAT(Texts(model, Price), ElementsAre("300", "", "300", "90"));
}

TEST_F(AtlasModelTest, HeadsHaveTheirUnitsAndTellTheFormulaLiterally) {
  EXPECT_EQ(model.headerData(Price, Qt::Horizontal, Qt::DisplayRole), "Price\n(credits)");
  EXPECT_EQ(model.headerData(Type, Qt::Horizontal, Qt::ToolTipRole),
            "<span>Weapon type<br>type: weapon_type &lt;of&gt; [Munition]</span>");
}

TEST_F(AtlasModelTest, NumbersStandAtTheRight) {
  EXPECT_EQ(model.index(0, Price).data(Qt::TextAlignmentRole).toInt(),
            int(Qt::AlignRight | Qt::AlignVCenter));
  EXPECT_EQ(model.index(0, Type).data(Qt::TextAlignmentRole).toInt(),
            int(Qt::AlignLeft | Qt::AlignVCenter));
  EXPECT_TRUE(model.IsNumber(Speed));
  EXPECT_FALSE(model.IsNumber(Name));
}

TEST_F(AtlasModelTest, WhatIsMissingStandsLastInEitherDirection) {
  model.sort(Price, Qt::AscendingOrder);
  EXPECT_THAT(Names(), ElementsAre("Drail", "Vulcan", "Lavablade", "justice"));

  model.sort(Price, Qt::DescendingOrder);
  EXPECT_THAT(Names(), ElementsAre("Vulcan", "Lavablade", "Drail", "justice"));
}

TEST_F(AtlasModelTest, TheOrderBeforeDecidesTies) {
  model.sort(Name, Qt::DescendingOrder);
  model.sort(Speed, Qt::AscendingOrder);

  EXPECT_THAT(Names(), ElementsAre("Vulcan", "Drail", "Lavablade", "justice"));
  model.sort(-1);
  EXPECT_THAT(Names(), ElementsAre("Vulcan", "justice", "Lavablade", "Drail"));
}

TEST_F(AtlasModelTest, AChosenRowStaysTheSameWhenTheOrderChanges) {
  const QPersistentModelIndex chosen = model.index(3, Name);

  model.sort(Price, Qt::AscendingOrder);

  EXPECT_EQ(chosen.row(), 0);
  EXPECT_EQ(chosen.data(), "Drail");
}

TEST_F(AtlasModelTest, ATextMayStandInAnyColumnInAnyCase) {
  model.Choose({"LASER", {}, {}});
  EXPECT_THAT(Names(), ElementsAre("justice", "Lavablade"));
  model.Choose({"600.5", {}, {}});
  EXPECT_THAT(Names(), ElementsAre("Vulcan", "Drail"));
  model.Choose({"none", {}, {}});
  EXPECT_THAT(Names(), IsEmpty());
  model.Choose({});
  EXPECT_EQ(model.rowCount(), 4);
}

TEST_F(AtlasModelTest, ATextDoesNotReachOverTwoCells) {
  model.Choose({"vulcanballistic", {}, {}});

  EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(AtlasModelTest, TheOrderStaysWhenOtherRowsAreChosen) {
  model.sort(Name, Qt::AscendingOrder);

  model.Choose({"laser", {}, {}});

  EXPECT_THAT(Names(), ElementsAre("justice", "Lavablade"));
  model.Choose({});
  EXPECT_THAT(Names(), ElementsAre("Drail", "justice", "Lavablade", "Vulcan"));
}

TEST_F(AtlasModelTest, AllConditionsMustHold) {
  Conditions("price>=90; SPEED<700");
  EXPECT_THAT(Names(), ElementsAre("Vulcan", "Drail"));
  Conditions("type~las ;name!=justice;");
  EXPECT_THAT(Names(), ElementsAre("Lavablade"));
  Conditions("price=");
  EXPECT_THAT(Names(), ElementsAre("justice"));
}

TEST_F(AtlasModelTest, AConditionThatIsNoneIsNamedAndLeftOut) {
  EXPECT_EQ(ErrorIn("price>=90"), "");
  EXPECT_EQ(ErrorIn("weight>3"), "This table has no column 'weight'");
  EXPECT_THAT(ErrorIn("speed>1; price>cheap"), ::testing::StartsWith("'price>cheap' is not"));
  Conditions("price>cheap; name=drail");
  EXPECT_THAT(Names(), ElementsAre("Drail"));
}

TEST_F(AtlasModelTest, OnlyWhatHasAHardpointTypeOfTheShipFits) {
  model.Choose({{}, {}, std::set<std::string>{"hp_gun_1"}});

  EXPECT_THAT(Names(), ElementsAre("Vulcan", "Lavablade"));
}

TEST_F(AtlasModelTest, ThePartThatIsShownIsWrittenAsCsv) {
  model.sort(Name, Qt::AscendingOrder);
  model.Choose({"laser", {}, {}});

  EXPECT_EQ(CsvOf(model.Part({Name, Price})),
            "Name,Price (credits)\r\njustice,\r\nLavablade,300\r\n");
}

TEST_F(AtlasModelTest, ARowThatIsNotShownHasNoPlace) {
  model.Choose({"laser", {}, {}});

  EXPECT_EQ(model.StoredRow(1), 2u);
  EXPECT_EQ(model.RowOf(2), 1);
  EXPECT_EQ(model.RowOf(0), -1);
}

TEST_F(AtlasModelTest, PinnedRowsShowWhatDiffersAndWhatIsBestBySymbolsAndBold) {
  AtlasPins pins(model);
  pins.Pin(0);
  pins.Pin(3);
  pins.Pin(0);

  ASSERT_EQ(pins.rowCount(), 2);
  EXPECT_THAT(Texts(pins, Name), ElementsAre("Vulcan", "Drail"));
  EXPECT_THAT(Texts(pins, Type), ElementsAre("ballistic", "\u2260 "));
  EXPECT_THAT(Texts(pins, Price), ElementsAre("300", "\u2605 \u2260 90"));
  EXPECT_THAT(Texts(pins, Speed), ElementsAre("600.5", "600.5"));
  EXPECT_TRUE(pins.index(1, Price).data(Qt::FontRole).value<QFont>().bold());
  EXPECT_FALSE(pins.index(1, Speed).data(Qt::FontRole).isValid());
}

TEST_F(AtlasModelTest, AMissingNumberIsNotTheBestOne) {
  AtlasPins pins(model);
  pins.Pin(1);
  pins.Pin(2);

  EXPECT_THAT(Texts(pins, Price), ElementsAre("", "\u2260 300"));
  pins.Unpin(0);
  EXPECT_THAT(Texts(pins, Price), ElementsAre("300"));
}

TEST_F(AtlasModelTest, NoRowOfAnotherTableIsPinned) {
  AtlasPins pins(model);
  pins.Pin(1);

  model.Show(table, rows);

  EXPECT_EQ(pins.rowCount(), 0);
}

}  // namespace
}  // namespace orrerix
