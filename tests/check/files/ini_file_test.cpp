// SPDX-License-Identifier: MIT
#include "check/files/ini_file.h"

#include <gmock/gmock.h>

#include "demo/format/bini_writer.h"

namespace orrerix::check {
namespace {

using ::testing::ElementsAre;

class ReadIniFile : public ::testing::Test {
 protected:
  void Read(std::string_view bytes) { file.ReadBytes(std::string(bytes), names); }

  DiskFile disk{Layer::Game, "a.ini", "a.ini"};
  NameTable names;
  IniFile file{disk, 0};
};

TEST_F(ReadIniFile, SectionsAndEntriesKnowTheirPlaces) {
  Read("; comment\n[ Ship ] rest\n\t nickname =  kestrel , two ; comment\nempty =\n[Good\nkey=a=b");

  ASSERT_EQ(file.Sections().size(), 2u);
  const IniSection& ship = file.Sections()[0];
  EXPECT_EQ(ship.Name, "Ship");
  EXPECT_EQ(ship.Line, 2);
  EXPECT_EQ(ship.Nickname(), "kestrel");
  ASSERT_EQ(ship.Entries.size(), 2u);
  EXPECT_EQ(ship.Entries[0].Key, "nickname");
  EXPECT_EQ(ship.Entries[0].Value, "kestrel , two");
  EXPECT_THAT(ship.Entries[0].Values(), ElementsAre("kestrel", "two"));
  EXPECT_EQ(ship.Entries[0].At(2), "two");
  EXPECT_EQ(ship.Entries[0].At(3), "");
  EXPECT_EQ(ship.Entries[0].Line, 3);
  EXPECT_EQ(file.ColumnOf(ship.Entries[0].Key), 3);
  EXPECT_EQ(file.ColumnOf(ship.Entries[0].At(2)), 25);
  EXPECT_EQ(ship.Entries[1].Value, "");
  const IniSection& good = file.Sections()[1];
  EXPECT_EQ(good.Name, "Good");
  EXPECT_FALSE(good.IsClosed);
  EXPECT_EQ(good.Entries[0].Value, "a=b");
}

TEST_F(ReadIniFile, ALineEndsAtCrLfLfOrCr) {
  Read("[A]\r\na = 1\rb = 2\n\rc = 3");

  const auto entries = file.Sections()[0].Entries;
  ASSERT_EQ(entries.size(), 3u);
  EXPECT_EQ(entries[0].Line, 2);
  EXPECT_EQ(entries[1].Line, 3);
  EXPECT_EQ(entries[2].Line, 5);
}

TEST_F(ReadIniFile, TextIsUtf8IfItIsValidThroughout) {
  Read(
      "\xEF\xBB\xBF[A]\nname = Gr\xC3\xBC\xC3\x9F"
      "e\n");

  EXPECT_EQ(file.Sections()[0].Line, 1);
  EXPECT_EQ(file.Sections()[0].Entries[0].Value,
            "Gr\xC3\xBC\xC3\x9F"
            "e");
}

TEST_F(ReadIniFile, TextIsWindows1252IfOneByteIsNotUtf8) {
  Read("[A]\na = \xC3\xBC\nb = \xFC\n");

  EXPECT_EQ(file.Sections()[0].Entries[0].Value, "\xC3\x83\xC2\xBC");
  EXPECT_EQ(file.Sections()[0].Entries[1].Value, "\xC3\xBC");
}

TEST_F(ReadIniFile, ColumnsCountCharacters) {
  Read("[A]\n\xC3\xBC = \xC3\xA4, b\n");

  EXPECT_EQ(file.ColumnOf(file.Sections()[0].Entries[0].At(2)), 8);
}

TEST_F(ReadIniFile, APackedFileCountsTheLinesOfItsText) {
  Read(PackIni("[Ship]\nnickname = a\nmass = 5\n\n[Ship]\nnickname = b\n"));

  ASSERT_EQ(file.Sections().size(), 2u);
  EXPECT_EQ(file.Sections()[0].Line, 1);
  EXPECT_EQ(file.Sections()[0].Entries[1].Line, 3);
  EXPECT_EQ(file.Sections()[1].Line, 5);
  EXPECT_EQ(file.Sections()[1].Entries[0].Line, 6);
}

TEST_F(ReadIniFile, ADamagedPackedFileHasNoSections) {
  Read(PackIni("[Ship]\nnickname = a\n").substr(0, 15));

  EXPECT_EQ(file.Trouble(), IniTrouble::DamagedPacked);
  EXPECT_TRUE(file.Sections().empty());
}

TEST_F(ReadIniFile, AMarkOfUtf16IsTrouble) {
  Read(std::string_view("\xFE\xFF\0[", 4));

  EXPECT_EQ(file.Trouble(), IniTrouble::Utf16);
}

TEST_F(ReadIniFile, ASecondLeadKeyCutsASection) {
  Read("[A]\nnickname = a\nx = 1\nNICKNAME = b\nx = 2\nnickname = c\n[B]\nnickname = d\n");
  file.CutSections([](const IniSection& section) { return section.Name == "A"; });

  ASSERT_EQ(file.Sections().size(), 4u);
  const IniSection& part = file.Sections()[1];
  EXPECT_TRUE(part.IsCut);
  EXPECT_EQ(part.Line, 4);
  EXPECT_EQ(part.HeaderLine, 1);
  EXPECT_EQ(part.Nickname(), "b");
  EXPECT_EQ(part.Entries.size(), 2u);
  EXPECT_EQ(file.Sections()[0].Entries.size(), 2u);
  EXPECT_EQ(file.SectionAt(5), &part);
  EXPECT_EQ(file.SectionAt(7)->Nickname(), "d");
}

TEST_F(ReadIniFile, SomeSectionsHaveAnotherLeadKey) {
  Read("[BaseGood]\nnickname = a\nbase = b\n[basefaction]\nfaction = c\n[Fuse]\nname = d\n");

  EXPECT_EQ(file.Sections()[0].Nickname(), "b");
  EXPECT_EQ(file.Sections()[1].Nickname(), "c");
  EXPECT_EQ(file.Sections()[2].Nickname(), "d");
}

TEST_F(ReadIniFile, AnEmptyFileIsFine) {
  Read("");

  EXPECT_TRUE(file.IsUsable());
  EXPECT_TRUE(file.Sections().empty());
  EXPECT_EQ(file.SectionAt(1), nullptr);
}

}  // namespace
}  // namespace orrerix::check
