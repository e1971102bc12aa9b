// SPDX-License-Identifier: MIT
#include "import/log_entry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(LogEntry, AMissingFileIsNamed) {
  const LogEntry entry = ParseLogEntry("Cant find file: [/game\\data\\a.ini]");

  EXPECT_EQ(entry.Kind, LogKind::MissingFile);
  EXPECT_EQ(entry.File, "/game\\data\\a.ini");
  EXPECT_EQ(entry.Nickname, "");
  EXPECT_EQ(entry.Text, "Cant find file: [/game\\data\\a.ini]");
}

TEST(LogEntry, ADoubleKeyHasTheFileAndTheNicknameOfItsSection) {
  const LogEntry entry = ParseLogEntry(
      "+--- Warning: DOUBLE-DATA for [hp_type] in file [/game\\data\\gun.ini] in DataBlock:\r\n"
      "[Gun]\r\nNickname =  laser ; the first\r\nhp_type = a\r\n-- (useing last value) --\r\n");

  EXPECT_EQ(entry.Kind, LogKind::DoubleData);
  EXPECT_EQ(entry.File, "/game\\data\\gun.ini");
  EXPECT_EQ(entry.Nickname, "laser");
}

TEST(LogEntry, ARefusedSectionHasTheFileOfItsSecondLine) {
  const LogEntry entry = ParseLogEntry(
      "#--- Error in FL-MOD-File:\r\n/game\\data\\goods.ini\r\nCant add to Database (cause of "
      "allready exist):\r\n[Good]\r\nnickname = gold\r\n---.");

  EXPECT_EQ(entry.Kind, LogKind::RowRefused);
  EXPECT_EQ(entry.File, "/game\\data\\goods.ini");
  EXPECT_EQ(entry.Nickname, "gold");
}

TEST(LogEntry, LanesJumpsAndShipsAreNamed) {
  const LogEntry lane = ParseLogEntry("FL-MOD-ERROR Searching target Tradelane <r2> for <r1>");
  const LogEntry jump = ParseLogEntry("*=== FL-MOD-ERROR: Objekt gate has no POS = x,z,y! ===*");
  const LogEntry hull =
      ParseLogEntry("Warning: NO Shiphull for kite this means the ship has no equipment.");
  const LogEntry package = ParseLogEntry(
      "Warning: NO Packagename for Shiphull kite_hull this means the ship has no equipment.");

  EXPECT_EQ(lane.Kind, LogKind::MissingRing);
  EXPECT_EQ(lane.Nickname, "r1");
  EXPECT_EQ(jump.Kind, LogKind::MissingPosition);
  EXPECT_EQ(jump.Nickname, "gate");
  EXPECT_EQ(hull.Kind, LogKind::MissingPackage);
  EXPECT_EQ(hull.Nickname, "kite");
  EXPECT_EQ(package.Nickname, "kite_hull");
}

TEST(LogEntry, AnyOtherTextIsAnEntryToo) {
  EXPECT_EQ(ParseLogEntry("").Kind, LogKind::Other);
  EXPECT_EQ(ParseLogEntry("in file [").File, "");
  EXPECT_EQ(ParseLogEntry("DOUBLE-DATA for [").File, "");
}

TEST(SavedLog, ComesBackEntryByEntry) {
  const TempFolder folder;
  const auto file = folder.Path() / "Orrerix.fl";

  ASSERT_TRUE(SaveLog(file, {"one\r\nline", "", "three"}));

  EXPECT_THAT(ReadSavedLog(file), ElementsAre("one\r\nline", "", "three"));
}

TEST(SavedLog, WithoutOneThereAreNoEntries) {
  const TempFolder folder;

  EXPECT_THAT(ReadSavedLog(folder.Path() / "Orrerix.fl"), IsEmpty());
  EXPECT_FALSE(SaveLog(folder.Path() / "none" / "Orrerix.fl", {"a"}));
}

}  // namespace
}  // namespace orrerix
