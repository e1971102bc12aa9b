// SPDX-License-Identifier: MIT
#include "import/ini/ini_reader.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demo/format/bini_writer.h"
#include "support/reader_fixture.h"

namespace orrerix {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class IniReader : public ReaderFixture {};

TEST_F(IniReader, AMissingFileIsALineInTheDataLogAndAStep) {
  ReadINI(import, Path("\\data\\missions\\mbases.ini"), "");

  EXPECT_THAT(DataLog(),
              ElementsAre("Cant find file: [" + Path("\\data\\missions\\mbases.ini") + "]"));
  EXPECT_THAT(log.Failures(), IsEmpty());
  EXPECT_EQ(import.Progress.ImportDone, 1);
  EXPECT_THAT(host.Progress, IsEmpty());
}

TEST_F(IniReader, APathThatEndsInABackslashIsNoFile) {
  folder.Write("data/ships/a.ini", "[Object]");

  ReadINI(import, Path("\\data\\ships\\"), "");
  ReadINI(import, Path("\\data\\ships"), "");

  EXPECT_THAT(DataLog(), ElementsAre("Cant find file: [" + Path("\\data\\ships\\") + "]",
                                     "Cant find file: [" + Path("\\data\\ships") + "]"));
}

TEST_F(IniReader, AnEmptyFileEndsTheCallBeforeAnythingIsOpened) {
  ReadBytes("");

  EXPECT_EQ(import.Progress.ImportDone, 1);
  EXPECT_THAT(host.Progress, IsEmpty());
  EXPECT_THAT(DataLog(), IsEmpty());
}

TEST_F(IniReader, APackedFileWithoutSectionsEndsTheCallToo) {
  ReadBytes(PackSections({}));

  EXPECT_THAT(host.Progress, IsEmpty());
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(IniReader, AFileIsFoundWhateverTheCaseOfItsPath) {
  folder.Write("DATA/Ships/ShipArch.INI", "[Ship]\r\nnickname = fox\r\n");

  ReadINI(import, Path("\\data\\ships\\shiparch.ini"), "");

  EXPECT_THAT(Column("Ships", "NickName"), ElementsAre("fox"));
}

TEST_F(IniReader, APackedFileIsReadLikeItsText) {
  ReadBytes(
      PackIni("[Object]\nnickname = Li01_01\npos = -1000, 0, 2000.5\nreputation = x\n"
              "[gun]\nnickname = laser\nhit_pts = 30\nmass = 0.1\n"));
  StoreSections();

  EXPECT_THAT(Column("Objects", "pos"), ElementsAre("-1000, 0, 2000.5"));
  EXPECT_THAT(Column("Objects", "reputation"), ElementsAre("x"));
  EXPECT_THAT(Column("gun", "hit_pts"), ElementsAre("30"));
  EXPECT_THAT(Column("gun", "mass"), ElementsAre("0.1"));
}

TEST_F(IniReader, NothingIsWrittenBesideAPackedFile) {
  ReadBytes(PackIni("[gun]\nnickname = laser\n"));

  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "data" / "test.ini.txt"));
}

TEST_F(IniReader, ADamagedPackedFileIsOneFailureAndLeavesNothing) {
  const std::string whole = PackIni("[Object]\nnickname = a\n[Object]\nnickname = b\n");

  ReadBytes(whole.substr(0, whole.size() - 20));

  EXPECT_THAT(FailureNumbers(), ElementsAre(75));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.ReadINI");
  EXPECT_THAT(log.Failures()[0].What.Description, HasSubstr("Path/File access error"));
  EXPECT_THAT(log.Failures()[0].What.Description, HasSubstr(Path("\\data\\test.ini")));
  EXPECT_THAT(Rows("Objects"), IsEmpty());
  EXPECT_THAT(host.Progress, IsEmpty());
}

TEST_F(IniReader, APackedFileCutAtAnyPlaceIsAtMostOneFailure) {
  const std::string whole = PackIni("[gun]\nnickname = laser\nhit_pts = 30\nmass = 0.1\n");

  for (std::size_t length = 0; length < whole.size(); ++length) {
    ReadBytes(whole.substr(0, length));
  }

  EXPECT_THAT(FailureNumbers(), Each(75));
  EXPECT_THAT(log.Failures(), SizeIs(testing::Le(whole.size())));
}

TEST_F(IniReader, TheLastBlockNeedsNoLineEnd) {
  ReadBytes("[Object]\r\nnickname = a\r\n[Object]\r\nnickname = b");

  EXPECT_THAT(Column("Objects", "nickname"), ElementsAre("a", "b"));
}

TEST_F(IniReader, LinesMayEndInALoneLineFeed) {
  ReadBytes("[Object]\nnickname = a\npos = 1,2,3\n[gun]\nnickname = b\nmass = 2\n");
  StoreSections();

  EXPECT_THAT(Column("Objects", "pos"), ElementsAre("1,2,3"));
  EXPECT_THAT(Column("gun", "mass"), ElementsAre("2"));
}

TEST_F(IniReader, ACommentAfterAValueIsDropped) {
  Read("[Good]\nnickname = a ; the first\nprice = 300;a remark\ncategory = x\n");

  EXPECT_THAT(Column("Goods", "nickname"), ElementsAre("a"));
  EXPECT_THAT(Column("Goods", "price"), ElementsAre("300"));
  EXPECT_THAT(Column("Goods", "category"), ElementsAre("x"));
}

TEST_F(IniReader, AHeaderInACommentIsAlive) {
  Read("[Object]\nnickname = a\n;[Object]\nnickname = b\n");

  EXPECT_THAT(Column("Objects", "nickname"), ElementsAre("a", "b"));
}

TEST_F(IniReader, ABracketInAValueCutsTheBlock) {
  Read("[Object]\nnickname = a\nreputation = x [z] y\narchetype = b\n");
  StoreSections();

  EXPECT_THAT(Column("Objects", "reputation"), ElementsAre("x"));
  EXPECT_THAT(Column("Objects", "archetype"), ElementsAre(""));
  EXPECT_THAT(Column("z", "archetype"), ElementsAre("b"));
}

TEST_F(IniReader, TextBeforeTheFirstHeaderIsDropped) {
  Read("nickname = nobody\n; a file\n[Object]\nnickname = a\n");

  EXPECT_THAT(Column("Objects", "nickname"), ElementsAre("a"));
}

TEST_F(IniReader, ACommentedOnlyHeaderIsNoHeader) {
  // The block is the whole file, for no second bracket follows, and loses its comment.
  Read("a\n; [Object]\nnickname = a\n");

  EXPECT_THAT(Rows("Objects"), IsEmpty());
}

TEST_F(IniReader, RunsOfBlanksBeforeASignCountAsOne) {
  Read("[Object]\nnickname      = a\narchetype=b\nreputation =  c\n");

  EXPECT_THAT(Column("Objects", "nickname"), ElementsAre("a"));
  EXPECT_THAT(Column("Objects", "archetype"), ElementsAre("b"));
  EXPECT_THAT(Column("Objects", "reputation"), ElementsAre("c"));
}

TEST_F(IniReader, GameTextIsStoredAsUtf8) {
  ReadBytes("[Object]\r\nnickname = M\xFCnchen\r\nreputation = \x80\x81\r\n");

  EXPECT_THAT(Column("Objects", "nickname"), ElementsAre("München"));
  EXPECT_THAT(Column("Objects", "reputation"), ElementsAre("€\u0081"));
}

TEST_F(IniReader, SizesCountCharactersAndNotBytes) {
  ReadBytes("[Object]\r\nnickname = " + std::string(255, '\xFC') + "\r\n");

  EXPECT_THAT(log.Failures(), IsEmpty());
  EXPECT_THAT(Rows("Objects"), SizeIs(1));
}

TEST_F(IniReader, ShowsTheFileAtItsStartAndEnd) {
  ReadBytes("[Object]\r\nnickname = a\r\n");

  ASSERT_THAT(host.Progress, SizeIs(2));
  EXPECT_EQ(host.Progress[0].Maximum, 24);
  EXPECT_EQ(host.Progress[0].Value, 0);
  EXPECT_EQ(host.Progress[1].Value, 24);
  EXPECT_EQ(host.Progress[1].Progress.ImportDone, 1);
}

TEST_F(IniReader, ShowsBlocksNoOftenerThanThePaceAllows) {
  ReadBytes("[a]\r\n[b]\r\n[c]\r\n");

  EXPECT_THAT(host.Progress, SizeIs(2));
  EXPECT_EQ(host.Yields, 0);
  EXPECT_EQ(host.Text, "");
}

TEST_F(IniReader, ShowsEveryBlockWhenDebugging) {
  host.Debugging = true;

  ReadBytes("[a]\r\n[b]\r\nx = \xFC\r\n");

  // Start; "[a]" with 5 of 17 characters cut; "[b]" with all; end.
  ASSERT_THAT(host.Progress, SizeIs(4));
  EXPECT_EQ(host.Progress[1].Value, 5);
  EXPECT_EQ(host.Progress[2].Value, 17);
  EXPECT_EQ(host.Yields, 2);
  EXPECT_EQ(host.Text, "reading file " + Path("\\data\\test.ini") + "\r\n\r\n[b]\r\nx = ü\r\n");
}

TEST_F(IniReader, AMinimisedWindowShowsProgressButNoText) {
  host.Debugging = true;
  host.Minimised = true;

  ReadBytes("[a]\r\n");

  EXPECT_THAT(host.Progress, SizeIs(3));
  EXPECT_EQ(host.Text, "");
}

TEST_F(IniReader, AWrappedTickCountShowsTheBlock) {
  folder.Write("data/test.ini", "[a]\r\n[b]\r\n");
  class WrappingHost : public FakeHost {
   public:
    std::uint32_t TickCount() override { return calls_++ == 0 ? 4'000'000'000 : 5; }

   private:
    int calls_ = 0;
  } wrapping;
  Import other{universe, game, wrapping, {}, {}};

  ReadINI(other, Path("\\data\\test.ini"), "");

  EXPECT_THAT(wrapping.Progress, SizeIs(3));
}

TEST_F(IniReader, ASectionOfMegabytesIsCutAtTheBuffer) {
  std::string text = "[gun]\r\nnickname = a\r\n";
  while (text.size() < 3'000'000) text += "mass = 1\r\n";
  text += "[gun]\r\nnickname = b\r\n";

  ReadBytes(text);
  StoreSections();

  EXPECT_THAT(Column("gun", "nickname"), ElementsAre("a", "b"));
}

TEST_F(IniReader, AValueLongerThanItsFieldIsAFailureOfItsOwn) {
  // In the last chunk of a file blocks of any length are whole.
  ReadBytes("[Object]\r\nnickname = a\r\nreputation = " + std::string(15000, 'x') +
            "\r\narchetype = b\r\n");

  EXPECT_THAT(FailureNumbers(), ElementsAre(3163));
  EXPECT_THAT(Column("Objects", "archetype"), ElementsAre("b"));
}

TEST_F(IniReader, ALongValueBeyondTheBufferLosesWhatFollows) {
  ReadBytes("[Object]\r\nnickname = a\r\nreputation = " + std::string(100'000, 'x') +
            "\r\narchetype = b\r\n[Object]\r\nnickname = c\r\n");

  EXPECT_THAT(Column("Objects", "nickname"), ElementsAre("a", "c"));
  EXPECT_THAT(Column("Objects", "archetype"), ElementsAre("", ""));
}

TEST_F(IniReader, CharactersOfCodeZeroAreCharacters) {
  using namespace std::string_literals;
  ReadBytes(
      "[Object]\r\nnickname = a\0b\r\n[g\0n]\r\nnickname = c\r\n[gun]\r\nm\0ss = 1\r\nx = 2\r\n"s);
  StoreSections();

  EXPECT_EQ(Rows("Objects")[0].at("nickname"), "a\0b"s);
  // Neither a table nor a field can be named with one.
  EXPECT_THAT(FailureNumbers(), ElementsAre(3125, 3125));
  EXPECT_THAT(FieldNames("gun"), ElementsAre("OX_ID", "SourceFileName", "x"));
}

TEST_F(IniReader, AnUnreadableFileIsOneFailure) {
  const auto file = folder.Write("data/test.ini", "[Object]\r\nnickname = a\r\n");
  std::filesystem::permissions(file, std::filesystem::perms::none);
  if (std::ifstream(file)) GTEST_SKIP() << "this user may read every file";

  ReadINI(import, Path("\\data\\test.ini"), "");

  EXPECT_THAT(FailureNumbers(), ElementsAre(75));
}

TEST_F(IniReader, ReadsAFileAsOftenAsItIsAsked) {
  Read("[mroom]\nnickname = a\n");
  Read("[mroom]\nnickname = a\n");
  StoreSections();

  EXPECT_THAT(Column("mroom", "nickname"), ElementsAre("a", "a"));
  EXPECT_EQ(import.Progress.ImportDone, 2);
}

TEST_F(IniReader, BracketsWithoutEndDoNoHarm) {
  for (const std::string_view text : {"[",
                                      "[[[[[",
                                      "]",
                                      "[]",
                                      "[]\r\n=",
                                      "[a",
                                      "[a\r\nb = c",
                                      "[=]\r\nb = c",
                                      "[a]b = c",
                                      "[Object]",
                                      "[Good]",
                                      "[Ship]",
                                      "[Data]",
                                      "[Resources]",
                                      "[Loadout]",
                                      "[GF_NPC]",
                                      "[BaseGood]",
                                      "[BaseGood]MarketGood",
                                      "[GF_NPC]bribe",
                                      "[Loadout]cargo=equip=",
                                      "[Resources]DLL =",
                                      "[Data]=",
                                      "[Data]\r",
                                      "[Data]\rbases",
                                      "[Good]category = ship\rhull = x"}) {
    ReadBytes(text);
  }

  EXPECT_THAT(Column("DataFiles", "type"), ElementsAre("bases"));
}

TEST_F(IniReader, AnEmptyHeaderLeavesNoTable) {
  Read("[]\nnickname = a\n");
  StoreSections();

  EXPECT_THAT(TableNames(), SizeIs(FixedTables().size()));
}

}  // namespace
}  // namespace orrerix
