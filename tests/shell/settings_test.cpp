// SPDX-License-Identifier: MIT
#include "shell/settings.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/failing_disk.h"
#include "support/failure_sinks.h"
#include "support/fake_message_boxes.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class SettingsFile : public ::testing::Test {
 protected:
  Recordset Row(const std::string& key) {
    Database file = DBEngine::OpenDatabase(mustWork, settings.Path());
    return file.OpenRecordset(mustWork, "SELECT * FROM Settings WHERE ID = '{}'", {key});
  }

  void Execute(const std::string& statement) {
    DBEngine::OpenDatabase(mustWork, settings.Path()).Execute(mustWork, statement);
  }

  FailTest mustWork;
  FakeMessageBoxes messages;
  ErrorLog log{messages, AppVersion{1, 0, 0}};
  TempFolder folder;
  Settings settings{log, folder.Path(), JetVersionOption::Version30};
};

TEST_F(SettingsFile, IsMadeByTheFirstRead) {
  EXPECT_EQ(settings.ReadSetting("LANG"), "0");

  EXPECT_EQ(settings.Path(), folder.Path() / "FLOX-Settings.mdb");
  EXPECT_TRUE(fs::exists(settings.Path()));
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(SettingsFile, HasThirteenDefaultsInTheirOrder) {
  settings.CreateSettings();

  Database file = DBEngine::OpenDatabase(mustWork, settings.Path());
  std::string all;
  for (Recordset rows = file.OpenRecordset(mustWork, "SELECT * FROM Settings"); !rows.AtEnd();
       rows.MoveNext()) {
    all += rows["ID"].Get().Text() + "|" + rows["Text"].Get().Text() + "|" +
           rows["Value"].Get().Text() + "\n";
  }
  EXPECT_EQ(all,
            "SET1-0|Empty Backgrounds|0\nSET1-1|System Backgrounds|0\nSET1-2|Jumpgate Lines|1\n"
            "SET1-3|Jumphole Lines|1\nSET1-4|Tradelane Lines|1\nSET1-5|System Names|1\n"
            "SET2-0|Empty Backgrounds|1\nSET2-1|System Backgrounds|1\nSET2-2|Jumpgate Lines|1\n"
            "SET2-3|Jumphole Lines|1\nSET2-4|Tradelane Lines|1\nSET2-5|System Names|1\n"
            "LANG|Language|0\n");
  const TableDef table = file.TableDefs(mustWork).front();
  EXPECT_EQ(table.Fields[0].Size, 15u);
  EXPECT_EQ(table.Fields[1].Type, FieldType::Memo);
}

TEST_F(SettingsFile, KeepsWhatIsWritten) {
  settings.ReadSetting("LANG");

  settings.WriteSettingValue("LANG", "2");
  settings.WriteSettingValue("SET1-0", "1");

  EXPECT_EQ(settings.ReadSetting("LANG"), "2");
  EXPECT_EQ(settings.ReadSetting("set1-0"), "1");
  EXPECT_EQ(Row("LANG")["Text"].Get(), "Language");
}

TEST_F(SettingsFile, AMissingKeyCostsAllOtherSettings) {
  settings.ReadSetting("LANG");
  settings.WriteSettingValue("SET1-0", "1");
  Execute("DELETE FROM Settings WHERE ID = 'LANG'");

  EXPECT_EQ(settings.ReadSetting("LANG"), "0");
  EXPECT_EQ(settings.ReadSetting("SET1-0"), "0");
}

TEST_F(SettingsFile, WritingAKeyThatIsMissingAddsItWithoutADescription) {
  settings.ReadSetting("LANG");
  Execute("DELETE FROM Settings WHERE ID = 'LANG'");

  settings.WriteSettingValue("LANG", "1");

  EXPECT_EQ(Row("LANG")["Value"].Get(), "1");
  EXPECT_EQ(Row("LANG")["Text"].Get().Text(), "");
}

TEST_F(SettingsFile, AnEmptyValueIsAnEmptyText) {
  settings.ReadSetting("LANG");
  settings.WriteSettingValue("LANG", "");

  EXPECT_EQ(settings.ReadSetting("LANG"), "");
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(SettingsFile, AKeyThatIsNoneOfThemIsEmpty) {
  EXPECT_EQ(settings.ReadSetting("SET3-0"), "");
  EXPECT_EQ(settings.ReadSetting("LANG"), "0");
}

TEST_F(SettingsFile, AKeyWithAQuoteIsAFailure) {
  messages.Answer = MessageAnswer::Cancel;
  settings.ReadSetting("LANG");

  EXPECT_EQ(settings.ReadSetting("it's"), "");

  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].What.Number, 3075);
  EXPECT_EQ(log.Failures()[0].Source, "Settings.ReadSetting");
  EXPECT_EQ(log.Failures()[0].Info, "While reading setting: it's");
}

TEST_F(SettingsFile, ADamagedFileIsMadeAnewAfterOk) {
  folder.Write("FLOX-Settings.mdb", std::string(5000, 'x'));

  EXPECT_EQ(settings.ReadSetting("LANG"), "0");

  EXPECT_THAT(log.Failures(), Not(IsEmpty()));
  EXPECT_EQ(settings.ReadSetting("SET1-2"), "1");
}

TEST_F(SettingsFile, ADamagedFileGivesNothingAfterCancel) {
  folder.Write("FLOX-Settings.mdb", std::string(5000, 'x'));
  messages.Answer = MessageAnswer::Cancel;

  EXPECT_EQ(settings.ReadSetting("LANG"), "");
  EXPECT_THAT(log.Failures(), SizeIs(1));
}

TEST_F(SettingsFile, WritingDoesNotMakeTheFile) {
  messages.Answer = MessageAnswer::Cancel;

  settings.WriteSettingValue("LANG", "1");

  EXPECT_FALSE(fs::exists(settings.Path()));
  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].Source, "Settings.WriteSettingValue");
  EXPECT_EQ(log.Failures()[0].Info, "While saveing settings");
}

TEST_F(SettingsFile, AFileThatCannotBeLookedAtIsAFailureAndIsMadeAnewAfterOk) {
  std::error_code error;
  fs::create_symlink("FLOX-Settings.mdb", settings.Path(), error);  // a link to itself
  if (error) GTEST_SKIP() << "no links can be made here";

  EXPECT_EQ(settings.ReadSetting("LANG"), "0");

  ASSERT_THAT(log.Failures(), Not(IsEmpty()));
  EXPECT_EQ(log.Failures()[0].What.Number, 75);
  EXPECT_EQ(log.Failures()[0].Source, "Settings.ReadSetting");
}

TEST_F(SettingsFile, AFileThatCannotBeDeletedIsAFailure) {
  folder.Write("FLOX-Settings.mdb/inside", "x");

  EXPECT_EQ(settings.ReadSetting("LANG"), "");

  const auto& failures = log.Failures();
  EXPECT_TRUE(std::any_of(failures.begin(), failures.end(), [](const FailureEntry& entry) {
    return entry.What.Number == 75 &&
           entry.What.Description.find("cannot delete") != std::string::npos;
  }));
}

TEST_F(SettingsFile, AFolderThatIsNotThereIsAFailure) {
  Settings nowhere(log, folder.Path() / "none", JetVersionOption::Version30);
  messages.Answer = MessageAnswer::Cancel;

  EXPECT_EQ(nowhere.ReadSetting("LANG"), "");
  ASSERT_THAT(log.Failures(), Not(IsEmpty()));
  EXPECT_EQ(log.Failures()[0].Source, "Settings.CreateSettings");
  EXPECT_EQ(log.Failures()[0].Info, "While creating default setting database");
}

// The disk fails at each operation in turn.
class SettingsOnABadDisk : public SettingsFile, public ::testing::WithParamInterface<DiskTrouble> {
 protected:
  // Runs a step with a failing disk, then `look`, until the step has nothing left that could fail.
  template <typename Begin, typename Step, typename Look>
  void AtEveryOperation(const Begin& begin, const Step& step, const Look& look) {
    int operations = 0;
    for (bool happened = true; happened; ++operations) {
      begin();
      const std::size_t before = log.Failures().size();
      {
        const FailingDisk trouble(GetParam(), operations);
        step();
        happened = trouble.Happened();
      }
      look(log.Failures().size() > before);
      if (log.Failures().size() > before) {
        EXPECT_THAT(log.Failures()[before].What.Description, HasSubstr("FLOX-Settings.mdb"));
      }
      ASSERT_FALSE(HasFailure()) << operations;
    }
    EXPECT_GT(operations, 3);
  }

  std::vector<fs::path> Files() const {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder.Path())) {
      files.push_back(entry.path().filename());
    }
    return files;
  }

  std::size_t Rows() {
    Database file = DBEngine::OpenDatabase(mustWork, settings.Path());
    return file.OpenRecordset(mustWork, "SELECT * FROM Settings").RecordCount();
  }
};

TEST_P(SettingsOnABadDisk, AreMadeWholeOrNotAtAll) {
  AtEveryOperation([&] { fs::remove(settings.Path()); }, [&] { settings.CreateSettings(); },
                   [&](bool failed) {
                     EXPECT_EQ(fs::exists(settings.Path()), !failed);
                     EXPECT_EQ(settings.ReadSetting("SET1-2"), "1");
                     EXPECT_EQ(Rows(), 13u);
                     EXPECT_THAT(Files(), ElementsAre("FLOX-Settings.mdb"));
                   });
}

TEST_P(SettingsOnABadDisk, KeepTheOldValueOrTakeTheNewOne) {
  settings.CreateSettings();
  std::string before = "0";
  int next = 1;

  AtEveryOperation([&] { before = settings.ReadSetting("LANG"); },
                   [&] { settings.WriteSettingValue("LANG", std::to_string(++next)); },
                   [&](bool failed) {
                     EXPECT_EQ(settings.ReadSetting("LANG"),
                               failed ? before : std::to_string(next));
                     EXPECT_EQ(Rows(), 13u);
                     settings.WriteSettingValue("LANG", std::to_string(++next));
                     EXPECT_EQ(settings.ReadSetting("LANG"), std::to_string(next));
                     EXPECT_THAT(Files(), ElementsAre("FLOX-Settings.mdb"));
                   });
}

TEST_P(SettingsOnABadDisk, AreReadOnceTheDiskIsWellAgain) {
  AtEveryOperation([&] { fs::remove(settings.Path()); }, [&] { settings.ReadSetting("SET1-2"); },
                   [&](bool) { EXPECT_EQ(settings.ReadSetting("SET1-2"), "1"); });
}

INSTANTIATE_TEST_SUITE_P(ErrorAndFull, SettingsOnABadDisk,
                         ::testing::Values(DiskTrouble::Error, DiskTrouble::Full));

}  // namespace
}  // namespace orrerix
