// SPDX-License-Identifier: MIT
#include "forms/orrerix_main.h"

#include <QImage>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>

#include "demo/demo_game.h"
#include "form_fixture.h"
#include "support/failing_memory.h"

namespace orrerix {
namespace {

class OrrerixMainTest : public FormFixture {
 protected:
  void WriteGame() { WriteDemoGame(*paths.Game, 12); }

  void Load() {
    form.emplace(parts, settings, language, startMemory, JetVersionOption::Version30);
    form->OnClosed = [this] { ++unloads; };
    form->Load();
    form->ShowMaximised();
  }

  std::size_t SystemLabels() {
    const ControlList& controls = form->Map().Drawing().Controls;
    return static_cast<std::size_t>(
        std::count_if(controls.begin(), controls.end(),
                      [](const Control& control) { return control.Id == ControlId::SystemLabel; }));
  }
  bool ShowsMap() { return form->Map().Frame().isVisible(); }
  bool HasTableVersion() {
    IgnoreFailures ignore;
    return DBEngine::OpenDatabase(ignore, UniverseFile()).HasTable("Version");
  }

  const MemoryStatus startMemory = GlobalMemoryStatus();
  Settings settings{log, folder.Path(), JetVersionOption::Version30};
  LanguageChoice choice;
  LanguageFile language{log, folder.Path(), JetVersionOption::Version30, choice};
  std::optional<OrrerixMain> form;
  int unloads = 0;
};

TEST_F(OrrerixMainTest, WithoutAGameItAsksForThePath) {
  Load();
  ASSERT_TRUE(WaitUntil([&] { return !messages.Shown.empty(); }));

  EXPECT_TRUE(messages.Shown[0].Text.starts_with("Problem finding [\\exe\\Freelancer.exe]"));
  EXPECT_NE(messages.Shown[0].Text.find("[" + *paths.Game + "]"), std::string::npos);
  EXPECT_TRUE(messages.Shown[0].Text.ends_with("No Freelancer.exe in " + *paths.Game));
  EXPECT_EQ(form->windowTitle(), "FreeLancer Orrerix v1.0 Revision 0");
  EXPECT_EQ(Find<QLineEdit>(*form, "GameFolderEdit").text().toStdString(), *paths.Game);
  EXPECT_TRUE(Find(*form, "StartButton").isVisible());
  EXPECT_FALSE(ShowsMap());
}

TEST_F(OrrerixMainTest, TheSaveFolderIsMadeWithItsParents) {
  WriteGame();
  paths.SaveFolder = folder.Path() / "it's" / "a deep" / "folder";

  Load();

  EXPECT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  EXPECT_TRUE(std::filesystem::exists(*paths.SaveFolder / "Orrerix.fl"));
  EXPECT_TRUE(messages.Shown.empty());
}

TEST_F(OrrerixMainTest, ASaveFolderThatCannotBeMadeIsNamedAndNoImportStarts) {
  WriteGame();
  folder.Write("file", "x");
  paths.SaveFolder = folder.Path() / "file" / "folder";
  Load();

  ASSERT_TRUE(WaitUntil([&] { return !messages.Shown.empty(); }));

  EXPECT_NE(messages.Shown[0].Text.find(paths.SaveFolder->string()), std::string::npos);
  EXPECT_FALSE(form->Importing());
  EXPECT_TRUE(log.Failures().empty());
}

TEST_F(OrrerixMainTest, AUniverseFileInUseIsLeftAlone) {
  paths.SaveFolder = folder.Path();
  const auto import = FolderLock::TryHold(folder.Path());
  folder.Write("Orrerix.fl", "half built");
  messages.Answer = MessageAnswer::Leave;
  form.emplace(parts, settings, language, startMemory, JetVersionOption::Version30);

  EXPECT_FALSE(form->Load());

  ASSERT_EQ(messages.Shown.size(), 1u);
  EXPECT_NE(messages.Shown[0].Text.find("Orrerix.fl"), std::string::npos);
  EXPECT_TRUE(std::filesystem::exists(folder.Path() / "Orrerix.fl"));
}

TEST_F(OrrerixMainTest, AMapPictureThatCannotBeReadIsAFailureOfTheStart) {
  std::filesystem::create_directories(paths.ApplicationFolder);
  std::ofstream(paths.ApplicationFolder / "SysMap.jpg") << "no picture";

  Load();

  ASSERT_FALSE(log.Failures().empty());
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.Form_Load");
  EXPECT_EQ(log.Failures()[0].What.Number, 481);
}

TEST_F(OrrerixMainTest, CancelInTheStartSkipsTheRestOfItCaptionsAndMaximisingIncluded) {
  std::filesystem::create_directories(paths.ApplicationFolder);
  std::ofstream(paths.ApplicationFolder / "SysMap.jpg") << "no picture";
  settings.WriteSettingValue("LANG", "1");
  const Language before = language.Current();
  messages.Answer = MessageAnswer::Cancel;
  form.emplace(parts, settings, language, startMemory, JetVersionOption::Version30);

  EXPECT_TRUE(form->Load());
  form->ShowLoaded();

  EXPECT_EQ(language.Current(), before);
  EXPECT_FALSE(form->isMaximized());
  EXPECT_TRUE(form->isVisible());
}

TEST_F(OrrerixMainTest, EachFurtherResizeComplainsAgain) {
  Load();
  ASSERT_TRUE(WaitUntil([&] { return !messages.Shown.empty(); }));
  PassEvents();
  const std::size_t before = messages.Shown.size();

  form->resize(900, 700);

  EXPECT_TRUE(WaitUntil([&] { return messages.Shown.size() > before; }));
}

TEST_F(OrrerixMainTest, APathTypedInStartsTheImportByTheButton) {
  WriteGame();
  const std::string real = *paths.Game;
  paths.Game = "/nowhere";
  Load();
  ASSERT_TRUE(WaitUntil([&] { return !messages.Shown.empty(); }));

  auto& path = Find<QLineEdit>(*form, "GameFolderEdit");
  path.clear();
  QTest::keyClicks(&path, QString::fromStdString(real));
  QTest::mouseClick(&Find(*form, "StartButton"), Qt::LeftButton);

  EXPECT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  EXPECT_TRUE(HasTableVersion());
}

TEST_F(OrrerixMainTest, AValidGameIsImportedByItselfAndTheMapAppears) {
  WriteGame();
  Load();

  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  EXPECT_FALSE(form->Importing());
  EXPECT_TRUE(form->isMaximized());
  EXPECT_EQ(form->windowTitle(), "FL Orrerix v1.0 Revision 0 - game");
  EXPECT_FALSE(Find(*form, "ImportScreen").isVisible());
  EXPECT_TRUE(messages.Shown.empty());
  EXPECT_GT(form->Map().Drawing().Controls.size(), 12U);
}

TEST_F(OrrerixMainTest, WhileItImportsThePercentStandsInTheTitleAndAResizeDoesNoHarm) {
  WriteGame();
  Load();
  int seen = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    if (!form->Importing()) return;
    ++seen;
    EXPECT_TRUE(form->windowTitle().endsWith("% done."));
    form->resize(900 + seen % 50, 700);
  });
  timer.start(10);

  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  EXPECT_GT(seen, 0);
  EXPECT_TRUE(messages.Shown.empty());
}

TEST_F(OrrerixMainTest, WhileItImportsItIsAsWideAsTheScreenAndHalfAsHighWithRoomForTheMemory) {
  WriteGame();
  Load();
  QSize outer;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    if (form->Importing() && form->windowState() == Qt::WindowNoState) {
      outer = form->frameGeometry().size();
    }
  });
  timer.start(10);

  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  // Half the screen's width, 300 twips, and the frame of the memory; 15 twips are one pixel.
  const int width = form->screen()->geometry().width();
  EXPECT_EQ(outer.width(), width);
  EXPECT_NEAR(outer.height(), (width * 15 / 2.0 + 300 + MemFrame::DesignHeight) / 15, 1);
}

TEST_F(OrrerixMainTest, APathWithoutTheGameIsComplainedOfDuringAnImportToo) {
  WriteGame();
  Load();
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    if (!form->Importing()) return;
    Find<QLineEdit>(*form, "GameFolderEdit").setText("/nowhere");
    form->resize(form->width() == 900 ? 901 : 900, 700);
  });
  timer.start(10);

  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  EXPECT_FALSE(messages.Shown.empty());
  EXPECT_TRUE(log.Failures().empty());
}

TEST_F(OrrerixMainTest, ClosingDuringAnImportEndsItAndTheNextStartImportsAgain) {
  WriteGame();
  Load();
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    if (form->Importing()) form->close();
  });
  timer.start(10);
  ASSERT_TRUE(WaitUntil([&] { return unloads > 0; }));
  timer.stop();

  EXPECT_EQ(unloads, 1);
  EXPECT_FALSE(form->Importing());
  EXPECT_FALSE(HasTableVersion());

  Load();
  EXPECT_TRUE(WaitUntil([&] { return ShowsMap(); }));
}

TEST_F(OrrerixMainTest, AFinishedFileIsShownWithoutAnImport) {
  WriteGame();
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  const auto written = std::filesystem::last_write_time(UniverseFile());

  Load();

  EXPECT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  EXPECT_EQ(std::filesystem::last_write_time(UniverseFile()), written);
}

TEST_F(OrrerixMainTest, ControlAndGOpenTheCommoditiesWithWhatIsSearchedFor) {
  WriteGame();
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  QTest::keyClick(&*form, Qt::Key_F, Qt::ControlModifier);
  Find<QLineEdit>(*form, ControlId::SearchText).setText("ore");

  QTest::keyClick(&*form, Qt::Key_G, Qt::ControlModifier);

  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto tools = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->objectName() == "Workbench";
  });
  ASSERT_NE(tools, windows.end());
  EXPECT_TRUE((*tools)->isVisible());
  EXPECT_EQ(Find<QLineEdit>(**tools, "FindGood").text(), "ore");
  EXPECT_TRUE(Find(**tools, "FindGood").isVisible());
}

TEST_F(OrrerixMainTest, AnImportAgainReplacesTheUniverseWhileTheMapStays) {
  WriteGame();
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  const std::size_t systems = SystemLabels();
  std::filesystem::remove_all(*paths.Game);
  WriteDemoGame(*paths.Game, 16);

  QTest::keyClick(&*form, Qt::Key_F5);

  EXPECT_TRUE(ShowsMap());
  EXPECT_TRUE(WaitUntil([&] { return SystemLabels() > systems; }));
  EXPECT_FALSE(form->Importing());
  EXPECT_TRUE(messages.Shown.empty());
}

TEST_F(OrrerixMainTest, AWatchedGameIsShownAnewAsSoonAsItsFilesChange) {
  WriteGame();
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  const std::size_t systems = SystemLabels();
  const ZoomRectangle view{0, 0, 16, 18};
  form->Controller().PushZoomStack(view);
  form->WatchGame(true);

  std::ofstream(std::filesystem::path(*paths.Game) / "DATA" / "UNIVERSE" / "universe.ini",
                std::ios::app)
      << "\r\n[System]\r\nnickname = Xx99\r\nfile = none.ini\r\npos = 0, 0\r\n";

  EXPECT_TRUE(WaitUntil([&] { return SystemLabels() == systems + 1; }));
  EXPECT_EQ(form->Map().State().Zoom.Current(), view);
}

TEST_F(OrrerixMainTest, AnotherGameHasAUniverseFileOfItsOwnAndTheFirstComesBackWhereItWasLeft) {
  WriteGame();
  const std::string other = (folder.Path() / "other").string();
  WriteDemoGame(other, 16);
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  const auto first = form->UniverseFile();
  const ZoomRectangle view{4, 4, 7, 7};
  ASSERT_TRUE(form->Controller().PushZoomStack(view));

  form->OpenGame(other);
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap() && form->UniverseFile() != first; }));
  EXPECT_TRUE(std::filesystem::exists(first));
  form->OpenGame(*paths.Game);
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap() && form->UniverseFile() == first; }));

  EXPECT_EQ(form->Map().State().Zoom.Current(), view);
}

TEST_F(OrrerixMainTest, AFolderWithoutAGameIsNotOpened) {
  WriteGame();
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  form->OpenGame("/nowhere");

  EXPECT_EQ(form->GameText(), *paths.Game);
  EXPECT_TRUE(ShowsMap());
}

TEST_F(OrrerixMainTest, AStartWithAnotherGameDoesNotShowTheUniverseOfTheFirst) {
  WriteGame();
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  const auto first = form->UniverseFile();
  paths.Game = (folder.Path() / "other").string();
  WriteDemoGame(*paths.Game, 16);

  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  EXPECT_NE(form->UniverseFile(), first);
}

TEST_F(OrrerixMainTest, FilesThatHaveChangedSinceTheImportAreNoticedAtTheNextStart) {
  WriteGame();
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  folder.Write("game/DATA/new.ini", "x");

  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  EXPECT_TRUE(WaitUntil([&] { return Find(*form, "MapNotice").isVisible(); }));
}

TEST_F(OrrerixMainTest, TheToolsAreReachedByAWordBesideTheLanguage) {
  WriteGame();
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  Find<QPushButton>(*form, "Tools").click();

  const auto windows = QApplication::topLevelWidgets();
  EXPECT_TRUE(std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->objectName() == "Workbench" && window->isVisible();
  }));
}

TEST_F(OrrerixMainTest, AnImportThatIsGivenUpLeavesItsScreenStanding) {
  WriteGame();
  paths.SaveFolder = folder.Path() / "saves";
  folder.Write("saves/build.mdb/inside", "x");  // the build file cannot take its place
  messages.Answer = MessageAnswer::Cancel;
  Load();
  ASSERT_TRUE(WaitUntil([&] { return !messages.Shown.empty(); }));
  PassEvents();

  EXPECT_TRUE(form->Importing());
  EXPECT_FALSE(ShowsMap());
  EXPECT_FALSE(Find(*form, "StartButton").isVisible());
  for (const char* shape : {"Progress0", "Progress1", "Progress2"}) {
    EXPECT_TRUE(Find(*form, shape).isVisible()) << shape;
  }
  form->close();
  EXPECT_EQ(unloads, 1);
}

TEST_F(OrrerixMainTest, AbortForLackOfMemoryEndsTheImportAndClosesTheForm) {
  WriteGame();
  const std::size_t length = 1234567;
  std::ofstream(folder.Path() / "game" / "DATA" / "EQUIPMENT" / "misc_equip.ini", std::ios::binary)
      << "[Commodity]\r\nnickname = " << std::string(length, 'x')
      << "\r\nother = " << std::string(500, 'y') << "\r\n";
  messages.Answer = MessageAnswer::Abort;
  {
    const FailingSizes lack(length, 4 * length);
    Load();
    ASSERT_TRUE(WaitUntil([&] { return unloads > 0; }));
  }

  ASSERT_EQ(messages.Shown.size(), 1u);
  EXPECT_TRUE(messages.Shown[0].Text.starts_with("Out of Memory Error"));
  EXPECT_FALSE(form->Importing());
  EXPECT_FALSE(form->isVisible());
  EXPECT_FALSE(HasTableVersion());
}

TEST_F(OrrerixMainTest, ClosingTheMapAsksToUnload) {
  WriteGame();
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  form->close();

  EXPECT_EQ(unloads, 1);
}

TEST_F(OrrerixMainTest, ThePlayersStarMapIsFoundInTheApplicationFolder) {
  WriteGame();
  ASSERT_TRUE(QImage(8, 8, QImage::Format_RGB32)
                  .save(QString::fromStdString((folder.Path() / "SysMap.jpg").string())));
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  std::string picture;
  for (const Control& control : form->Map().Drawing().Controls) {
    if (control.Id == ControlId::PaintedUniverse) picture = control.Picture.value_or("");
  }
  EXPECT_EQ(picture, (folder.Path() / "SysMap.jpg").string());
}

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
  IgnoreFailures ignore;
  DBEngine::OpenDatabase(ignore, UniverseFile()).Execute(ignore, "DROP TABLE TradeLanes");
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
