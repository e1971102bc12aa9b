// SPDX-License-Identifier: MIT
#include "shell/error_log.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_message_boxes.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class CountingView : public ErrorLogView {
 public:
  int Shown = 0;
  int Changed = 0;
  void ShowWindow() override { ++Shown; }
  void TextsChanged() override { ++Changed; }
};

class Log : public ::testing::Test {
 protected:
  Log() { log.SetView(&view); }

  ErrorAnswer Report(const Failure& failure, std::string_view info = {}) {
    return log.AddDataError("Settings.TXT", failure, info);
  }

  FakeMessageBoxes messages;
  CountingView view;
  ErrorLog log{messages, AppVersion{1, 7, 12}};
};

const std::string kHeading = "FreeLancer-Files Error Logfile\r\n=======================\r\n";
const std::string kProgramHeading =
    "FL Orrerix v1.7 R12  ErrorLog\r\n==============================\r\n\r\n";

TEST_F(Log, HandsItsLinesOverAndKeepsItsText) {
  log.AddErrorLine("first");

  EXPECT_THAT(log.TakeDataLines(), ElementsAre("first"));

  EXPECT_TRUE(log.DataLines().empty());
  EXPECT_EQ(log.DataLog(), kHeading + "\r\nfirst");
}

TEST_F(Log, ARemarkIsALineOfTheDataLog) {
  EXPECT_FALSE(log.AddErrorLine("first"));
  EXPECT_FALSE(log.AddErrorLine("second"));

  EXPECT_EQ(log.DataLog(), kHeading + "\r\nfirst\r\nsecond");
  EXPECT_THAT(log.DataLines(), ElementsAre("first", "second"));
  EXPECT_EQ(view.Shown, 1);
  EXPECT_EQ(view.Changed, 2);
}

TEST_F(Log, ARemarkNeitherAsksNorShowsTheLowerHalf) {
  log.AddErrorLine("first");

  EXPECT_FALSE(log.HasProgramError());
  EXPECT_THAT(messages.Shown, IsEmpty());
}

TEST_F(Log, AFailureWithoutInfoHasThreeLines) {
  Report({6, "Overflow", "Orrerix"});

  EXPECT_EQ(log.ProgramLog(), kProgramHeading +
                                  "\r\n--> 6 in Settings.TXT Line 0\r\n"
                                  "Description: Overflow(Overflow)\r\nSource: Orrerix\r\n");
  EXPECT_TRUE(log.HasProgramError());
}

TEST_F(Log, AFailureWithInfoHasFourLines) {
  EXPECT_EQ(ErrorLog::EntryText("Settings.TXT", {3022, "Double.", "Database engine"},
                                "While reading setting: 5"),
            "3022 in Settings.TXT Line 0\r\n"
            "Description: Double.(Application-defined or object-defined error)\r\n"
            "Source: Database engine\r\nInfo: While reading setting: 5\r\n");
}

TEST_F(Log, AFailureAsksWhetherToGoOn) {
  EXPECT_EQ(Report({6, "Overflow", "Orrerix"}), ErrorAnswer::GoOn);

  ASSERT_THAT(messages.Shown, SizeIs(1));
  EXPECT_EQ(messages.Shown[0].Text,
            "6 in Settings.TXT Line 0\r\nDescription: Overflow(Overflow)\r\nSource: Orrerix\r\n"
            "\r\nOK = Resume Function behind Error.\r\nCancel = Abort Function and proceed.");
  EXPECT_EQ(messages.Shown[0].Title, "FL Orrerix v1.7 ERROR:");
  EXPECT_EQ(messages.Shown[0].Buttons, MessageButtons::OkCancel);
  EXPECT_EQ(messages.Shown[0].Icon, MessageIcon::Critical);
}

TEST_F(Log, OnlyCancelCancels) {
  messages.Answer = MessageAnswer::Cancel;
  EXPECT_EQ(Report({6, "Overflow", "Orrerix"}), ErrorAnswer::Leave);

  for (const auto answer : {MessageAnswer::Ok, MessageAnswer::Retry, MessageAnswer::Ignore}) {
    messages.Answer = answer;
    EXPECT_EQ(Report({6, "Overflow", "Orrerix"}), ErrorAnswer::GoOn);
  }
}

TEST_F(Log, HiddenDuringAnImportItComesBackWithItsText) {
  log.AddErrorLine("first");

  EXPECT_TRUE(log.QueryUnload(true));
  EXPECT_FALSE(log.LogWindowOpen());
  log.AddErrorLine("second");

  EXPECT_EQ(view.Shown, 2);
  EXPECT_EQ(log.DataLog(), kHeading + "\r\nfirst\r\nsecond");
}

TEST_F(Log, ClosedOutsideAnImportItStaysAway) {
  log.AddErrorLine("first");
  Report({6, "Overflow", "Orrerix"});

  EXPECT_FALSE(log.QueryUnload(false));
  EXPECT_TRUE(log.LogWindowOpen());
  log.AddErrorLine("second");

  EXPECT_EQ(view.Shown, 1);
  EXPECT_EQ(log.DataLog(), kHeading + "\r\nsecond");
  EXPECT_EQ(log.ProgramLog(), kProgramHeading);
  EXPECT_THAT(log.DataLines(), ElementsAre("first", "second"));
}

TEST_F(Log, ThatAFailureCameIsNeverForgotten) {
  Report({6, "Overflow", "Orrerix"});

  log.QueryUnload(true);
  EXPECT_TRUE(log.HasProgramError());
  log.QueryUnload(false);
  EXPECT_TRUE(log.HasProgramError());
}

TEST_F(Log, WorksWithoutAWindow) {
  log.SetView(nullptr);

  log.AddErrorLine("first");
  Report({6, "Overflow", "Orrerix"});

  EXPECT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].Source, "Settings.TXT");
}

}  // namespace
}  // namespace orrerix
