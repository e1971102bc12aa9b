// SPDX-License-Identifier: MIT
#include "shell/startup.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "db/schema.h"
#include "platform/folder_lock.h"
#include "shell/language_texts.h"
#include "support/failure_sinks.h"
#include "support/fake_message_boxes.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;
using ::testing::IsEmpty;

// A registry that knows the user's folders only.
class FoldersRegistry : public Registry {
 public:
  explicit FoldersRegistry(fs::path folder) : folder_(std::move(folder)) {}
  std::optional<RegistryValue> Query(RegistryHive, std::string_view,
                                     std::string_view value) const override {
    return std::string(value);
  }
  std::optional<std::string> RealPath(std::string_view path) const override {
    return (folder_ / path).string();
  }

 private:
  fs::path folder_;
};

class Startup : public ::testing::Test {
 protected:
  // A universe file with tables `commodity` and, if there is a stamp, `Version`.
  void MakeUniverse(const std::string& stamp) {
    Database database = DBEngine::CreateDatabase(mustWork, file, JetVersionOption::Version30);
    database.CreateTable(mustWork, FixedTables()[1]);
    if (stamp.empty()) return;
    database.CreateTable(mustWork, VersionTable());
    Recordset row = database.OpenTable(mustWork, "Version");
    row.AddNew();
    row["Version"] = stamp;
    row.Update();
  }

  UniverseState Examine() { return ExamineUniverse(mustWork, folder.Path(), {1, 7, 3}); }

  FailTest mustWork;
  FakeMessageBoxes messages;
  ErrorLog log{messages, AppVersion{1, 7, 3}};
  TempFolder folder;
  fs::path file = folder.Path() / "Orrerix.fl";
};

TEST_F(Startup, TheOlderFormatIsTriedFirst) {
  EXPECT_EQ(CheckJetDatabase(folder.Path()), JetVersionOption::Version30);
  EXPECT_THAT(fs::exists(folder.Path() / "Test.mdb"), false);
}

TEST_F(Startup, ATestFileLeftOverIsReplaced) {
  folder.Write("Test.mdb", "left over");

  EXPECT_EQ(CheckJetDatabase(folder.Path()), JetVersionOption::Version30);
  EXPECT_FALSE(fs::exists(folder.Path() / "Test.mdb"));
}

TEST_F(Startup, WhereNoFileCanBeMadeThereIsNoFormat) {
  EXPECT_FALSE(CheckJetDatabase(folder.Path() / "none"));
}

TEST_F(Startup, WithoutAFileThereIsNoUniverse) {
  EXPECT_EQ(Examine(), UniverseState::Absent);
}

TEST_F(Startup, AFileOfThisVersionIsUsableWhateverItsRevision) {
  MakeUniverse("17");

  EXPECT_EQ(Examine(), UniverseState::Usable);
  EXPECT_EQ(ExamineUniverse(mustWork, folder.Path(), {1, 7, 99}), UniverseState::Usable);
  EXPECT_TRUE(fs::exists(file));
}

TEST_F(Startup, VersionsOfTheSameDigitsShareAFile) {
  MakeUniverse("110");

  EXPECT_EQ(ExamineUniverse(mustWork, folder.Path(), {1, 10, 0}), UniverseState::Usable);
  EXPECT_EQ(ExamineUniverse(mustWork, folder.Path(), {11, 0, 0}), UniverseState::Usable);
}

TEST_F(Startup, AFileOfAnotherVersionIsDeleted) {
  MakeUniverse("16");

  EXPECT_EQ(Examine(), UniverseState::Absent);
  EXPECT_FALSE(fs::exists(file));
}

TEST_F(Startup, TheLeftoversOfABrokenImportAreDeleted) {
  MakeUniverse("");

  EXPECT_EQ(Examine(), UniverseState::Absent);
  EXPECT_FALSE(fs::exists(file));
}

TEST_F(Startup, AVersionTableWithoutARowIsNotEnough) {
  DBEngine::CreateDatabase(mustWork, file, JetVersionOption::Version30)
      .CreateTable(mustWork, VersionTable());

  EXPECT_EQ(Examine(), UniverseState::Absent);
}

TEST_F(Startup, ADamagedFileIsDeleted) {
  for (const std::string& content : {std::string(), std::string(5000, 'x'), std::string("x")}) {
    folder.Write("Orrerix.fl", content);
    EXPECT_EQ(Examine(), UniverseState::Absent);
    EXPECT_FALSE(fs::exists(file));
  }
}

TEST_F(Startup, AFileCutShortIsNeverAFailureOfTheStart) {
  MakeUniverse("17");
  const auto size = fs::file_size(file);
  const TempFolder other;

  for (std::uintmax_t length = 0; length < size; length += 509) {
    fs::remove(other.Path() / "Orrerix.fl");
    fs::copy_file(file, other.Path() / "Orrerix.fl");
    fs::resize_file(other.Path() / "Orrerix.fl", length);
    EXPECT_EQ(ExamineUniverse(mustWork, other.Path(), {1, 7, 3}), UniverseState::Absent) << length;
  }
}

TEST_F(Startup, WhatCannotBeDeletedIsAFailure) {
  fs::create_directories(file / "inside");
  RecordFailures failures;

  EXPECT_EQ(ExamineUniverse(failures, folder.Path(), {1, 7, 3}), UniverseState::Undeletable);
  EXPECT_THAT(failures.Numbers(), ::testing::ElementsAre(75));
}

TEST_F(Startup, TheSaveFolderLiesBelowThePersonalOne) {
  EXPECT_EQ(SaveFolderBelow(folder.Path()),
            folder.Path() / "My Games" / "Freelancer" / "Accts" / "SinglePlayer");
}

TEST_F(Startup, ASaveFolderOfAnotherCaseCounts) {
  fs::create_directories(folder.Path() / "my games" / "FREELANCER" / "accts" / "singleplayer");

  EXPECT_TRUE(fs::equivalent(SaveFolderBelow(folder.Path()),
                             folder.Path() / "my games" / "FREELANCER" / "accts" / "singleplayer"));
}

class Shortcuts : public Startup {
 protected:
  Shortcuts() {
    fs::create_directories(folder.Path() / "Desktop");
    fs::create_directories(folder.Path() / "Programs");
  }

  void Make() {
    MakeShortcuts(log, mustWork, registry, folder.Path(), folder.Path() / "orrerix", {1, 7, 3});
  }

  std::size_t FilesIn(const std::string& name) {
    const fs::directory_iterator entries(folder.Path() / name);
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
  }

  FoldersRegistry folders{folder.Path()};
  GameRegistry registry{log, folders};
};

TEST_F(Shortcuts, AreMadeWhereTheMarkerIs) {
  folder.Write("CopyLnk", "");

  Make();

  EXPECT_EQ(FilesIn("Desktop"), 1u);
  EXPECT_EQ(FilesIn("Programs/FL Orrerix"), 1u);
  const std::string name =
      fs::directory_iterator(folder.Path() / "Desktop")->path().filename().string();
  EXPECT_TRUE(name.starts_with("FL Orrerix v1.7.")) << name;
  EXPECT_FALSE(fs::exists(folder.Path() / "CopyLnk"));
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(Shortcuts, AreMadeIntoAFolderThatIsThereAlready) {
  folder.Write("CopyLnk", "");
  folder.Write("Programs/FL Orrerix/other", "");

  Make();

  EXPECT_EQ(FilesIn("Programs/FL Orrerix"), 2u);
}

TEST_F(Shortcuts, AreMadeOncePerInstallation) {
  folder.Write("CopyLnk", "");
  Make();
  fs::remove_all(folder.Path() / "Desktop");
  fs::create_directories(folder.Path() / "Desktop");

  Make();

  EXPECT_EQ(FilesIn("Desktop"), 0u);
}

TEST_F(Shortcuts, AFolderThatIsNotThereIsAFailureAndTheOthersFollow) {
  folder.Write("CopyLnk", "");
  fs::remove_all(folder.Path() / "Desktop");

  Make();

  ASSERT_THAT(log.Failures(), ::testing::SizeIs(1));
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.CreateLink");
  EXPECT_EQ(log.Failures()[0].Info, "");
  EXPECT_EQ(FilesIn("Programs/FL Orrerix"), 1u);
}

TEST(Captions, NameTheVersion) {
  EXPECT_EQ(StartCaption({1, 7, 3}), "FreeLancer Orrerix v1.7 Revision 3");
  EXPECT_EQ(MapCaption({1, 7, 3}), "FL Orrerix v1.7 Revision 3");
}

TEST(MissingExecutable, IsToldLineByLine) {
  EXPECT_EQ(FormatIn(Language::English, TextId::GameMissing, "C:\\x"),
            "Problem finding [\\exe\\Freelancer.exe] in the folder of ur Registry-Setting:\r\n"
            "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Microsoft Games\\Freelancer\\1.0 Value "
            "AppPath  which is showing:\r\n[C:\\x]\r\n\r\n"
            "To fix it - REINSTALL FreeLancer! (or type the Path in...)");
}

class SpoilerSwitch : public Startup {
 protected:
  SpoilerSwitch() {
    Database database = DBEngine::CreateDatabase(mustWork, file, JetVersionOption::Version30);
    database.CreateTable(mustWork, FixedTables()[0]);
  }
  std::size_t Rows() {
    Database database = DBEngine::OpenDatabase(mustWork, file);
    return database.OpenRecordset(mustWork, "SELECT * FROM OXWarning").RecordCount();
  }
};

TEST_F(SpoilerSwitch, TheFirstDisplayMakesItsRowAndWantsTheWarning) {
  EXPECT_TRUE(IsWarningWanted(mustWork, file));

  EXPECT_EQ(Rows(), 1u);
}

TEST_F(SpoilerSwitch, LaterDisplaysKeepTheRow) {
  IsWarningWanted(mustWork, file);

  EXPECT_TRUE(IsWarningWanted(mustWork, file));
  EXPECT_EQ(Rows(), 1u);
}

TEST_F(SpoilerSwitch, AWarningThatIsSwitchedOffIsNotWanted) {
  {
    Database database = DBEngine::OpenDatabase(mustWork, file);
    database.Execute(mustWork, "INSERT INTO OXWarning VALUES (1)");
  }

  EXPECT_FALSE(IsWarningWanted(mustWork, file));
}

TEST_F(Startup, AFileThatAnotherProcessHoldsIsLeftAlone) {
  MakeUniverse("");
  Database holder = DBEngine::OpenDatabase(mustWork, file);
  holder.ExecuteNative(mustWork, "BEGIN EXCLUSIVE");

  EXPECT_EQ(Examine(), UniverseState::InUse);
  EXPECT_TRUE(fs::exists(file));

  holder.Close();
  EXPECT_EQ(Examine(), UniverseState::Absent);  // it has no stamp
}

TEST_F(Startup, AFolderThatAnImportHoldsIsLeftAlone) {
  MakeUniverse("");
  const auto import = FolderLock::TryHold(folder.Path());

  EXPECT_EQ(Examine(), UniverseState::InUse);
  EXPECT_TRUE(fs::exists(file));
}

TEST_F(Startup, TheQuestionNamesTheFileInTheChosenLanguage) {
  for (const Language language : {Language::English, Language::German, Language::French}) {
    const Message question = UniverseInUseQuestion(language, file, {1, 7, 3});
    EXPECT_NE(question.Text.find("'" + file.string() + "'"), std::string::npos);
    EXPECT_EQ(question.Buttons, MessageButtons::RetryLeave);
  }
  EXPECT_NE(UniverseInUseQuestion(Language::German, file, {1, 7, 3}).Text.find("benutzt"),
            std::string::npos);
  EXPECT_NE(FolderMissingMessage(Language::French, file, {1, 7, 3}).Text.find("Le dossier"),
            std::string::npos);
}

TEST_F(Startup, AMarkerThatCannotBeDeletedIsAFailure) {
  folder.Write("CopyLnk/inside", "x");
  FoldersRegistry folders(folder.Path());
  const GameRegistry registry(log, folders);
  RecordFailures failures;

  MakeShortcuts(log, failures, registry, folder.Path(), folder.Path() / "orrerix", {1, 7, 3});

  EXPECT_EQ(failures.Numbers(), std::vector<int>{75});
}

}  // namespace
}  // namespace orrerix
