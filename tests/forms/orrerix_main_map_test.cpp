// SPDX-License-Identifier: MIT
// The map in the main form: what it opens, and its printouts.
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <algorithm>
#include <filesystem>

#include "orrerix_main_fixture.h"
#include "platform/path_text.h"
#include "support/accessible_tree.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

// The main form with the map of a demo game, and printers that look at it while it prints.
class OrrerixMainMapTest : public OrrerixMainTest {
 protected:
  void SetUp() override {
    WriteGame();
    printers.File = folder.Path() / "map.pdf";
    Load();
    ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
    printers.OnAsked = [this] {
      printed = form->Map().Drawing();
      printedSize = form->frameGeometry().size();
      wasPrintMode = form->Map().State().PrintMode;
    };
  }

  bool Prints(ControlId id) const {
    return std::any_of(printed.Controls.begin(), printed.Controls.end(),
                       [&](const Control& shown) { return shown.Id == id; });
  }

  // The first system of the map, zoomed into.
  void ZoomIn() {
    for (const Control& control : form->Map().Drawing().Controls) {
      if (control.Id != ControlId::SystemLabel) continue;
      const auto x = static_cast<float>(control.Place.Left + 30);
      const auto y = static_cast<float>(control.Place.Top + 30);
      form->Controller().PressOnMap(x, y);
      form->Controller().ReleaseOnMap(PointerButton::Left, x, y);
      return;
    }
  }

  // With room for a panel at the map's right.
  void MakeWide() {
    form->setWindowState(Qt::WindowNoState);
    form->resize(790, 540);  // the screen has 800 by 800
    PassEvents();
  }

  // Index of an object's icon.
  int StationIcon() {
    for (const Control& control : form->Map().Drawing().Controls) {
      if (control.Id == ControlId::MapIcon && control.Picture == "Planet1") return *control.Index;
    }
    return -1;
  }

  MapDrawing printed;
  QSize printedSize;
  bool wasPrintMode = false;
};

TEST_F(OrrerixMainMapTest, TheKeyboardIsForTheMapFromTheStart) {
  EXPECT_EQ(form->focusWidget(), &form->Map().Frame());
}

TEST_F(OrrerixMainMapTest, AClickOnAnIconOpensAStationWindowAndTheyCloseWithTheForm) {
  ZoomIn();
  const int index = StationIcon();
  ASSERT_GT(index, 0);

  form->Controller().OpenStationOf(index);
  form->Controller().OpenStationOf(index);

  ASSERT_EQ(form->Stations().Windows().size(), 2U);
  EXPECT_EQ(form->Stations().Windows()[0]->Picture(), "Planet1");
  EXPECT_EQ(sound.Played.back().filename(), "ui_open_infocard_button.wav");
  form->close();
  EXPECT_TRUE(form->Stations().Windows().empty());
}

TEST_F(OrrerixMainMapTest, FourToolsOpenTheSearchPanelAndTheLastOnePrints) {
  const auto& panel = Find(*form, ControlId::SearchFrame);
  for (int i = 0; i < 4; ++i) {
    QTest::keyClick(&Find(*form, ControlId::Tool, i), Qt::Key_Return);
    EXPECT_TRUE(panel.isVisible()) << i;
    // Places fill one list, all other searches two.
    EXPECT_EQ(Find(*form, ControlId::FoundList).isVisible(), i > 0) << i;
    QTest::mouseClick(&Find(*form, ControlId::SearchClose), Qt::LeftButton);
    EXPECT_FALSE(panel.isVisible()) << i;
  }

  QTest::keyClick(&Find(*form, ControlId::Tool, 4), Qt::Key_Return);

  EXPECT_FALSE(panel.isVisible());
  EXPECT_TRUE(std::filesystem::exists(printers.File));
}

TEST_F(OrrerixMainMapTest, ARedrawAskedForDuringAQuestionRunsAfterTheOneThatAsks) {
  FailTest mustWork;
  DBEngine::OpenDatabase(mustWork, UniverseFile()).Execute(mustWork, "DROP TABLE TradeLanes");
  form->showNormal();
  PassEvents();
  messages.Shown.clear();
  std::vector<double> widths;  // of the map as each question finds it
  messages.WhileShown = [&] {
    if (widths.empty()) form->resize(800, 600);
    widths.push_back(form->Map().Drawing().Frame.Width);
  };

  form->resize(700, 500);

  // The second question is that of the second redraw: by then the first has shown its map.
  ASSERT_EQ(widths.size(), 2U);
  const int decoration = form->frameGeometry().width() - form->width();
  EXPECT_EQ(widths[1], (700 + decoration) * 15 - 200);
  EXPECT_EQ(form->Map().Drawing().Frame.Width, (800 + decoration) * 15 - 200);
}

TEST_F(OrrerixMainMapTest, TheWholeMapIsPrintedOnWhiteFromASquareForm) {
  form->PrintTheMap();

  const int side = form->screen()->geometry().height();
  EXPECT_TRUE(wasPrintMode);
  EXPECT_EQ(printedSize, QSize(side, side));
  EXPECT_EQ(printed.Frame.Width, side * 15 - 200);
  EXPECT_EQ(printed.Frame.Height, side * 15 - 550);
  EXPECT_EQ(printed.FrameColor, Color{0xFFFFFF});
  EXPECT_FALSE(Prints(ControlId::PaintedUniverse));
  EXPECT_FALSE(Prints(ControlId::Border));
  EXPECT_GT(std::filesystem::file_size(printers.File), 1000U);
}

TEST_F(OrrerixMainMapTest, AZoomedMapIsPrintedWithItsIconsAndWithoutFillers) {
  ZoomIn();
  ASSERT_EQ(settings.ReadSetting("SET2-0"), "1");

  form->PrintTheMap();

  EXPECT_TRUE(printed.Zoomed);
  EXPECT_TRUE(Prints(ControlId::MapIcon));
  EXPECT_FALSE(Prints(ControlId::EmptyCell));
  EXPECT_FALSE(Prints(ControlId::SystemPicture));
  EXPECT_FALSE(Prints(ControlId::BackgroundTile));
}

TEST_F(OrrerixMainMapTest, AfterAPrintTheFormIsMaximisedAgainWithTheSameMap) {
  ZoomIn();
  const ZoomRectangle visible = form->Map().State().Zoom.Current();
  ASSERT_TRUE(form->isMaximized());

  form->PrintTheMap();
  PassEvents();

  EXPECT_TRUE(form->isMaximized());
  EXPECT_FALSE(form->Map().State().PrintMode);
  EXPECT_EQ(form->Map().State().Zoom.Current(), visible);
  EXPECT_EQ(form->Map().Drawing().Frame.Width, form->frameGeometry().width() * 15 - 200);
  EXPECT_EQ(form->Map().Drawing().FrameColor, Color{});
}

TEST_F(OrrerixMainMapTest, AfterAPrintAFormOfItsOwnSizeHasItAgain) {
  form->showNormal();
  form->setGeometry(40, 50, 700, 500);
  PassEvents();

  form->PrintTheMap();
  PassEvents();

  EXPECT_FALSE(form->isMaximized());
  EXPECT_EQ(form->geometry(), QRect(40, 50, 700, 500));
}

TEST_F(OrrerixMainMapTest, WithoutAPrinterTheUserIsToldAndTheFormIsRestored) {
  printers.File.clear();

  form->PrintTheMap();

  ASSERT_EQ(messages.Shown.size(), 1U);
  EXPECT_NE(messages.Shown[0].Text.find("482 in OrrerixMain.PrintTheMap"), std::string::npos);
  EXPECT_NE(messages.Shown[0].Text.find("this computer has no printer"), std::string::npos);
  EXPECT_FALSE(form->Map().State().PrintMode);
  EXPECT_TRUE(form->isMaximized());
}

TEST_F(OrrerixMainMapTest, WhileThereAreNoNewsTheirRoomTellsOfTheUniverse) {
  MakeWide();
  auto& summary = Find<QListWidget>(*form, "Summary");
  ASSERT_TRUE(WaitUntil([&] { return summary.isVisible(); }));
  EXPECT_EQ(summary.item(0)->text(), "The universe in numbers");
  EXPECT_EQ(summary.item(1)->text(), "Systems: 12");

  ZoomIn();
  EXPECT_NE(summary.item(0)->text(), "The universe in numbers");

  form->ShowNews("1.0\r\ntip\r\nlink\r\nNews\r\nTip\r\nhttp://a\r\n");
  form->Redraw();
  EXPECT_FALSE(summary.isVisible());
}

TEST_F(OrrerixMainMapTest, ABaseOfTheSummaryOpensItsStation) {
  MakeWide();
  auto& summary = Find<QListWidget>(*form, "Summary");
  ASSERT_TRUE(WaitUntil([&] { return summary.isVisible(); }));
  ZoomIn();
  int base = 0;
  while (base < summary.count() && !summary.item(base)->text().startsWith("    ")) ++base;
  ASSERT_LT(base, summary.count());

  summary.setCurrentRow(base);
  QTest::keyClick(&summary, Qt::Key_Return);

  ASSERT_EQ(form->Stations().Windows().size(), 1U);
}

// Every icon and tool, station window included, as a screen reader is told of it.
TEST_F(OrrerixMainMapTest, TheTreeForScreenReadersNamesEverythingThatCanBePressed) {
  ZoomIn();
  form->Controller().OpenStationOf(StationIcon());

  for (QWidget* window : {static_cast<QWidget*>(&*form),
                          static_cast<QWidget*>(form->Stations().Windows().front().get())}) {
    const std::vector<AccessibleLine> tree = AccessibleTree(*window);
    EXPECT_GT(tree.size(), 10U);
    for (const AccessibleLine& line : tree) {
      if (line.Role != QAccessible::Button && line.Role != QAccessible::List) continue;
      EXPECT_NE(line.Name, "") << TextOf(tree);
    }
  }
}

TEST_F(OrrerixMainMapTest, OnADesktopWithoutPrintersAMessageSaysSoAndTheFormStaysAsItIs) {
  printers.Choice.Answer = PrinterAnswer::None;
  messages.Answer = MessageAnswer::Cancel;
  const QRect before = form->geometry();

  form->PrintTheMap();

  ASSERT_EQ(messages.Shown.size(), 1U);
  EXPECT_EQ(
      messages.Shown[0].Text,
      "The map cannot be printed: this computer has no printer. Ctrl+S saves the map as a PDF "
      "file instead.");
  EXPECT_FALSE(form->Map().State().PrintMode);
  EXPECT_EQ(form->geometry(), before);
}

TEST_F(OrrerixMainMapTest, WhoGivesUpThePrintDialogPrintsNothing) {
  printers.Choice.Answer = PrinterAnswer::GivenUp;

  form->PrintTheMap();

  EXPECT_EQ(printedSize, QSize());
  EXPECT_FALSE(std::filesystem::exists(printers.File));
  EXPECT_TRUE(form->isMaximized());
  EXPECT_TRUE(messages.Shown.empty());
}

TEST_F(OrrerixMainMapTest, ThePrinterOfTheDialogGetsThePage) {
  printers.Choice = {PrinterAnswer::Chosen, {{}, folder.Path() / "chosen.pdf"}};

  form->PrintTheMap();

  EXPECT_TRUE(std::filesystem::exists(folder.Path() / "chosen.pdf"));
  EXPECT_FALSE(std::filesystem::exists(printers.File));
}

TEST_F(OrrerixMainMapTest, GivenUpAfterAFailureTheFormStaysSquareAndInPrint) {
  printers.File.clear();
  messages.Answer = MessageAnswer::Cancel;

  form->PrintTheMap();

  EXPECT_TRUE(form->Map().State().PrintMode);
  EXPECT_FALSE(form->isMaximized());
  EXPECT_EQ(form->frameGeometry().width(), form->frameGeometry().height());
}

// Has the workbench put a way onto the map.
class WayOnTheMap : public OrrerixMainTest {
 protected:
  void ShowWay() {
    WriteGame();
    Load();
    ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
    form->MapTools().Open();
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == "Workbench") workbench = window;
    }
    ASSERT_NE(workbench, nullptr);
    auto& pages = Find<QListWidget>(*workbench, "PageList");
    const auto way = pages.findItems("Way", Qt::MatchExactly);
    ASSERT_EQ(way.size(), 1);
    pages.setCurrentItem(way[0]);
    QWidget& page = *workbench->findChild<QStackedWidget*>()->currentWidget();
    Find<QComboBox>(page, "From").setEditText("ca01_03");
    Find<QComboBox>(page, "To").setEditText("ca01_04");
    Find<QPushButton>(page, "Find").click();
    ASSERT_TRUE(WaitUntil([&] { return Find(page, "ShowWay").isEnabled(); }));
    Find<QPushButton>(page, "ShowWay").click();
  }

  QWidget* workbench = nullptr;
};

TEST_F(WayOnTheMap, SurvivesRedrawsAndGoesWithEscapeBeforeTheMapGoesBack) {
  ShowWay();
  QWidget& way = Find(*form, "MapWay");
  EXPECT_TRUE(way.isVisible());
  form->Map().State().Zoom.PushZoomStack(log, {2, 2, 9, 9});
  form->Redraw();
  EXPECT_TRUE(way.isVisible());

  QTest::keyClick(&form->Map().Frame(), Qt::Key_Escape);
  EXPECT_FALSE(way.isVisible());
  EXPECT_EQ(form->Map().State().Zoom.ZoomDepth(), 1u);

  QTest::keyClick(&form->Map().Frame(), Qt::Key_Escape);
  EXPECT_EQ(form->Map().State().Zoom.ZoomDepth(), 0u);
}

TEST_F(WayOnTheMap, IsOnThePrintout) {
  ShowWay();
  printers.File = folder.Path() / "map.pdf";
  bool isVisible = false;
  printers.OnAsked = [&] { isVisible = Find(*form, "MapWay").isVisible(); };

  form->PrintTheMap();

  EXPECT_TRUE(isVisible);
  EXPECT_TRUE(Find(*form, "MapWay").isVisible());
}

}  // namespace
}  // namespace orrerix
