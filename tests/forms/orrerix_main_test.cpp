// SPDX-License-Identifier: MIT
#include "forms/orrerix_main.h"

#include <QTest>
#include <QTimer>
#include <optional>

#include "demo/demo_game.h"
#include "form_fixture.h"

namespace orrerix {
namespace {

class OrrerixMainTest : public FormFixture {
 protected:
  void WriteGame() { WriteDemoGame(*paths.Game, 12); }

  void Load() {
    form.emplace(parts, settings, language, startMemory, JetVersionOption::Version30);
    form->OnQueryUnload = [this] { ++unloads; };
    form->FormLoad();
    form->ShowMaximised();
  }

  bool ShowsMap() { return form->Map().Frame().isVisible(); }
  bool HasTableVersion() {
    class Ignore : public FailureSink {
      void Fail(const Failure&) override {}
    } ignore;
    return DBEngine::OpenDatabase(ignore, UniverseFile()).HasTable("Version");
  }

  const MemoryStatus startMemory = GlobalMemoryStatus();
  Settings settings{log, folder.Path(), JetVersionOption::Version30};
  Language language{log, folder.Path(), JetVersionOption::Version30};
  std::optional<OrrerixMain> form;
  int unloads = 0;
};

TEST_F(OrrerixMainTest, WithoutAGameItAsksForThePath) {
  Load();
  ASSERT_TRUE(WaitUntil([&] { return !messages.Shown.empty(); }));

  EXPECT_TRUE(messages.Shown[0].Text.starts_with("Problem finding [\\exe\\Freelancer.exe]"));
  EXPECT_NE(messages.Shown[0].Text.find("[" + *paths.Game + "]"), std::string::npos);
  EXPECT_EQ(form->windowTitle(), "FreeLancer Orrerix v1.0 Revision 0");
  EXPECT_EQ(Find<QLineEdit>(*form, "Text2").text().toStdString(), *paths.Game);
  EXPECT_TRUE(Find(*form, "Command1").isVisible());
  EXPECT_FALSE(ShowsMap());
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

  auto& path = Find<QLineEdit>(*form, "Text2");
  path.clear();
  QTest::keyClicks(&path, QString::fromStdString(real));
  QTest::mouseClick(&Find(*form, "Command1"), Qt::LeftButton);

  EXPECT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  EXPECT_TRUE(HasTableVersion());
}

TEST_F(OrrerixMainTest, AValidGameIsImportedByItselfAndTheMapAppears) {
  WriteGame();
  Load();

  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  EXPECT_FALSE(form->Importing());
  EXPECT_TRUE(form->isMaximized());
  EXPECT_EQ(form->windowTitle(), "FL Orrerix v1.0 Revision 0");
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

TEST_F(OrrerixMainTest, APathWithoutTheGameIsComplainedOfDuringAnImportToo) {
  WriteGame();
  Load();
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    if (!form->Importing()) return;
    Find<QLineEdit>(*form, "Text2").setText("/nowhere");
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

TEST_F(OrrerixMainTest, AnImportThatIsGivenUpLeavesItsScreenStanding) {
  WriteGame();
  paths.SaveFolder = folder.Path() / "nowhere";  // no file can be made there
  messages.Answer = MessageAnswer::Cancel;
  Load();
  ASSERT_TRUE(WaitUntil([&] { return !messages.Shown.empty(); }));
  PassEvents();

  EXPECT_TRUE(form->Importing());
  EXPECT_FALSE(ShowsMap());
  EXPECT_FALSE(Find(*form, "Command1").isVisible());
  form->close();
  EXPECT_EQ(unloads, 1);
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
  folder.Write("SysMap.jpg", "any");
  Load();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  std::string picture;
  for (const Control& control : form->Map().Drawing().Controls) {
    if (control.Name == "StarMapPic") picture = control.Picture.value_or("");
  }
  EXPECT_EQ(picture, (folder.Path() / "SysMap.jpg").string());
}

}  // namespace
}  // namespace orrerix
