// SPDX-License-Identifier: MIT
#include "forms/map/search_controller.h"

#include <gmock/gmock.h>

#include "map_controller_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// Gear is sold at one base of system Li01, whose bases are all called "Base".
class SearchControllerTest : public MapControllerFixture {
 protected:
  SearchControllerTest() {
    Add("DockObjects", {{"nickname", "quay"},
                        {"realname", "Quay"},
                        {"MapX", 3},
                        {"MapY", 4},
                        {"PosX", 0.5},
                        {"PosY", 0.5},
                        {"loadout", "space_station"}});
    for (const char* name : {"beam", "lamp"}) {
      Add("Goods", {{"nickname", name},
                    {"realname", name},
                    {"category", "equipment"},
                    {"price", 5},
                    {"ids_info", 0}});
    }
    Add("BaseGoods", {{"Base", "quay"}, {"GoodNick", "lamp"}});
    DrawMap();
  }

  template <typename Child = QWidget>
  Child& Part(ControlId id) {
    return Find<Child>(map.Frame(), id);
  }
  QLineEdit& Text() { return Part<QLineEdit>(ControlId::SearchText); }
  ColumnList& Upper() { return Part<ColumnList>(ControlId::FoundList); }
  ColumnList& Lower() { return Part<ColumnList>(ControlId::PlaceList); }
  bool InfoShown() { return Part(ControlId::BoxText).isVisible(); }

  SearchController search{map, Form(), play, log, language};
};

TEST_F(SearchControllerTest, PlacesAreFilteredAsTheUserTypes) {
  search.OpenSearch(SearchType::Place);
  EXPECT_EQ(Lower().count(), 5);
  EXPECT_FALSE(Upper().isVisible());

  QTest::keyClicks(&Text(), "qu");

  ASSERT_EQ(Lower().count(), 1);
  EXPECT_EQ(Lower().item(0)->text(), "Quay");
  EXPECT_EQ(Lower().currentRow(), 0);
}

TEST_F(SearchControllerTest, ThePanelStandsAtTheMapsRight) {
  search.OpenSearch(SearchType::Place);

  // The frame is 14000 twips wide, the panel 4200, with 100 beside it: 9700 twips are 647 pixels.
  EXPECT_EQ(Part(ControlId::SearchFrame).x(), 647);
  EXPECT_EQ(Part(ControlId::SearchFrame).y(), 13);
}

TEST_F(SearchControllerTest, EquipmentIsListedWithItsBoxAndItsSellers) {
  search.OpenSearch(SearchType::Equipment);
  EXPECT_EQ(Upper().count(), 2);
  EXPECT_EQ(Lower().count(), 0);  // nobody sells the first
  EXPECT_TRUE(InfoShown());

  QTest::keyClick(&Text(), Qt::Key_Down);

  EXPECT_EQ(Upper().currentRow(), 1);
  ASSERT_EQ(Lower().count(), 1);
  EXPECT_EQ(Lower().item(0)->text(), "Quay");
}

TEST_F(SearchControllerTest, AClickInTheUpperListShowsThatRow) {
  search.OpenSearch(SearchType::Equipment);

  QTest::mouseClick(Upper().viewport(), Qt::LeftButton, {},
                    Upper().visualItemRect(Upper().item(1)).center());

  EXPECT_EQ(Lower().count(), 1);
}

TEST_F(SearchControllerTest, EnterOnAPlaceJumpsHoversAndOpensItsStation) {
  search.OpenSearch(SearchType::Place);
  QTest::keyClicks(&Text(), "quay");

  QTest::keyClick(&Text(), Qt::Key_Return);

  EXPECT_FALSE(search.Visible());
  EXPECT_EQ(Visible(), (ZoomRectangle{3, 4, 3, 4}));
  EXPECT_EQ(Icon("quay").Place.Width, 600);
  EXPECT_TRUE(play.Box().IsHoverBox());
  EXPECT_THAT(stations, ElementsAre(testing::Pair("quay", testing::_)));
}

TEST_F(SearchControllerTest, EnterGoesThroughTheSellersToTheJump) {
  search.OpenSearch(SearchType::Equipment);
  QTest::keyClicks(&Text(), "lamp");

  QTest::keyClick(&Text(), Qt::Key_Return);
  EXPECT_FALSE(Text().isVisible());
  EXPECT_FALSE(Upper().isVisible());
  EXPECT_THAT(stations, IsEmpty());
  QTest::keyClick(&Lower(), Qt::Key_Return);

  EXPECT_THAT(stations, SizeIs(1));
  EXPECT_FALSE(InfoShown());
}

TEST_F(SearchControllerTest, AfterAJumpTheMapHasTheKeyboard) {
  search.OpenSearch(SearchType::Place);
  QTest::keyClicks(&Text(), "quay");

  QTest::keyClick(&Text(), Qt::Key_Return);

  EXPECT_EQ(map.Frame().window()->focusWidget(), &map.Frame());
}

TEST_F(SearchControllerTest, TheListThatGrowsLeavesTheCloseButtonFree) {
  search.OpenSearch(SearchType::Equipment);
  QTest::keyClicks(&Text(), "lamp");

  QTest::keyClick(&Text(), Qt::Key_Return);

  EXPECT_FALSE(Lower().geometry().intersects(Part(ControlId::SearchClose).geometry()));
}

TEST_F(SearchControllerTest, AHoverBoxStandsInFrontOfThePanel) {
  Zoom({3, 4, 3, 4});
  search.OpenSearch(SearchType::Place);

  play.HoverIcon(*Icon("quay").Index);

  const auto& overlay = Find(map.Frame(), "HoverOverlay");
  ASSERT_TRUE(play.Box().IsHoverBox());
  EXPECT_TRUE(overlay.isVisible());
  const QObjectList& children = map.Frame().children();
  EXPECT_GT(children.indexOf(&overlay), children.indexOf(&Part(ControlId::SearchFrame)));
}

TEST_F(SearchControllerTest, ADoubleClickOnAPlaceJumpsToo) {
  search.OpenSearch(SearchType::Place);
  const QPoint row = Lower().visualItemRect(Lower().item(4)).center();

  QTest::mouseClick(Lower().viewport(), Qt::LeftButton, {}, row);
  QTest::mouseDClick(Lower().viewport(), Qt::LeftButton, {}, row);

  EXPECT_THAT(stations, ElementsAre(testing::Pair("quay", testing::_)));
}

TEST_F(SearchControllerTest, APlaceBesideTheGridIsAFailureAndTheMapStays) {
  Add("DockObjects", {{"nickname", "void"}, {"realname", "Void"}, {"MapX", 50}, {"MapY", 4}});
  search.OpenSearch(SearchType::Place);
  QTest::keyClicks(&Text(), "void");

  QTest::keyClick(&Text(), Qt::Key_Return);

  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.StSearchList_DblClick");
  EXPECT_EQ(log.Failures()[0].What.Number, 9);
  EXPECT_THAT(stations, IsEmpty());
}

TEST_F(SearchControllerTest, EscapeAndTheCloseButtonHidePanelAndBox) {
  search.OpenSearch(SearchType::Equipment);
  QTest::keyClick(&Text(), Qt::Key_Escape);
  EXPECT_FALSE(search.Visible());
  EXPECT_FALSE(InfoShown());
  EXPECT_FALSE(play.Box().Visible());

  search.OpenSearch(SearchType::Equipment);
  QTest::mouseClick(&Part(ControlId::SearchClose), Qt::LeftButton);
  EXPECT_FALSE(Part(ControlId::SearchFrame).isVisible());
}

TEST_F(SearchControllerTest, EscapeClosesThePanelWhereverTheFocusIs) {
  Zoom({8, 10, 8, 10});
  for (QWidget* focused : {static_cast<QWidget*>(&map.Frame()), &Part(ControlId::FoundList),
                           &Part(ControlId::PlaceList), &Part(ControlId::BoxText),
                           &Part(ControlId::SearchClose), &Find(map.Frame(), ControlId::Tool, 2)}) {
    search.OpenSearch(SearchType::Equipment);
    ASSERT_TRUE(InfoShown());
    focused->setFocus();

    QTest::keyClick(focused, Qt::Key_Escape);

    EXPECT_FALSE(Part(ControlId::SearchFrame).isVisible()) << focused->objectName().toStdString();
    EXPECT_FALSE(InfoShown());
    // The map does not go back at the same time.
    EXPECT_EQ(Visible(), (ZoomRectangle{8, 10, 8, 10}));
  }
}

TEST_F(SearchControllerTest, WithThePanelClosedEscapeIsForTheMapAgain) {
  Zoom({8, 10, 8, 10});
  search.OpenSearch(SearchType::Place);
  QTest::keyClick(&Text(), Qt::Key_Escape);

  Key(Qt::Key_Escape);

  EXPECT_EQ(Visible(), ZoomRectangle{});
}

TEST_F(SearchControllerTest, TheCaptionStandsAtTheHeadInTheLanguageInUse) {
  search.OpenSearch(SearchType::Place);

  const QLabel& caption = Part<QLabel>(ControlId::SearchCaption);
  EXPECT_TRUE(caption.isVisible());
  EXPECT_EQ(caption.text().toStdString(), language.Text(TextId::SearchHead));
  EXPECT_LE(caption.geometry().bottom(), Text().geometry().top());
  EXPECT_GE(caption.height(), caption.fontMetrics().height());

  language.SetCurrent(Language::German);
  search.OpenSearch(SearchType::Ship);
  EXPECT_EQ(caption.text().toStdString(), language.Text(TextId::SearchHead));
}

TEST_F(SearchControllerTest, AQuoteIsAFailureAndThePanelGoesOn) {
  search.OpenSearch(SearchType::Place);

  QTest::keyClicks(&Text(), "'");
  EXPECT_EQ(Lower().count(), 0);
  EXPECT_THAT(log.Failures(), SizeIs(1));
  QTest::keyClick(&Text(), Qt::Key_Backspace);

  EXPECT_EQ(Lower().count(), 5);
}

TEST_F(SearchControllerTest, EveryControlHasAnAccessibleName) {
  search.OpenSearch(SearchType::Equipment);

  for (const auto id : {ControlId::SearchText, ControlId::FoundList, ControlId::PlaceList,
                        ControlId::SearchClose, ControlId::BoxText}) {
    EXPECT_FALSE(Part(id).accessibleName().isEmpty()) << PrintedName(id);
  }
}

TEST_F(SearchControllerTest, ItsEntryForCommoditiesHandsTheTextOn) {
  std::string sought = "nothing";
  search.OnFindGood = [&](const std::string& text) { sought = text; };
  search.OpenSearch(SearchType::Place);
  QTest::keyClicks(&Text(), "gold");

  Find<QToolButton>(map.Frame(), "FindGood").click();

  EXPECT_EQ(sought, "gold");
  EXPECT_EQ(search.Text(), "gold");
}

TEST_F(SearchControllerTest, APlaceKeepsItsTextAndShowsItsSystemBeside) {
  Add("Systems", {{"nickname", "quays"}, {"realname", "Harbour"}, {"pos", "3, 4"}});
  search.OpenSearch(SearchType::Place);
  QTest::keyClicks(&Text(), "quay");

  const QListWidgetItem& item = *Lower().item(0);
  EXPECT_EQ(item.text(), "Quay");
  EXPECT_EQ(item.data(ColumnList::kCellsRole).toStringList(), QStringList{"Harbour"});
  EXPECT_EQ(item.data(Qt::AccessibleTextRole).toString(), "Quay, Harbour");
}

TEST_F(SearchControllerTest, AHeadSortsAndMarksItself) {
  search.OpenSearch(SearchType::Place);
  auto& head = Find<QPushButton>(Lower(), "Head0");
  ASSERT_EQ(Lower().item(4)->text(), "Quay");

  head.click();
  EXPECT_TRUE(head.text().endsWith("\u25B2")) << head.text().toStdString();
  head.click();

  EXPECT_EQ(Lower().item(0)->text(), "Quay");
  EXPECT_TRUE(head.text().endsWith("\u25BC")) << head.text().toStdString();
  EXPECT_FALSE(Find<QPushButton>(Lower(), "Head1").text().isEmpty());
}

TEST_F(SearchControllerTest, EnterGoesToTheRowThatIsSeenSelected) {
  search.OpenSearch(SearchType::Place);
  auto& head = Find<QPushButton>(Lower(), "Head0");
  head.click();
  head.click();

  QTest::keyClick(&Text(), Qt::Key_Return);

  EXPECT_THAT(stations, ElementsAre(testing::Pair("quay", testing::_)));
}

}  // namespace
}  // namespace orrerix
