// SPDX-License-Identifier: MIT
#include "forms/program_run.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
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
    QObject::connect(&reader, &QTimer::timeout, &reader, [this] { ReadWarning(); });
    reader.start(5);
  }

  // The user before the warning: looks, sets the check box or leaves it, and presses a button.
  void ReadWarning() {
    for (QWidget* form : QApplication::topLevelWidgets()) {
      if (form->objectName() != "Spoiler" || !form->isVisible()) continue;
      ++warnings;
      headLine = Find<QLabel>(*form, "HeadLine").text();
      if (OnWarning) OnWarning(*form);
      if (wantsNoMoreWarnings) Find<QCheckBox>(*form, "WarningOff").click();
      Find<QPushButton>(*form, cancelsWarning ? "Cancel" : "Ok").click();
    }
  }

  bool ShowsMap() { return run.Main() != nullptr && run.Main()->Map().Frame().isVisible(); }

  // Starts, and waits for the map.
  void Show() {
    run.Start();
    ASSERT_TRUE(WaitUntil([&] { return ShowsMap(); }));
    PassEvents();
  }

  const Control* PanelControl(ControlId id, int index) {
    const Control* panel = run.Main()->Map().Scene().Find(ControlId::PanelFrame, 0);
    return panel == nullptr ? nullptr : FindIn(panel->Children, id, index);
  }
  static const Control* FindIn(const ControlList& controls, ControlId id, int index) {
    for (const Control& control : controls) {
      if (control.Id == id && control.Index == index) return &control;
      if (const Control* inner = FindIn(control.Children, id, index)) return inner;
    }
    return nullptr;
  }
  static QWidget* UpdateForm() {
    for (QWidget* form : QApplication::topLevelWidgets()) {
      if (form->objectName() == "Update" && form->isVisible()) return form;
    }
    return nullptr;
  }

  ProgramRun run{parts};
  int ends = 0;
  QTimer reader;
  int warnings = 0;
  QString headLine;
  bool cancelsWarning = false;
  bool wantsNoMoreWarnings = false;
  std::function<void(QWidget&)> OnWarning;
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

TEST_F(ProgramRunTest, TheWarningStandsBeforeTheFirstMapAndOnce) {
  OnWarning = [this](QWidget&) { EXPECT_FALSE(ShowsMap()); };

  Show();
  run.Main()->Redraw();

  EXPECT_EQ(warnings, 1);
  EXPECT_EQ(headLine, "Default SPOILER-WARNING");
  EXPECT_TRUE(run.Main()->isEnabled());
}

TEST_F(ProgramRunTest, AModsFileSpeaksInTheWarning) {
  folder.Write("game/DATA/OrrerixWarning.ini", "headline = Beware\r\n");

  Show();

  EXPECT_EQ(headLine, "Beware");
}

TEST_F(ProgramRunTest, CancelEndsTheProgramWithoutAMap) {
  cancelsWarning = true;

  run.Start();
  ASSERT_TRUE(WaitUntil([&] { return ends > 0; }));
  PassEvents();

  EXPECT_FALSE(ShowsMap());
  EXPECT_FALSE(run.Main()->isVisible());
  EXPECT_EQ(ends, 1);
}

TEST_F(ProgramRunTest, TheCheckBoxIsForThisUniverseOnly) {
  wantsNoMoreWarnings = true;
  Show();
  EXPECT_EQ(warnings, 1);
  run.Main()->close();
  {
    ProgramRun next(parts);
    next.OnEnd = [] {};
    next.Start();
    ASSERT_TRUE(WaitUntil([&] { return next.Main() && next.Main()->Map().Frame().isVisible(); }));
    EXPECT_EQ(warnings, 1);
  }
  std::filesystem::remove(UniverseFile());  // the next start imports again
  ProgramRun anew(parts);
  anew.OnEnd = [] {};
  anew.Start();
  ASSERT_TRUE(WaitUntil([&] { return anew.Main() && anew.Main()->Map().Frame().isVisible(); }));

  EXPECT_EQ(warnings, 2);
}

TEST_F(ProgramRunTest, AClickIntoTheWarningOpensItsHelp) {
  OnWarning = [](QWidget& form) {
    QTest::mouseClick(Find<QPlainTextEdit>(form, "Text").viewport(), Qt::LeftButton);
  };

  Show();

  EXPECT_EQ(links.Manuals, 1);  // there is no web host
}

class NewsRunTest : public ProgramRunTest {
 protected:
  NewsRunTest() { paths.NewsAddress = "http://x.example/news/news.txt"; }

  static std::string NewsOf(const std::string& version, int entries) {
    std::string text = version + "\r\nA tip\r\nhttp://x.example/new\r\n";
    for (int i = 1; i <= entries; ++i) {
      const std::string number = std::to_string(i);
      text += "News " + number + "\r\nTip " + number + "\r\nhttp://n.example/" + number + "\r\n";
    }
    return text;
  }

  // Starts, and activates the window as a user does, if the system has not done so by itself.
  void ShowNotice() {
    run.Start();
    ASSERT_TRUE(WaitUntil([&] {
      if (UpdateForm() == nullptr && ShowsMap()) run.Main()->activateWindow();
      return UpdateForm() != nullptr;
    }));
  }
};

TEST_F(NewsRunTest, NewsStandInThePanelAndOpenTheirLinks) {
  network.Page = NewsOf("1.0", 2);

  Show();

  ASSERT_NE(PanelControl(ControlId::NewsLabel, 2), nullptr);
  EXPECT_EQ(PanelControl(ControlId::NewsLabel, 1)->Caption, "News 1");
  EXPECT_EQ(PanelControl(ControlId::NewsLabel, 0)->Caption, "OX-Main-Webpage");
  run.Main()->OpenNewsLink(2);
  run.Main()->OpenNewsLink(0);
  EXPECT_EQ(links.Opened, (std::vector<std::string>{"http://n.example/2", "http://x.example/OX"}));
  EXPECT_EQ(sound.Played.back().filename(), "news_vendor_open.wav");
}

TEST_F(NewsRunTest, NewsOutliveAChangeOfLanguage) {
  network.Page = NewsOf("1.0", 1);
  Show();

  run.Main()->Controller().ActivateOptionLabel(6);
  PassEvents();

  EXPECT_NE(PanelControl(ControlId::NewsLabel, 1), nullptr);
}

TEST_F(NewsRunTest, ALinkThatIsNoWebAddressIsNotOpened) {
  network.Page = "1.0\r\nx\r\nx\r\nOne\r\nTip\r\nfile:///etc/hostname\r\n";
  Show();

  run.Main()->OpenNewsLink(1);

  EXPECT_TRUE(links.Opened.empty());
}

TEST_F(NewsRunTest, AnErrorPageGivesNeitherNewsNorAFailure) {
  network.Page = "<html>404</html>";

  Show();

  EXPECT_EQ(PanelControl(ControlId::NewsLabel, 1), nullptr);
  EXPECT_TRUE(log.Failures().empty());
}

TEST_F(NewsRunTest, WithoutAnAnswerTheUserIsAskedAndTheMapComes) {
  Show();

  ASSERT_EQ(log.Failures().size(), 1U);
  EXPECT_EQ(log.Failures()[0].Info, "While loading News via MSINET.OCX");
  EXPECT_TRUE(ShowsMap());
}

TEST_F(ProgramRunTest, WithoutAnAddressNothingIsFetched) {
  Show();

  EXPECT_EQ(network.Asked, 0);
  EXPECT_TRUE(log.Failures().empty());
}

TEST_F(NewsRunTest, ALaterVersionIsAnnouncedOnceInThePlaceOfTheMap) {
  network.Page = NewsOf("1.5", 0);
  ASSERT_NO_FATAL_FAILURE(ShowNotice());
  EXPECT_FALSE(run.Main()->isVisible());
  EXPECT_TRUE(Find(*UpdateForm(), "UpdateNotice").toolTip().contains("A tip"));

  UpdateForm()->close();

  ASSERT_TRUE(WaitUntil([&] { return run.Main()->isVisible(); }));
  run.Main()->activateWindow();
  PassEvents();
  EXPECT_EQ(UpdateForm(), nullptr);
}

TEST_F(NewsRunTest, AClickOnTheNoticeOpensTheMainPageAndEndsTheProgram) {
  network.Page = NewsOf("1.5", 0);
  ASSERT_NO_FATAL_FAILURE(ShowNotice());

  QTest::mouseClick(&Find(*UpdateForm(), "UpdateNotice"), Qt::LeftButton);

  EXPECT_EQ(links.Opened, (std::vector<std::string>{"http://x.example/OX"}));
  EXPECT_EQ(ends, 1);
  EXPECT_EQ(sound.Awaited, 1);  // the click is heard before the program is gone
  EXPECT_EQ(UpdateForm(), nullptr);
}

TEST_F(NewsRunTest, TheTipOfTheNoticeIsPlainText) {
  network.Page = "1.5\r\nFixes & \"more\"\r\nhttp://x.example/n\r\n";
  ASSERT_NO_FATAL_FAILURE(ShowNotice());

  EXPECT_EQ(Find(*UpdateForm(), "UpdateNotice").toolTip(),
            "<span>Fixes &amp; &quot;more&quot;</span>");  // markup that shows the text as it is
}

TEST_F(NewsRunTest, TheRunningVersionIsNotAnnounced) {
  network.Page = NewsOf("1.0", 0);
  Show();
  run.Main()->activateWindow();
  PassEvents();

  EXPECT_EQ(UpdateForm(), nullptr);
  EXPECT_TRUE(run.Main()->isVisible());
}

}  // namespace
}  // namespace orrerix
