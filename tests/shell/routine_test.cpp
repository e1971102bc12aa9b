// SPDX-License-Identifier: MIT
#include "shell/routine.h"

#include <filesystem>
#include <new>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "db/engine/engine.h"
#include "db/schema.h"
#include "support/fake_message_boxes.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class RoutineFrame : public ::testing::Test {
 protected:
  FakeMessageBoxes messages;
  ErrorLog log{messages, AppVersion{1, 0, 0}};
  Routine routine{log, "Module.Name", "While testing"};
};

TEST_F(RoutineFrame, OkGoesOnAfterTheFailedStep) {
  std::vector<std::string> steps;

  const bool finished = routine.Run([&] {
    steps.push_back("first");
    EXPECT_FALSE(routine.Try([] { throw RuntimeFailure(11); }));
    steps.push_back("second");
  });

  EXPECT_TRUE(finished);
  EXPECT_THAT(steps, ElementsAre("first", "second"));
  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].Source, "Module.Name");
  EXPECT_EQ(log.Failures()[0].Info, "While testing");
}

TEST_F(RoutineFrame, CancelLeavesTheWholeRoutineOutOfALoop) {
  messages.Answer = MessageAnswer::Cancel;
  struct CleanUp {
    bool& Done;
    ~CleanUp() { Done = true; }
  };
  int rounds = 0;
  bool cleanedUp = false;

  const bool finished = routine.Run([&] {
    const CleanUp cleanUp{cleanedUp};
    for (; rounds < 5; ++rounds) routine.Try([] { throw RuntimeFailure(11); });
  });

  EXPECT_FALSE(finished);
  EXPECT_EQ(rounds, 0);
  EXPECT_TRUE(cleanedUp);
  EXPECT_THAT(log.Failures(), SizeIs(1));
}

TEST_F(RoutineFrame, AnInnerRoutinesCancelStopsThere) {
  messages.Answer = MessageAnswer::Cancel;
  bool wentOn = false;

  const bool finished = routine.Run([&] {
    Routine inner(log, "Module.Inner");
    EXPECT_FALSE(inner.Run([&] { inner.Fail(RuntimeFailure(11)); }));
    wentOn = true;
  });

  EXPECT_TRUE(finished);
  EXPECT_TRUE(wentOn);
  EXPECT_EQ(log.Failures()[0].Source, "Module.Inner");
  EXPECT_EQ(log.Failures()[0].Info, "");
}

TEST_F(RoutineFrame, AnOuterRoutinesCancelPassesTheInnerOne) {
  messages.Answer = MessageAnswer::Cancel;
  bool wentOn = false;

  const bool finished = routine.Run([&] {
    Routine inner(log, "Module.Inner");
    inner.Run([&] { routine.Fail(RuntimeFailure(11)); });
    wentOn = true;
  });

  EXPECT_FALSE(finished);
  EXPECT_FALSE(wentOn);
}

TEST_F(RoutineFrame, AFailureOutsideAStepIsAskedAboutAndCancelsOnlyAfterCancel) {
  EXPECT_TRUE(routine.Run([] { throw RuntimeFailure(5); }));
  messages.Answer = MessageAnswer::Cancel;
  EXPECT_FALSE(routine.Run([] { throw RuntimeFailure(5); }));

  EXPECT_EQ(log.Failures()[0].What.Number, 5);
  EXPECT_THAT(log.Failures(), SizeIs(2));
}

TEST_F(RoutineFrame, WhatTheFileSystemRefusesIsAFailure) {
  const std::filesystem::filesystem_error error(
      "status", "/loop", std::make_error_code(std::errc::too_many_symbolic_link_levels));

  EXPECT_TRUE(routine.Run([&] { routine.Try([&] { throw error; }); }));

  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].What.Number, 75);
  EXPECT_THAT(log.Failures()[0].What.Description, ::testing::HasSubstr("'/loop'"));
}

TEST_F(RoutineFrame, LackOfMemoryIsAFailureToo) {
  EXPECT_TRUE(routine.Run([&] { routine.Try([] { throw std::bad_alloc(); }); }));
  EXPECT_TRUE(routine.Run([] { throw std::bad_alloc(); }));

  EXPECT_EQ(log.Failures()[0].What.Number, 7);
  EXPECT_EQ(log.Failures()[1].What.Number, 7);
}

TEST_F(RoutineFrame, ConversionsRoundAndAnOverflowLeavesWhatWasBefore) {
  EXPECT_EQ(routine.Integer(2.5, 9), 2);
  EXPECT_EQ(routine.Long(-3.5, 9), -4);
  EXPECT_THAT(log.Failures(), IsEmpty());

  EXPECT_EQ(routine.Integer(32768, 9), 9);
  EXPECT_EQ(routine.Long(2147483648.0, 9), 9);
  EXPECT_EQ(log.Failures()[0].What.Number, 6);
  EXPECT_THAT(log.Failures(), SizeIs(2));
}

TEST_F(RoutineFrame, AFailedAssignmentLeavesTheTargetUnchanged) {
  routine.Run([&] {
    Database db = DBEngine::CreateInMemory(routine);
    db.CreateTable(routine, VersionTable());
    Recordset rows = db.OpenTable(routine, "Version");
    rows.AddNew();
    rows["Version"] = "17";
    rows["Version"] = std::string(300, 'x');
    rows.Update();
    Recordset found = db.OpenRecordset(routine, "SELECT * FROM Version");
    EXPECT_EQ(found["Version"].Get(), "17");
  });

  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].What.Number, 3163);
}

TEST_F(RoutineFrame, InfoIsMadeOnlyIfSomethingFails) {
  int made = 0;
  Routine lazy(log, "Module.Lazy", Routine::InfoText([&made] {
                 ++made;
                 return std::string("info");
               }));

  lazy.Run([] {});
  EXPECT_EQ(made, 0);
  lazy.Run([&] { lazy.Fail(RuntimeFailure(11)); });
  EXPECT_EQ(made, 1);
}

TEST_F(RoutineFrame, AValueStaysAsItWasIfTheStepThatWouldReplaceItFails) {
  struct Place {
    int X = 0;
    int Y = 0;
  };
  const auto fails = [](int x) -> Place {
    if (x > 0) throw RuntimeFailure(failure_number::kOverflow);
    return {x, x};
  };
  Place place{3, 4};
  std::string_view text = "before";

  routine.Run([&] {
    place = routine.Or(place, [&] { return fails(1); });
    text = routine.Or(text, []() -> std::string_view { throw RuntimeFailure(5); });
  });

  EXPECT_EQ(place.X, 3);
  EXPECT_EQ(place.Y, 4);
  EXPECT_EQ(text, "before");
  EXPECT_THAT(log.Failures(), SizeIs(2));
  place = routine.Or(place, [&] { return fails(-1); });
  EXPECT_EQ(place.X, -1);
}

}  // namespace
}  // namespace orrerix
