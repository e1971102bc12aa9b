// SPDX-License-Identifier: MIT
#include "forms/program_run.h"

#include <QTimer>

#include "demo/demo_game.h"
#include "form_fixture.h"

namespace orrerix {
namespace {

class ProgramRunTest : public FormFixture {
 protected:
  ProgramRunTest() {
    WriteDemoGame(*paths.Game, 12);
    run.OnEnd = [this] { ++ends; };
  }

  bool ShowsMap() { return run.Main() != nullptr && run.Main()->Map().Frame().isVisible(); }

  ProgramRun run{parts};
  int ends = 0;
};

TEST_F(ProgramRunTest, TheStartFormComesFirstAndGoesWithTheMainForm) {
  run.Start();
  EXPECT_TRUE(run.StartForm().isVisible());
  EXPECT_EQ(run.StartForm().windowTitle(), "loading FL Orrerix...");
  EXPECT_EQ(run.Main(), nullptr);

  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));

  EXPECT_FALSE(run.StartForm().isVisible());
  EXPECT_TRUE(run.Main()->isVisible());
  EXPECT_EQ(ends, 0);
}

TEST_F(ProgramRunTest, TheStartFormRunsOnceHoweverOftenItIsShown) {
  run.Start();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  OrrerixMain* const main = run.Main();

  run.StartForm().show();
  PassEvents();

  EXPECT_EQ(run.Main(), main);
}

TEST_F(ProgramRunTest, ClosingTheMainFormClosesTheOthersAndEndsTheProgram) {
  run.Start();
  ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
  log.AddErrorLine("a line");
  ASSERT_TRUE(run.LogWindow().isVisible());

  run.Main()->close();

  EXPECT_FALSE(run.LogWindow().isVisible());
  EXPECT_FALSE(run.Main()->isVisible());
  EXPECT_FALSE(run.StartForm().isVisible());
  EXPECT_EQ(run.StartForm().windowTitle(), "Closing...");
  EXPECT_EQ(ends, 1);
}

TEST_F(ProgramRunTest, ClosingDuringTheImportEndsTheProgramToo) {
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    if (run.Main() != nullptr && run.Main()->Importing()) run.Main()->close();
  });
  timer.start(10);
  run.Start();

  EXPECT_TRUE(WaitUntil([&] { return ends > 0; }));
  EXPECT_EQ(ends, 1);
}

TEST_F(ProgramRunTest, AnEngineThatCanMakeNoFileEndsTheProgramWithAWord) {
  paths.ApplicationFolder = "/nowhere/at/all";

  run.Start();
  ASSERT_TRUE(WaitUntil([&] { return ends > 0; }));

  ASSERT_EQ(messages.Shown.size(), 1U);
  EXPECT_TRUE(messages.Shown[0].Text.starts_with("Problem useing MS-JetDatabase"));
  EXPECT_EQ(links.Opened.size(), 1U);
  EXPECT_EQ(run.Main(), nullptr);
}

}  // namespace
}  // namespace orrerix
