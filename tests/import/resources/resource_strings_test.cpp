// SPDX-License-Identifier: MIT
#include "import/resources/resource_strings.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demo/format/pe_writer.h"
#include "support/reader_fixture.h"

namespace orrerix {
namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class ResourceStrings : public ReaderFixture {
 protected:
  void ReadLibrary(const ResourceLibraryWriter& writer, std::int32_t offset) {
    folder.Write("exe/Names.dll", writer.Image());
    ReadHTML_STRData(import, Path("\\exe\\names.dll"), offset);
  }

  static constexpr ResourceKey Card(std::uint32_t number) {
    return {ResourceLibraryWriter::kHtmlType, number, 0};
  }
};

TEST_F(ResourceStrings, ALibrarysNumbersAreRaisedByItsPlace) {
  ResourceLibraryWriter writer;
  writer.AddString(5, "Fox");
  writer.AddCard(7, "<?xml version=\"1.0\" encoding=\"UTF-16\"?><RDL><TEXT>A<PARA/>B</TEXT></RDL>");

  ReadLibrary(writer, 3 * 65536);

  ASSERT_THAT(Rows("ids_name"), SizeIs(1));
  EXPECT_EQ(Rows("ids_name")[0].at("ID"), 196613);
  EXPECT_EQ(Rows("ids_name")[0].at("Name"), "Fox");
  EXPECT_EQ(Rows("ids_name")[0].at("DLL"), "names.dll");
  ASSERT_THAT(Rows("ids_info"), SizeIs(1));
  EXPECT_EQ(Rows("ids_info")[0].at("ID"), 196615);
  EXPECT_EQ(Rows("ids_info")[0].at("Info"), "A\r\nB");
  EXPECT_EQ(Rows("ids_info")[0].at("DLL"), "names.dll");
}

TEST_F(ResourceStrings, AStringOfBlanksLeavesNoRow) {
  ResourceLibraryWriter writer;
  writer.AddString(1, "   ");
  writer.AddString(2, "\r\n\t");
  writer.AddString(3, "  Fox \r\n ");

  ReadLibrary(writer, 65536);

  EXPECT_THAT(Column("ids_name", "ID"), ElementsAre("65539"));
  EXPECT_THAT(Column("ids_name", "Name"), ElementsAre("Fox"));
}

TEST_F(ResourceStrings, ACardThatStripsDownToNothingLeavesAnEmptyText) {
  ResourceLibraryWriter writer;
  writer.AddCard(1, "<RDL></RDL>");
  writer.AddRaw(Card(4), "\xFF\xFE"s);  // a mark and nothing else

  ReadLibrary(writer, 65536);

  EXPECT_THAT(Column("ids_info", "ID"), ElementsAre("65537", "65540"));
  EXPECT_THAT(Column("ids_info", "Info"), ElementsAre("", ""));
}

TEST_F(ResourceStrings, ACardOfBlanksLeavesNoRow) {
  ResourceLibraryWriter writer;
  writer.AddRaw(Card(2), " \0 \0\r\0"s);
  writer.AddRaw(Card(3), "");

  ReadLibrary(writer, 65536);

  EXPECT_THAT(Rows("ids_info"), IsEmpty());
}

TEST_F(ResourceStrings, ACardKeepsAllItsCharactersAndItsLastOddByte) {
  ResourceLibraryWriter writer;
  writer.AddCard(1, "→ " + std::string(2000, 'x'));
  writer.AddRaw(Card(2),
                "\xFF\xFE"
                "a\0b\0c"s);

  ReadLibrary(writer, 65536);

  EXPECT_THAT(Column("ids_info", "Info"), ElementsAre("→ " + std::string(2000, 'x'), "abc"));
}

TEST_F(ResourceStrings, ALibraryCountsTwoStepsAndShowsThemPaced) {
  ResourceLibraryWriter writer;
  writer.AddString(5, "Fox");

  ReadLibrary(writer, 65536);

  EXPECT_EQ(import.Progress.ImportDone, 2);
  ASSERT_THAT(host.Progress, SizeIs(4));
  EXPECT_EQ(host.Progress[0].Maximum, 65535);
  EXPECT_EQ(host.Progress[0].Value, 0);
  EXPECT_EQ(host.Progress[0].Progress.ImportDone, 1);
  EXPECT_EQ(host.Progress[1].Value, 65535);
  EXPECT_EQ(host.Progress[2].Value, 0);
  EXPECT_EQ(host.Progress[2].Progress.ImportDone, 2);
  EXPECT_EQ(host.Progress[3].Value, 65535);
}

TEST_F(ResourceStrings, ALibraryThatCannotBeLoadedIsAMessage) {
  folder.Write("exe/broken.dll", "MZ and nothing else");

  ReadHTML_STRData(import, Path("\\exe\\missing.dll"), 65536);
  ReadHTML_STRData(import, Path("\\exe\\broken.dll"), 65536);

  ASSERT_THAT(host.Shown, SizeIs(2));
  EXPECT_EQ(host.Shown[0].Text, "DLL \"" + Path("\\exe\\missing.dll") + "\" dynamic link error!");
  EXPECT_EQ(host.Shown[1].Text, "DLL \"" + Path("\\exe\\broken.dll") + "\" dynamic link error!");
  EXPECT_EQ(host.Shown[0].Title, "FL Orrerix");
  EXPECT_EQ(host.Shown[0].Icon, MessageIcon::Exclamation);
  EXPECT_EQ(host.Shown[0].Buttons, MessageButtons::Ok);
  EXPECT_EQ(import.Progress.ImportDone, 0);
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(ResourceStrings, AClashOfNumbersIsAFailureAndTheFirstStands) {
  ResourceLibraryWriter writer;
  writer.AddString(5, "Fox");
  ReadLibrary(writer, 65536);
  ReadLibrary(writer, 65536);

  EXPECT_THAT(Column("ids_name", "Name"), ElementsAre("Fox"));
  ASSERT_THAT(FailureNumbers(), ElementsAre(3022));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.ReadHTML_STRData");
  EXPECT_EQ(log.Failures()[0].Info, "While reading dynamic linked DLL-Data");
}

TEST_F(ResourceStrings, GetNameCutsAt255Characters) {
  std::string name;
  for (int i = 0; i < 300; ++i) name += "ü";
  Name(65541, name);

  EXPECT_EQ(GetName(universe, 65541, "x"), name.substr(0, 2 * 255));
}

TEST_F(ResourceStrings, GetNameFallsBackToTheNumber) {
  EXPECT_EQ(GetName(universe, 196609, "Li01"), "Li01(196609)");
  EXPECT_EQ(GetName(universe, 196609, ""), "(196609)");
  EXPECT_EQ(GetName(universe, -5, "a"), "a(-5)");
  // 253 characters and "(7)" are 256: the last one goes.
  EXPECT_EQ(GetName(universe, 7, std::string(253, 'x')), std::string(253, 'x') + "(7");
}

TEST_F(ResourceStrings, GetInfoGivesTheWholeText) {
  const std::string text(100'000, 'x');
  Add("ids_info", {{"ID", 65541}, {"Info", text}});

  EXPECT_EQ(GetInfo(universe, 65541), text);
  EXPECT_EQ(GetChangeInfo(universe, 65541), text);
}

TEST_F(ResourceStrings, GetInfoFallsBackToTheNumberAndItsLowHalf) {
  EXPECT_EQ(GetInfo(universe, 131077), "131077 - 5");
  EXPECT_EQ(GetInfo(universe, 5), "5 - 5");
  EXPECT_EQ(GetInfo(universe, 0), "0 - 0");
  EXPECT_EQ(GetInfo(universe, -1), "-1 - 65535");
}

TEST_F(ResourceStrings, AFailedLookupTellsItsNumber) {
  db.Execute(mustWork, "DROP TABLE ids_name");
  db.Execute(mustWork, "DROP TABLE ids_info");
  messages.Answer = MessageAnswer::Cancel;

  EXPECT_EQ(GetName(universe, 7, "x"), "");
  EXPECT_EQ(GetInfo(universe, 8), "");

  ASSERT_THAT(log.Failures(), SizeIs(2));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.GetName");
  EXPECT_EQ(log.Failures()[0].Info, "While getting Name #7");
  EXPECT_EQ(log.Failures()[1].Source, "OrrerixMain.GetInfo");
  EXPECT_EQ(log.Failures()[1].Info, "While getting Info #8");
}

}  // namespace
}  // namespace orrerix
