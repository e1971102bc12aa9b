// SPDX-License-Identifier: MIT
#include "shell/language.h"

#include <csignal>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/language_texts.h"
#include "support/failing_disk.h"
#include "support/failure_sinks.h"
#include "support/fake_message_boxes.h"
#include "support/temp_folder.h"

#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace orrerix {
namespace {

namespace fs = std::filesystem;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class LanguageFileTest : public ::testing::Test {
 protected:
  FailTest mustWork;
  FakeMessageBoxes messages;
  ErrorLog log{messages, AppVersion{1, 0, 0}};
  TempFolder folder;
  LanguageChoice choice;
  LanguageFile language{log, folder.Path(), JetVersionOption::Version30, choice};
};

TEST_F(LanguageFileTest, IsFilledByTheFirstText) {
  EXPECT_EQ(language.Text(TextId::JumpGateLines), "Jumpgate Lines");

  EXPECT_EQ(language.Path(), folder.Path() / "FLOX-Language.mdb");
  EXPECT_TRUE(fs::exists(language.Path()));
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(LanguageFileTest, HasTenTablesOfWhichThreeAreFilled) {
  language.InitLanguages();

  Database file = DBEngine::OpenDatabase(mustWork, language.Path());
  const auto tables = file.TableDefs(mustWork);
  ASSERT_THAT(tables, SizeIs(10));
  for (std::size_t i = 0; i < tables.size(); ++i) {
    EXPECT_EQ(tables[i].Name, "Lang" + std::to_string(i));
    Recordset rows = file.OpenRecordset(mustWork, "SELECT * FROM " + tables[i].Name);
    EXPECT_EQ(rows.RecordCount(), i < 3 ? 29u : 0u);
  }
  EXPECT_EQ(tables[0].Fields[0].Type, FieldType::Integer);
  EXPECT_EQ(tables[0].Fields[1].Size, 255u);
  EXPECT_TRUE(tables[0].Fields[1].AllowZeroLength);
}

TEST_F(LanguageFileTest, GivesEveryTextInTheCurrentLanguage) {
  for (const Language current : {Language::English, Language::German, Language::French}) {
    language.SetCurrent(current);
    for (const LanguageText& text : StoredTexts()) {
      EXPECT_EQ(language.Text(text.Id), TextIn(current, text.Id));
    }
  }
}

TEST_F(LanguageFileTest, AMissingTextIsNoFailure) {
  EXPECT_EQ(language.Text(static_cast<TextId>(-1)), "?????");
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(LanguageFileTest, LanguagesThatAreEmptyHaveNoTexts) {
  for (const int current : {3, 6, 7, 9}) {
    language.SetCurrent(static_cast<Language>(current));
    EXPECT_EQ(language.Text(TextId::LanguageName), "?????");
  }
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(LanguageFileTest, ATextIsWrittenOverTheOneThatStands) {
  language.InitLanguages();

  language.SetLanguage(3, {"a", "", "c"});

  EXPECT_EQ(language.Text(TextId::JumpGateLines), "a");
  language.SetCurrent(Language::German);
  EXPECT_EQ(language.Text(TextId::JumpGateLines), "");
  Database file = DBEngine::OpenDatabase(mustWork, language.Path());
  EXPECT_EQ(file.OpenRecordset(mustWork, "SELECT * FROM Lang0").RecordCount(), 29u);
}

TEST_F(LanguageFileTest, EditsAreGoneAfterTheNextStart) {
  language.InitLanguages();
  language.SetLanguage(3, {"a", "b", "c"});
  language.SetLanguage(100, {"x", "y", "z"});

  language.InitLanguages();

  EXPECT_EQ(language.Text(TextId::JumpGateLines), "Jumpgate Lines");
  Database file = DBEngine::OpenDatabase(mustWork, language.Path());
  EXPECT_EQ(file.OpenRecordset(mustWork, "SELECT * FROM Lang0").RecordCount(), 30u);
}

TEST_F(LanguageFileTest, ATableThatIsMissingIsMadeWithTheNextTexts) {
  language.InitLanguages();
  DBEngine::OpenDatabase(mustWork, language.Path()).Execute(mustWork, "DROP TABLE Lang1");
  language.SetCurrent(Language::German);

  language.Text(TextId::JumpGateLines);
  language.Text(TextId::JumpHoleLines);
  ASSERT_THAT(log.Failures(), SizeIs(2));
  EXPECT_EQ(log.Failures()[1].Source, "Settings.TXT");
  EXPECT_EQ(log.Failures()[1].Info, "While reading setting: 4");

  language.InitLanguages();
  Database file = DBEngine::OpenDatabase(mustWork, language.Path());
  EXPECT_TRUE(file.HasTable("Lang1"));
  EXPECT_EQ(language.Text(TextId::JumpGateLines), "Sprungtor Linien");
  EXPECT_THAT(log.Failures(), SizeIs(2));
}

TEST_F(LanguageFileTest, ATextThatCannotBeWrittenIsOneFailureAndTheNextOnesStand) {
  language.InitLanguages();
  {
    Database file = DBEngine::OpenDatabase(mustWork, language.Path());
    file.ExecuteNative(mustWork,
                       "DROP TABLE Lang0; CREATE TABLE Lang0 (ID SHORT INT CHECK (ID <> 4), Text)");
  }

  language.InitLanguages();

  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].Source, "Settings.SetLanguage");
  EXPECT_EQ(log.Failures()[0].Info, "While writing language-text");
  EXPECT_EQ(language.Text(TextId::JumpGateLines), "Jumpgate Lines");
  EXPECT_EQ(language.Text(TextId::JumpHoleLines), "?????");
  EXPECT_EQ(language.Text(TextId::TradeLaneLines), "Tradelane Lines");
}

TEST_F(LanguageFileTest, CancelSkipsOneTextOnly) {
  language.InitLanguages();
  DBEngine::OpenDatabase(mustWork, language.Path())
      .ExecuteNative(mustWork,
                     "DROP TABLE Lang0; DELETE FROM Lang1; "
                     "CREATE TABLE Lang0 (ID SHORT INT CHECK (ID <> 4), Text)");
  messages.Answer = MessageAnswer::Cancel;

  language.InitLanguages();

  EXPECT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(language.Text(TextId::TradeLaneLines), "Tradelane Lines");
  language.SetCurrent(Language::German);
  EXPECT_EQ(language.Text(TextId::JumpHoleLines),
            "?????");  // its German text came after the step that failed
}

TEST_F(LanguageFileTest, AKillDuringItsFirstFillingLeavesNothingThatStays) {
  folder.Write("FLOX-Language.mdb.new", "half a file");

  EXPECT_EQ(language.Text(TextId::JumpGateLines), "Jumpgate Lines");

  EXPECT_THAT(log.Failures(), IsEmpty());
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "FLOX-Language.mdb.new"));
}

// Windows has no way to go on in a copy of the process.
#ifndef _WIN32
TEST_F(LanguageFileTest,
       AProgramKilledAtAnyMomentOfTheFirstFillingLeavesAFileThatTheNextStartRepairs) {
  const std::filesystem::path file = folder.Path() / "FLOX-Language.mdb";
  for (int round = 0; round < 10; ++round) {
    std::filesystem::remove(file);
    const pid_t child = fork();
    if (child == 0) {
      language.InitLanguages();
      _exit(0);
    }
    // Whatever moment this hits, what follows must hold.
    usleep(static_cast<useconds_t>(1000 * round));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);

    language.InitLanguages();

    EXPECT_EQ(language.Text(TextId::JumpGateLines), "Jumpgate Lines") << round;
    EXPECT_THAT(log.Failures(), IsEmpty()) << round;
  }
}
#endif

TEST_F(LanguageFileTest, CancelInAFailureGivesAnEmptyText) {
  folder.Write("FLOX-Language.mdb", std::string(5000, 'x'));
  messages.Answer = MessageAnswer::Cancel;

  EXPECT_EQ(language.Text(TextId::JumpGateLines), "");
  EXPECT_THAT(log.Failures(), SizeIs(1));
}

TEST_F(LanguageFileTest, AFolderThatIsNotThereIsAFailure) {
  LanguageFile nowhere(log, folder.Path() / "none", JetVersionOption::Version30, choice);
  messages.Answer = MessageAnswer::Cancel;

  EXPECT_EQ(nowhere.Text(TextId::JumpGateLines), "");
  ASSERT_THAT(log.Failures(), Not(IsEmpty()));
  EXPECT_EQ(log.Failures()[0].Source, "Settings.CreateLanguageFile");
  EXPECT_EQ(log.Failures()[0].Info, "While creating language database");
}

TEST(AFixedLanguage, NeedsNoFile) {
  EXPECT_EQ(FixedLanguage(Language::French).Text(TextId::Price), "Prix");
  EXPECT_EQ(FixedLanguage(static_cast<Language>(7)).Text(TextId::Price), "?????");
}

// The disk fails at each operation in turn.
class LanguageFileOnABadDisk : public LanguageFileTest,
                               public ::testing::WithParamInterface<DiskTrouble> {
 protected:
  // The 29 texts of a language are there, and nothing but the file.
  void ExpectWhole() {
    Database file = DBEngine::OpenDatabase(mustWork, language.Path());
    EXPECT_EQ(file.OpenRecordset(mustWork, "SELECT * FROM Lang1").RecordCount(), 29u);
    EXPECT_EQ(language.Text(TextId::JumpGateLines), "Jumpgate Lines");
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
      EXPECT_EQ(entry.path().filename(), "FLOX-Language.mdb");
    }
  }

  void ExpectTheFilesName(std::size_t since) {
    if (log.Failures().size() == since) return;
    EXPECT_THAT(log.Failures()[since].What.Description, ::testing::HasSubstr("FLOX-Language.mdb"));
  }
};

TEST_P(LanguageFileOnABadDisk, IsMadeWholeOrNotAtAll) {
  int operations = 0;
  for (bool happened = true; happened; ++operations) {
    std::filesystem::remove(language.Path());
    const std::size_t before = log.Failures().size();
    {
      const FailingDisk trouble(GetParam(), operations);
      language.InitLanguages();
      happened = trouble.Happened();
    }
    const bool failed = log.Failures().size() > before;
    EXPECT_EQ(std::filesystem::exists(language.Path()), !failed);
    ExpectTheFilesName(before);

    language.InitLanguages();
    ExpectWhole();
    ASSERT_FALSE(HasFailure()) << operations;
  }
  EXPECT_GT(operations, 3);
}

TEST_P(LanguageFileOnABadDisk, KeepsItsTextsUntilAllNewOnesAreIn) {
  language.InitLanguages();
  int operations = 0;
  for (bool happened = true; happened; ++operations) {
    language.SetLanguage(3, {"old", "alt", "vieux"});
    const std::size_t before = log.Failures().size();
    {
      const FailingDisk trouble(GetParam(), operations);
      language.InitLanguages();
      happened = trouble.Happened();
    }
    const bool failed = log.Failures().size() > before;
    EXPECT_EQ(language.Text(TextId::JumpGateLines), failed ? "old" : "Jumpgate Lines");
    ExpectTheFilesName(before);

    language.InitLanguages();
    ExpectWhole();
    ASSERT_FALSE(HasFailure()) << operations;
  }
  EXPECT_GT(operations, 3);
}

INSTANTIATE_TEST_SUITE_P(ErrorAndFull, LanguageFileOnABadDisk,
                         ::testing::Values(DiskTrouble::Error, DiskTrouble::Full));

}  // namespace
}  // namespace orrerix
