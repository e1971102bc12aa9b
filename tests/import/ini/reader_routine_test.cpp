// SPDX-License-Identifier: MIT
#include "import/ini/reader_routine.h"

#include <new>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/reader_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class ReaderRoutineFrame : public ReaderFixture {
 protected:
  // Begins a record that lacks memory the first `times` times; counts how often it was begun.
  int BeginWithLackOfMemory(int times) {
    int begun = 0;
    routine.Run([&] {
      routine.BeginRecord(RetryState::Objects, [&] {
        if (++begun <= times) throw RuntimeFailure(failure_number::kOutOfMemory);
      });
    });
    return begun;
  }

  std::string file = "C:\\game\\data\\a.ini";
  ReaderRoutine routine{import, file};
};

TEST_F(ReaderRoutineFrame, ARecordIsBegunAfreshWhileMemoryIsShort) {
  EXPECT_EQ(BeginWithLackOfMemory(5), 6);

  EXPECT_THAT(log.Failures(), IsEmpty());
  EXPECT_THAT(host.Shown, IsEmpty());
  EXPECT_EQ(host.Yields, 2 * 5);
}

TEST_F(ReaderRoutineFrame, ARecordIsBegunAfreshFiveTimesAtMost) {
  EXPECT_EQ(BeginWithLackOfMemory(100), 6);

  EXPECT_THAT(FailureNumbers(), ElementsAre(7));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.ReadINI");
}

TEST_F(ReaderRoutineFrame, EachRecordHasItsOwnRetries) {
  EXPECT_EQ(BeginWithLackOfMemory(4), 5);
  EXPECT_EQ(BeginWithLackOfMemory(5), 6);

  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(ReaderRoutineFrame, LackOfMemoryOutsideARecordAsks) {
  host.Answer = MessageAnswer::Ignore;
  bool wentOn = false;

  routine.Run([&] {
    routine.Fail(RuntimeFailure(failure_number::kOutOfMemory));
    wentOn = true;
  });

  EXPECT_TRUE(wentOn);
  EXPECT_THAT(log.Failures(), IsEmpty());
  ASSERT_THAT(host.Shown, SizeIs(1));
  EXPECT_EQ(host.Shown[0].Text,
            "Out of Memory Error in Line 0! Please close other Applications and Retry or Quit "
            "Orrerix.");
  EXPECT_EQ(host.Shown[0].Title, "");
  EXPECT_EQ(host.Shown[0].Buttons, MessageButtons::AbortRetryIgnore);
}

TEST_F(ReaderRoutineFrame, AbortEndsTheProgram) {
  host.Answer = MessageAnswer::Abort;

  EXPECT_THROW(routine.Run([&] { routine.Fail(RuntimeFailure(failure_number::kOutOfMemory)); }),
               ImportEnded);
}

TEST_F(ReaderRoutineFrame, FaultsOfTheDataGoToTheDataLog) {
  routine.BeginBlock("[a]\r\nb = \xFC\r\nc = 1\r\n");

  routine.Run([&] {
    routine.Fail({failure_number::kDuplicateKey, "", ""});
    routine.SetCurrentLine("b = \xFC, 1");
    routine.Fail({failure_number::kNoCurrentRecord, "", ""});
  });

  EXPECT_THAT(log.Failures(), IsEmpty());
  EXPECT_THAT(DataLog(), ElementsAre("#--- Error in FL-MOD-File:\r\nC:\\game\\data\\a.ini\r\n"
                                     "Cant add to Database (cause of allready exist):\r\n"
                                     "[a]\r\nb = ü\r\nc = 1\r\n\r\n---.",
                                     "*--- Error in FL-MOD-File:\r\nC:\\game\\data\\a.ini\r\n"
                                     "Cant add to Database (cause of allready exist):\r\n"
                                     "[a]\r\nb = ü\n-> b = ü, 1\r\n---."));
}

TEST_F(ReaderRoutineFrame, TheFirstTwoLinesEndAtAnyLineEnd) {
  for (const std::string_view block :
       {"[a]\r\nb = 1\r\nc = 1", "[a]\nb = 1\nc = 1", "[a]\rb = 1\rc = 1", "[a]\nb = 1\r\nc = 1"}) {
    routine.BeginBlock(block);
    routine.SetCurrentLine("c = 1");
    routine.Run([&] { routine.Fail({failure_number::kDuplicateKey, "", ""}); });

    EXPECT_THAT(DataLog().back(), ::testing::EndsWith("b = 1\n-> c = 1\r\n---.")) << block;
  }
}

TEST_F(ReaderRoutineFrame, AfterLackOfMemoryInABlockTheNextBlockIsRead) {
  host.Answer = MessageAnswer::Ignore;
  int blocks = 0;
  // The text of a block that is shown stands for any step that takes memory.
  host.Debugging = true;
  host.OnYield = [&] {
    if (++blocks == 1) throw std::bad_alloc();
  };

  Read("[gun]\nnickname = a\n[gun]\nnickname = b\n");
  host.OnYield = nullptr;
  StoreSections();

  EXPECT_THAT(host.Shown, SizeIs(1));
  EXPECT_THAT(log.Failures(), IsEmpty());
  EXPECT_THAT(Rows("gun"), ::testing::Not(IsEmpty()));
}

TEST_F(ReaderRoutineFrame, AFaultInAGenericBlockGivesTheBlockUp) {
  routine.BeginBlock("[a]");
  routine.SetInGeneric(true);

  EXPECT_THROW(routine.Run([&] {
    routine.Fail({failure_number::kDuplicateKey, "", ""});
  }),
               NextBlock);
  EXPECT_THAT(DataLog(), SizeIs(1));
}

TEST_F(ReaderRoutineFrame, OtherFailuresTellBlockAndPair) {
  routine.BeginBlock("[a]");
  routine.SetPair("key", "value");
  routine.Run([&] { routine.Fail({75, "x", "y"}); });
  routine.ClearPair();
  routine.Run([&] { routine.Fail({75, "x", "y"}); });

  EXPECT_EQ(log.Failures()[0].Info, "While working on - [a]\r\nField: key Data: value");
  EXPECT_EQ(log.Failures()[1].Info, "While working on - [a]");
}

TEST_F(ReaderRoutineFrame, TheNextBlockForgetsTheLastOne) {
  routine.BeginBlock("[a]\r\nb");
  routine.SetCurrentLine("b");
  routine.SetPair("key", "value");
  routine.BeginBlock("[c]");

  routine.Run([&] {
    routine.Fail({75, "x", "y"});
    routine.Fail({failure_number::kDuplicateKey, "", ""});
  });

  EXPECT_EQ(log.Failures()[0].Info, "While working on - [c]");
  EXPECT_THAT(DataLog()[0], ::testing::EndsWith("exist):\r\n[c]\r\n---."));
}

TEST_F(ReaderRoutineFrame, AVeryLongBlockIsQuotedByTheBeginningOfItsFirstTwoLines) {
  const std::string block = "[a]\r\nb = " + std::string(300000, 'x') + "\r\nc";
  routine.SetFileSize(block.size());
  routine.BeginBlock(block);

  routine.Run([&] {
    routine.Fail({75, "x", "y"});
    routine.Fail({failure_number::kDuplicateKey, "", ""});
  });

  const std::string quote = "[a]\r\nb = " + std::string(191, 'x');  // 200 characters
  EXPECT_EQ(log.Failures()[0].Info, "While working on - " + quote);
  EXPECT_THAT(DataLog()[0], ::testing::EndsWith("exist):\r\n" + quote + "\r\n---."));
}

// A file of 100,000 bytes has quotes of 2^20 + 100,000 bytes: five of this block, then beginnings.
TEST_F(ReaderRoutineFrame, TheQuotesOfFailuresAreBoundedByTheFile) {
  const std::string block = "[a]\r\nb\r\n" + std::string(200000, 'x');
  routine.SetFileSize(100000);
  routine.BeginBlock(block);

  for (int i = 0; i < 8; ++i) routine.Run([&] { routine.Fail({75, "x", "y"}); });

  for (int i = 0; i < 5; ++i) EXPECT_EQ(log.Failures()[i].Info, "While working on - " + block) << i;
  EXPECT_EQ(log.Failures()[5].Info, "While working on - [a]\r\nb");
  EXPECT_EQ(log.Failures()[7].Info, "While working on - [a]\r\nb");
}

TEST_F(ReaderRoutineFrame, RemarksBeyondTheBoundOfTheirFileAreLeftOutWithOneWord) {
  routine.SetFileSize(0);
  const std::string remark(400000, 'x');

  for (int i = 0; i < 5; ++i) routine.Remark(remark);

  EXPECT_THAT(DataLog(),
              ElementsAre(remark, remark,
                          "--- Too many remarks on [" + file + "]; the others are left out."));
  EXPECT_FALSE(routine.TakesRemarks());
}

}  // namespace
}  // namespace orrerix
