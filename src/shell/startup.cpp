// SPDX-License-Identifier: MIT
#include "shell/startup.h"

#include <fmt/format.h>

#include "platform/folder_lock.h"
#include "platform/game_path.h"
#include "platform/path_text.h"
#include "platform/shortcut.h"
#include "shell/files.h"
#include "shell/language_texts.h"
#include "shell/routine.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

// Remembers that something failed; the caller looks and goes another way.
class Probe : public FailureSink {
 public:
  void Fail(const Failure& failure) override {
    failed_ = true;
    inUse_ = inUse_ || failure.Number == failure_number::kFileInUse;
  }
  bool Failed() const { return failed_; }
  bool InUse() const { return inUse_; }

 private:
  bool failed_ = false;
  bool inUse_ = false;
};

bool CanCreate(const fs::path& path, JetVersionOption option) {
  Probe probe;
  Database test = DBEngine::CreateDatabase(probe, path, option);
  test.Close();
  return !probe.Failed();
}

bool IsOfVersion(Probe& probe, const fs::path& file, const AppVersion& version) {
  Database universe = DBEngine::OpenDatabase(probe, file);
  Recordset row = universe.OpenRecordset(probe, "SELECT * from Version");
  const std::string stamp = row.AtEnd() ? std::string() : row["Version"].Get().Text();
  return !probe.Failed() && stamp == version.Stamp();
}

}  // namespace

std::optional<JetVersionOption> CheckJetDatabase(const fs::path& applicationFolder) {
  const fs::path test = applicationFolder / "Test.mdb";
  std::error_code ignored;
  std::optional<JetVersionOption> works;
  for (const auto option : {JetVersionOption::Version30, JetVersionOption::Version40}) {
    fs::remove(test, ignored);
    if (works || !CanCreate(test, option)) continue;
    works = option;
  }
  fs::remove(test, ignored);
  return works;
}

UniverseState ExamineUniverse(FailureSink& routine, const fs::path& saveFolder,
                              const AppVersion& version) {
  const fs::path file = UniverseFileIn(saveFolder);
  const auto lock = FolderLock::TryHold(saveFolder);
  if (!lock) return UniverseState::InUse;
  if (!FileExists(routine, file)) return UniverseState::Absent;
  Probe probe;
  if (IsOfVersion(probe, file, version)) return UniverseState::Usable;
  if (probe.InUse()) return UniverseState::InUse;
  DeleteFile(routine, file);
  // A journal of the deleted file must not be taken for one of the next.
  fs::path journal = file;
  DeleteFile(routine, journal += "-journal");
  return FileExists(routine, file) ? UniverseState::Undeletable : UniverseState::Absent;
}

bool IsWarningWanted(FailureSink& routine, const fs::path& universeFile) {
  Database universe = DBEngine::OpenDatabase(routine, universeFile);
  constexpr std::string_view rows = "SELECT * FROM OXWarning";
  if (universe.OpenRecordset(routine, rows).AtEnd()) {
    Recordset warning = universe.OpenTable(routine, "OXWarning");
    warning.AddNew();
    warning["off"] = false;
    warning.Update();
  }
  Recordset warning = universe.OpenRecordset(routine, rows);
  return warning.AtEnd() || warning["off"].Get().Number() == 0;
}

fs::path UniverseFileIn(const fs::path& saveFolder) {
  return saveFolder / "Orrerix.fl";
}

fs::path SaveFolderBelow(const fs::path& personalFolder) {
  const auto found = FindFolder(personalFolder, "\\My Games\\Freelancer\\Accts\\SinglePlayer");
  return found.value_or(personalFolder / "My Games" / "Freelancer" / "Accts" / "SinglePlayer");
}

void CreateLink(ErrorLog& log, const fs::path& target, const fs::path& link) {
  Routine routine(log, "OrrerixMain.CreateLink");
  routine.Run([&] {
    if (!WriteShortcut(target, link)) {
      routine.Fail({failure_number::kPathFileAccess,
                    fmt::format("Path/File access error: cannot write '{}'", TextOf(link))});
    }
  });
}

void MakeShortcuts(ErrorLog& log, FailureSink& routine, const GameRegistry& registry,
                   const fs::path& applicationFolder, const fs::path& program,
                   const AppVersion& version) {
  const fs::path marker = applicationFolder / "CopyLnk";
  if (!FileExists(routine, marker)) return;
  const std::string name = fmt::format("FL Orrerix v{}.{}.lnk", version.Major, version.Minor);
  CreateLink(log, program, PathOf(registry.GetDesktopFolder()) / name);
  const fs::path programs = PathOf(registry.GetProgramsFolder()) / "FL Orrerix";
  MakeFolder(routine, programs);
  CreateLink(log, program, programs / name);
  DeleteFile(routine, marker);
}

Message UniverseInUseQuestion(Language language, const fs::path& file, const AppVersion& version) {
  return {FormatIn(language, TextId::UniverseInUse, TextOf(file)), MapCaption(version),
          MessageButtons::RetryLeave, MessageIcon::Exclamation};
}

Message FolderMissingMessage(Language language, const fs::path& folder, const AppVersion& version) {
  return {FormatIn(language, TextId::SaveFolderMissing, TextOf(folder)), MapCaption(version),
          MessageButtons::Ok, MessageIcon::Exclamation};
}

std::string StartCaption(const AppVersion& version) {
  return fmt::format("FreeLancer Orrerix v{}.{} Revision {}", version.Major, version.Minor,
                     version.Revision);
}

std::string MapCaption(const AppVersion& version) {
  return fmt::format("FL Orrerix v{}.{} Revision {}", version.Major, version.Minor,
                     version.Revision);
}

}  // namespace orrerix
