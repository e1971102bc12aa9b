// SPDX-License-Identifier: MIT
#include "forms/orrerix_main.h"

#include <QImage>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "orrerix_main_fixture.h"
#include "support/failing_memory.h"

namespace orrerix {
namespace {

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
  EXPECT_NEAR(outer.height(), (width * 15 / 2.0 + 300 + MemFrame::kDesignHeight) / 15, 1);
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

}  // namespace
}  // namespace orrerix
