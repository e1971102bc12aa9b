// SPDX-License-Identifier: MIT
#include "forms/station/station_info.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include "forms/form_fixture.h"
#include "support/station_fixture.h"

namespace orrerix {
namespace {

// Pier Nine sells gold and a lamp; a mole in its system pays more for gold.
class StationInfoTest : public StationFixture {
 protected:
  StationInfoTest() {
    Place("pier", "Pier Nine");
    Info(100, "A pier.");
    Price("pier", "commodity_gold", 50, 2);
    Price("mole", "commodity_gold", 90, 1);
    Good("commodity_gold", "Gold", 40);
    Add("commodity", {{"nickname", "commodity_gold"}, {"realname", "Gold"}});
    Good("lamp", "Lamp", 12);
    Good("beam", "Beam", 34);
    Market("pier", "lamp");
    Market("pier", "beam");
  }

  StationInfo& Window() {
    if (!window_) {
      window_ = std::make_unique<StationInfo>(
          StationParts{log, pictures, sound, texts, names, [this](Routine&) { return universe; },
                       [this] { return decoration; },
                       [this](const std::string& place) { goodsFrom = place; },
                       [this](const std::string& place) { tradesFrom = place; },
                       [this](const std::string& place) { wayTo = place; }},
          "pier", "Outpost");
      window_->show();
      PassEvents();
    }
    return *window_;
  }
  void ClickMode(int button) {
    QTest::mouseClick(&Find(Window(), ControlId::ModeButton, button), Qt::LeftButton);
  }
  QString Text() { return Find<TextBox>(Window(), ControlId::BoxText).toPlainText(); }
  PriceTableView& Prices() { return Find<PriceTableView>(Window(), ControlId::PriceTable); }
  QListWidget& List() { return Find<QListWidget>(Window(), ControlId::ForSaleList); }

  PictureStore pictures;
  FakeSound sound;
  QSize decoration{0, 0};
  std::string goodsFrom;
  std::string tradesFrom;
  std::string wayTo;
  // A player who changes the language while the window is open.
  struct ChangingTexts : TextSource {
    Language InUse = Language::English;
    std::string Text(TextId id) override { return FixedLanguage(InUse).Text(id); }
  } texts;

 private:
  std::unique_ptr<StationInfo> window_;
};

TEST_F(StationInfoTest, ItsButtonsAskForItsGoodsItsTradesAndTheWayToIt) {
  Find<QPushButton>(Window(), "BuyHere").click();
  Find<QPushButton>(Window(), "TradesFromHere").click();
  Find<QPushButton>(Window(), "WayToHere").click();

  EXPECT_EQ(goodsFrom, "pier");
  EXPECT_EQ(tradesFrom, "pier");
  EXPECT_EQ(wayTo, "pier");
}

TEST_F(StationInfoTest, ItOpensWithItsInfo) {
  EXPECT_EQ(Window().Mode(), StationMode::Info);
  EXPECT_EQ(Window().windowTitle(), "Pier Nine  Lantern [X=D.6/Y=4.5]");
  EXPECT_TRUE(Text().contains("A pier."));
  EXPECT_TRUE(Find(Window(), ControlId::BoxText).isVisible());
  EXPECT_FALSE(Prices().isVisible());
  EXPECT_FALSE(Find(Window(), ControlId::ForSaleFrame).isVisible());
}

TEST_F(StationInfoTest, ThePriceButtonShowsTradesAndThenPrices) {
  ClickMode(0);
  EXPECT_EQ(Window().Mode(), StationMode::Trades);
  EXPECT_TRUE(Prices().isVisible());
  EXPECT_FALSE(Find(Window(), ControlId::BoxText).isVisible());
  EXPECT_EQ(Prices().model()->rowCount(), 5);  // three heads, gold, and gold at the mole

  ClickMode(0);
  EXPECT_EQ(Window().Mode(), StationMode::Prices);
  EXPECT_EQ(Prices().model()->rowCount(), 4);
  EXPECT_EQ(Prices().model()->index(1, 0).data().toString(), "Gold");
  EXPECT_EQ(Prices().model()->index(1, 2).data().toString(), "10");
}

TEST_F(StationInfoTest, AnEmptyListOnlyBeeps) {
  ClickMode(2);

  EXPECT_EQ(sound.Beeps, 1);
  EXPECT_EQ(Window().Mode(), StationMode::Info);
  EXPECT_TRUE(Find(Window(), ControlId::BoxText).isVisible());
}

TEST_F(StationInfoTest, EquipmentIsListedBesideTheTextOfTheSelectedRow) {
  ClickMode(3);
  ASSERT_EQ(List().count(), 2);
  EXPECT_EQ(List().currentRow(), 0);
  EXPECT_TRUE(Text().contains("Price: 12"));

  QTest::keyClick(&List(), Qt::Key_Down);

  EXPECT_TRUE(Text().contains("Price: 34"));
}

TEST_F(StationInfoTest, AListTakesTypedLetters) {
  ClickMode(3);

  QTest::keyClicks(&List(), "be");

  EXPECT_EQ(List().currentItem()->text(), "Beam");
}

TEST_F(StationInfoTest, ResizingTheWindowWrapsTheTextAnew) {
  Window().resize(900, 500);
  PassEvents();
  const auto wide = Text().count('\n');

  Window().resize(300, 500);
  PassEvents();

  EXPECT_GT(Text().count('\n'), wide);
}

TEST_F(StationInfoTest, EveryLayOutFillsTheListAnewAndSelectsItsFirstEntry) {
  ClickMode(3);
  List().setCurrentRow(1);

  Window().resize(900, 500);
  PassEvents();

  EXPECT_EQ(List().count(), 2);
  EXPECT_EQ(List().currentRow(), 0);
  EXPECT_TRUE(Text().contains("Price: 12"));
}

TEST_F(StationInfoTest, ItsTextsKeepTheLanguageInWhichItsDataWasRead) {
  ClickMode(0);
  texts.InUse = Language::German;

  Window().resize(900, 500);
  PassEvents();
  EXPECT_EQ(Prices().model()->index(0, 0).data().toString(), "Commodities Buy Prices");
  EXPECT_EQ(Find(Window(), ControlId::ModeButton, 0).toolTip(), "Click to switch to Pricelist.");
  ClickMode(0);

  EXPECT_EQ(Prices().model()->index(0, 0).data().toString(), "Waren Einkaufspreise");
}

TEST_F(StationInfoTest, ItsOuterRightEdgeMeetsTheScreens) {
  decoration = QSize(10, 33);

  const QRect screen = Window().screen()->geometry();
  ASSERT_TRUE(WaitUntil([&] {
    return Window().frameGeometry().size() ==
           QSize(screen.width() / 3, screen.height() - 26);  // 400 twips are 26 pixels
  }));
  EXPECT_EQ(Window().frameGeometry().right(), screen.right());
  EXPECT_EQ(Window().frameGeometry().top(), screen.top());
}

TEST_F(StationInfoTest, ALongNameInItsListIsShownWhole) {
  for (int i = 0; i < 60; ++i) {
    const std::string name = "lamp_" + std::to_string(i);
    Good(name, "A lamp with a very long name indeed, number " + std::to_string(i), 12);
    Market("pier", name);
  }
  Window().resize(900, 500);
  PassEvents();
  ClickMode(3);

  ASSERT_TRUE(List().verticalScrollBar()->isVisible());
  EXPECT_LE(List().sizeHintForColumn(0), List().viewport()->width());
}

TEST_F(StationInfoTest, RowsOfPricesCanBeCopied) {
  ClickMode(0);
  Prices().selectRow(1);

  QTest::keyClick(&Prices(), Qt::Key_C, Qt::ControlModifier);

  EXPECT_EQ(QGuiApplication::clipboard()->text(), "Gold\t50\t10");
}

TEST_F(StationInfoTest, EscapeClosesIt) {
  bool closed = false;
  Window().OnClosed = [&] { closed = true; };
  Window().activateWindow();
  ASSERT_TRUE(WaitUntil([&] { return Window().isActiveWindow(); }));

  QTest::keyClick(&Window(), Qt::Key_Escape);

  EXPECT_TRUE(closed);
  EXPECT_FALSE(Window().isVisible());
}

TEST_F(StationInfoTest, EveryControlHasAnAccessibleNameAndIsReachedByTab) {
  std::vector<QWidget*> controls;
  for (const auto id : {ControlId::BoxText, ControlId::PriceTable, ControlId::ForSaleList}) {
    controls.push_back(&Find(Window(), id));
  }
  for (int mode = 0; mode < 4; ++mode) {
    controls.push_back(&Find(Window(), ControlId::ModeButton, mode));
  }
  for (const QWidget* control : controls) {
    EXPECT_FALSE(control->accessibleName().isEmpty()) << control->objectName().toStdString();
    EXPECT_TRUE(control->focusPolicy() & Qt::TabFocus) << control->objectName().toStdString();
  }
}

TEST_F(StationInfoTest, ItsMarginIsDecoratedBehindPictureAndButtons) {
  const auto& strip = Find<QLabel>(Window(), ControlId::StationStrip);
  const auto& ornament = Find<QLabel>(Window(), ControlId::StationOrnament);

  EXPECT_EQ(strip.geometry(), QRect(0, 0, 80, 600));
  EXPECT_FALSE(strip.pixmap().isNull());
  EXPECT_FALSE(ornament.pixmap().isNull());
  EXPECT_GT(ornament.geometry().top(),
            Find(Window(), ControlId::ModeButton, 3).geometry().bottom());
  const QObjectList& children = Window().children();
  EXPECT_LT(children.indexOf(&Find(Window(), ControlId::StationStrip)),
            children.indexOf(&Find(Window(), ControlId::StationIcon)));
}

}  // namespace
}  // namespace orrerix
