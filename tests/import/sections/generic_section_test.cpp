// SPDX-License-Identifier: MIT
#include "import/sections/generic_section.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/failing_memory.h"
#include "support/reader_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

class GenericSection : public ReaderFixture {};

TEST_F(GenericSection, BecomesATableOfItsKeysInOrderOfAppearance) {
  Read("[Gun]\nnickname = laser\nhit_pts = 30\n");
  StoreSections();

  EXPECT_THAT(FieldNames("gun"), ElementsAre("OX_ID", "SourceFileName", "nickname", "hit_pts"));
  const auto rows = Rows("gun");
  ASSERT_THAT(rows, SizeIs(1));
  EXPECT_EQ(rows[0].at("OX_ID"), 1);
  EXPECT_EQ(rows[0].at("SourceFileName"), "\\data\\test.ini");
  EXPECT_EQ(rows[0].at("nickname"), "laser");
  EXPECT_EQ(rows[0].at("hit_pts"), "30");
}

TEST_F(GenericSection, ASecondBlockOfTheSameNicknameIsLoggedAndDropped) {
  Read(
      "[gun]\nnickname = laser\nhit_pts = 30\n[gun]\nnickname = LASER\nhit_pts = 40\n"
      "[gun]\nnickname = maser\nhit_pts = 50\n");
  StoreSections();

  EXPECT_THAT(Column("gun", "hit_pts"), ElementsAre("30", "50"));
  EXPECT_THAT(Column("gun", "OX_ID"), ElementsAre("1", "3"));
  EXPECT_THAT(DataLog(), ElementsAre("#--- Error in FL-MOD-File:\r\n" + Path("\\data\\test.ini") +
                                     "\r\nCant add to Database (cause of allready exist):\r\n"
                                     "[gun]\r\nnickname = LASER\r\nhit_pts = 40\r\r\n---."));
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(GenericSection, ADoubleThatShowsANewKeyIsDroppedBeforeTheFieldIsMade) {
  Read("[gun]\nnickname = laser\n[gun]\nnickname = laser\nhit_pts = 40\n");
  StoreSections();

  EXPECT_THAT(Column("gun", "nickname"), ElementsAre("laser"));
  EXPECT_THAT(FieldNames("gun"), ElementsAre("OX_ID", "SourceFileName", "nickname"));
  EXPECT_THAT(DataLog(), SizeIs(1));
}

TEST_F(GenericSection, FieldsAreShownByLaterBlocksToo) {
  Read("[gun]\nnickname = a\n[gun]\nnickname = b\nmass = 1\n[gun]\nnickname = c\n");
  StoreSections();

  EXPECT_THAT(FieldNames("gun"), ElementsAre("OX_ID", "SourceFileName", "nickname", "mass"));
  EXPECT_THAT(Column("gun", "mass"), ElementsAre("", "1", ""));
  EXPECT_TRUE(Rows("gun")[0].at("mass").IsNull());
}

TEST_F(GenericSection, ABlockWithoutANicknameInAKeyedTableIsAFailure) {
  Read("[gun]\nnickname = a\n[gun]\nmass = 1\n[gun]\nnickname = c\n");
  StoreSections();

  // The new field writes the row as it stands: without its key it goes. After that there is no
  // row to take up again, which is a fault of the file's data.
  EXPECT_THAT(Column("gun", "nickname"), ElementsAre("a", "c"));
  EXPECT_THAT(FailureNumbers(), ElementsAre(3058));
  EXPECT_THAT(DataLog(), ElementsAre("*--- Error in FL-MOD-File:\r\n" + Path("\\data\\test.ini") +
                                     "\r\nCant add to Database (cause of allready exist):\r\n"
                                     "[gun]\r\nmass = 1\r\r\n---."));
  EXPECT_THAT(FieldNames("gun"), ElementsAre("OX_ID", "SourceFileName", "nickname", "mass"));
}

TEST_F(GenericSection, ABlockOfKnownKeysWithoutANicknameIsAFailureToo) {
  Read("[gun]\nnickname = a\nmass = 1\n[gun]\nmass = 2\n");
  StoreSections();

  EXPECT_THAT(Column("gun", "mass"), ElementsAre("1"));
  EXPECT_THAT(FailureNumbers(), ElementsAre(3058));
}

TEST_F(GenericSection, EarlierRowsWithoutANicknameKeepTheTableWithoutAKey) {
  Read("[gun]\nmass = 1\n[gun]\nnickname = a\n[gun]\nnickname = a\n");
  StoreSections();

  EXPECT_THAT(FailureNumbers(), ElementsAre(3058));
  EXPECT_THAT(Column("gun", "nickname"), ElementsAre("", "a", "a"));
}

TEST_F(GenericSection, ANicknameThatIsNotTheFirstKeyMakesTheKeyAllTheSame) {
  Read("[gun]\nmass = 1\nnickname = a\n[gun]\nmass = 2\nnickname = A\n");
  StoreSections();

  EXPECT_THAT(FieldNames("gun"), ElementsAre("OX_ID", "SourceFileName", "mass", "nickname"));
  EXPECT_THAT(Column("gun", "mass"), ElementsAre("1"));
  EXPECT_THAT(DataLog(), SizeIs(1));
}

TEST_F(GenericSection, TheSectionsOfRoomsLightsAndEncountersHaveNoKey) {
  for (const char* section : {"mroom", "LightSource", "EncounterParameters"}) {
    Read("[" + std::string(section) + "]\nnickname = a\n[" + section + "]\nnickname = a\n");
  }
  StoreSections();

  EXPECT_THAT(Column("mroom", "nickname"), ElementsAre("a", "a"));
  EXPECT_THAT(Column("lightsource", "nickname"), ElementsAre("a", "a"));
  EXPECT_THAT(Column("encounterparameters", "nickname"), ElementsAre("a", "a"));
  EXPECT_THAT(DataLog(), IsEmpty());
}

TEST_F(GenericSection, APartOfThoseNamesHasAKey) {
  Read("[room]\nnickname = a\n[room]\nnickname = a\n");
  StoreSections();

  EXPECT_THAT(Column("room", "nickname"), ElementsAre("a"));
}

TEST_F(GenericSection, ShieldModsBecomeFieldsOfTheShieldsName) {
  Read(
      "[weapontype]\nnickname = laser\nshield_mod = S_Graviton01, 1.5\nshield_mod = s_pos , 0.8\n");
  StoreSections();

  EXPECT_THAT(FieldNames("weapontype"),
              ElementsAre("OX_ID", "SourceFileName", "nickname", "s_graviton01", "s_pos"));
  EXPECT_THAT(Column("weapontype", "s_graviton01"), ElementsAre("1.5"));
  EXPECT_THAT(Column("weapontype", "s_pos"), ElementsAre("0.8"));
}

TEST_F(GenericSection, AShieldModWithoutACommaIsAFailureOfItsKey) {
  Read("[weapontype]\nshield_mod = graviton\n");
  StoreSections();

  EXPECT_THAT(FailureNumbers(), ElementsAre(5));
  EXPECT_THAT(Column("weapontype", "shield_mod"), ElementsAre("graviton"));
}

TEST_F(GenericSection, ARepeatedKeyKeepsItsLastValueAndWarns) {
  Read("[gun]\nnickname = a\nhit_pts = 30\nhit_pts = 40\n");
  StoreSections();

  EXPECT_THAT(Column("gun", "hit_pts"), ElementsAre("40"));
  EXPECT_THAT(DataLog(), ElementsAre("+--- Warning: DOUBLE-DATA for [hit_pts] in file [" +
                                     Path("\\data\\test.ini") +
                                     "] in DataBlock:\r\n[gun]\r\nnickname = a\r\nhit_pts = 30\r\n"
                                     "hit_pts = 40\r\n\r\n-- (useing last value) --\r\n"));
}

TEST_F(GenericSection, KeysThatRepeatAsAMatterOfCourseDoNotWarn) {
  for (const char* key : {"locked_gate", "movie_file", "fixture", "npc", "voice",
                          "density_restriction", "faction", "encounter", "faction_weight",
                          "shield_hit_effects", "dll", "log", "fuse", "npc_locked_gate"}) {
    Read("[x]\n" + std::string(key) + " = one\n" + key + " = two\n");
  }
  StoreSections();

  EXPECT_THAT(DataLog(), IsEmpty());
  EXPECT_EQ(Rows("x")[0].at("locked_gate"), "two");
}

TEST_F(GenericSection, APartOfSuchAKeyWarns) {
  Read("[x]\ngate = one\ngate = two\n");

  EXPECT_THAT(DataLog(), SizeIs(1));
}

TEST_F(GenericSection, AValueOfOneCharacterIsReplacedWithoutAWarning) {
  Read("[x]\nmass = 1\nmass = 2\nmass = 33\n");
  StoreSections();

  EXPECT_THAT(Column("x", "mass"), ElementsAre("33"));
  EXPECT_THAT(DataLog(), IsEmpty());
}

TEST_F(GenericSection, SectionsThatArePartsOfArchetypeLeaveNoTable) {
  Read("[Type]\na = 1\n[arch]\na = 1\n[Archetype]\na = 1\n[*]\na = 1\n[types]\na = 1\n");
  StoreSections();

  const auto names = TableNames();
  ASSERT_THAT(names, SizeIs(FixedTables().size() + 1));
  EXPECT_EQ(names.back(), "types");
}

TEST_F(GenericSection, NamesWithASignLeaveNoTable) {
  Read("[a=b]\nc = 1\n");
  StoreSections();

  EXPECT_THAT(TableNames(), SizeIs(FixedTables().size()));
}

TEST_F(GenericSection, ABlockWithoutABracketAfterItsNameLeavesNoTable) {
  Read("[gun\nnickname = a\n");
  StoreSections();

  EXPECT_THAT(TableNames(), SizeIs(FixedTables().size()));
}

TEST_F(GenericSection, ARowWithoutKeysLeavesNothingButItsTable) {
  Read("[gun]\n[gun]\nnothing here\n[gun]\n= 5\nmass =\n[gun]\nnickname = a\n");
  StoreSections();

  // The three rows that came to nothing have used up their numbers.
  EXPECT_THAT(Column("gun", "OX_ID"), ElementsAre("4"));
  EXPECT_THAT(FieldNames("gun"), ElementsAre("OX_ID", "SourceFileName", "nickname"));
}

TEST_F(GenericSection, TextAfterTheHeaderIsALineOfTheBlock) {
  Read("[gun] nickname = a\nmass = 2\n");
  StoreSections();

  EXPECT_THAT(Column("gun", "nickname"), ElementsAre("a"));
}

TEST_F(GenericSection, KeysAndNamesAreLowerCasedValuesAreNot) {
  ReadBytes(
      "[GUN\xC4]\r\nNickName = Laser\r\n\xDC"
      "bung = X\r\n");
  StoreSections();

  EXPECT_THAT(FieldNames("gunä"), ElementsAre("OX_ID", "SourceFileName", "nickname", "übung"));
  EXPECT_THAT(Column("gunä", "nickname"), ElementsAre("Laser"));
}

TEST_F(GenericSection, TabsStayInKeysAndValuesButNotAtTheEndsOfALine) {
  Read("[gun]\n\tnickname\t=\ta\t\n");
  StoreSections();

  EXPECT_THAT(FieldNames("gun"), ElementsAre("OX_ID", "SourceFileName", "nickname\t"));
  EXPECT_THAT(Column("gun", "nickname\t"), ElementsAre("\ta"));
}

TEST_F(GenericSection, AValueKeepsItsSigns) {
  Read("[gun]\nformula = a = b, c\n");
  StoreSections();

  EXPECT_THAT(Column("gun", "formula"), ElementsAre("a = b, c"));
}

TEST_F(GenericSection, QuotesAreCharactersLikeOthers) {
  Read("[gun's \"x\"]\nnickname = bob's\n\"key\" = it's\n");
  StoreSections();

  EXPECT_THAT(FieldNames("gun's \"x\""),
              ElementsAre("OX_ID", "SourceFileName", "nickname", "\"key\""));
  EXPECT_THAT(Column("gun's \"x\"", "nickname"), ElementsAre("bob's"));
}

TEST_F(GenericSection, TablesOfTheProgramsOwnAreNotTouched) {
  Read("[ships]\nnickname = a\n[VERSION]\nx = 1\n[TradeLanes]\nx = 1\n[Groups]\nnickname = b\n");
  StoreSections();

  EXPECT_THAT(FailureNumbers(), ElementsAre(3010, 3010, 3010, 3010));
  EXPECT_EQ(log.Failures()[0].What.Description, "Table 'ships' already exists.");
  EXPECT_THAT(Rows("Ships"), IsEmpty());
  EXPECT_THAT(TableNames(), SizeIs(FixedTables().size()));
}

TEST_F(GenericSection, KeysNamedLikeTheFixedFieldsAreDropped) {
  Read("[gun]\nnickname = a\nOX_ID = 7\nSourceFileName = x\nmass = 2\n");
  StoreSections();

  EXPECT_THAT(FailureNumbers(), ElementsAre(3191, 3191));
  EXPECT_EQ(log.Failures()[0].What.Description, "Can't define field more than once.");
  EXPECT_EQ(Rows("gun")[0].at("OX_ID"), 1);
  EXPECT_EQ(Rows("gun")[0].at("SourceFileName"), "\\data\\test.ini");
  EXPECT_EQ(Rows("gun")[0].at("mass"), "2");
}

TEST_F(GenericSection, AFailureTellsForeignLettersOnce) {
  ReadBytes("[gun]\r\nl\xE4nge = \xFC" + std::string(255, 'x') + "\r\n");

  ASSERT_THAT(FailureNumbers(), ElementsAre(3163));
  EXPECT_THAT(log.Failures()[0].Info, HasSubstr("Field: länge Data: üxxx"));
}

TEST_F(GenericSection, AValueThatIsTooLongIsAFailureWithItsFieldAndData) {
  const std::string value(256, 'x');
  Read("[gun]\nnickname = a\nmass = 1\nname = " + value + "\nhit_pts = 2\n");
  StoreSections();

  EXPECT_THAT(FailureNumbers(), ElementsAre(3163));
  EXPECT_THAT(log.Failures()[0].Info, ::testing::EndsWith("\r\nField: name Data: " + value));
  EXPECT_THAT(log.Failures()[0].Info, StartsWith("While working on - [gun]\r\nnickname = a\r\n"));
  EXPECT_TRUE(Rows("gun")[0].at("name").IsNull());
  EXPECT_EQ(Rows("gun")[0].at("hit_pts"), "2");
}

TEST_F(GenericSection, KeysOfOneBlockFillATableAsFarAsItGoes) {
  std::string text = "[gun]\nnickname = a\n";
  for (int i = 0; i < 3000; ++i) text += "k" + std::to_string(i) + " = 1\n";
  Read(text);
  StoreSections();

  // OX_ID, SourceFileName, nickname and the first 1,997 keys.
  EXPECT_THAT(FieldNames("gun"), SizeIs(2000));
  EXPECT_THAT(FailureNumbers(), SizeIs(1003));
  EXPECT_EQ(Rows("gun")[0].at("k1996"), "1");
}

TEST_F(GenericSection, KeysBeyondTheTablesLimitAreFailuresOfTheirOwn) {
  for (int file = 0; file < 3; ++file) {
    std::string text = "[gun]\nnickname = a" + std::to_string(file) + "\n";
    for (int i = 0; i < 1000; ++i) text += "k" + std::to_string(file * 1000 + i) + " = 1\n";
    Read(text);
  }
  StoreSections();

  // OX_ID, SourceFileName, nickname and the first 1,997 keys.
  EXPECT_THAT(FieldNames("gun"), SizeIs(2000));
  EXPECT_EQ(FieldNames("gun").back(), "k1996");
  EXPECT_THAT(FailureNumbers(), SizeIs(1003));
  EXPECT_THAT(FailureNumbers(), ::testing::Each(3190));
  EXPECT_THAT(Rows("gun"), SizeIs(3));
}

TEST_F(GenericSection, RowsOfSeveralFilesStandInOneTable) {
  folder.Write("DATA/Equipment/Weapon_Equip.ini", "[gun]\r\nnickname = b\r\n");
  Read("[gun]\nnickname = a\n");

  ReadINI(import, Path("\\data\\equipment\\weapon_equip.ini"), "");
  StoreSections();

  EXPECT_THAT(Column("gun", "SourceFileName"),
              ElementsAre("\\data\\test.ini", "\\data\\equipment\\weapon_equip.ini"));
  EXPECT_THAT(Column("gun", "OX_ID"), ElementsAre("1", "2"));
}

TEST_F(GenericSection, TablesStandInOrderOfAppearance) {
  Read("[z]\nx = 1\n[b]\nx = 1\n[z]\nx = 2\n");
  StoreSections();

  const auto names = TableNames();
  ASSERT_THAT(names, SizeIs(FixedTables().size() + 2));
  EXPECT_EQ(names[names.size() - 2], "z");
  EXPECT_EQ(names.back(), "b");
}

TEST_F(GenericSection, CancelAfterAFailureEndsTheFile) {
  messages.Answer = MessageAnswer::Cancel;

  Read("[ships]\nx = 1\n[gun]\nnickname = a\n");
  StoreSections();

  EXPECT_THAT(TableNames(), SizeIs(FixedTables().size()));
}

TEST_F(GenericSection, ALineWithoutMemoryIsLeftOutAndTheNextOneIsStored) {
  host.Answer = MessageAnswer::Ignore;
  const std::string block = "[gun]\nnickname = laser\nlong = " + std::string(5000, 'x') +
                            "\xE9\nother = " + std::string(200, 'c') +
                            "\nlast = l\nfiller = " + std::string(200, 'f') + "\n";
  {
    // A text of 5,000 characters; the block and its copies are longer.
    const FailingSizes lack(5000, 5100);
    Read(block);
  }
  StoreSections();

  const auto rows = Rows("gun");
  ASSERT_THAT(rows, SizeIs(1));
  EXPECT_EQ(rows[0].at("nickname"), "laser");
  EXPECT_EQ(rows[0].at("last"), "l");
  EXPECT_FALSE(rows[0].contains("long"));
  EXPECT_THAT(host.Shown, SizeIs(1));
}

}  // namespace
}  // namespace orrerix
