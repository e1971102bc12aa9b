// SPDX-License-Identifier: MIT
#include "shell/startup.h"

#include <fmt/format.h>

#include "platform/game_path.h"
#include "platform/shortcut.h"
#include "shell/routine.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

// Remembers that something failed; the caller looks and goes another way.
class Probe : public FailureSink {
 public:
  void Fail(const Failure&) override { failed_ = true; }
  bool Failed() const { return failed_; }

 private:
  bool failed_ = false;
};

bool CanCreate(const fs::path& path, JetVersionOption option) {
  Probe probe;
  Database test = DBEngine::CreateDatabase(probe, path, option);
  test.Close();
  return !probe.Failed();
}

bool IsOfVersion(const fs::path& file, const AppVersion& version) {
  Probe probe;
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
  const fs::path file = saveFolder / "Orrerix.fl";
  std::error_code error;
  if (!fs::exists(file, error)) return UniverseState::Absent;
  if (IsOfVersion(file, version)) return UniverseState::Usable;
  fs::remove(file, error);
  if (error) {
    routine.Fail({failure_number::kPathFileAccess,
                  fmt::format("Path/File access error: cannot delete '{}': {}", file.string(),
                              error.message())});
  }
  // A journal of the deleted file must not be taken for one of the next.
  fs::remove(file.string() + "-journal", error);
  return fs::exists(file, error) ? UniverseState::Undeletable : UniverseState::Absent;
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

fs::path SaveFolderBelow(const fs::path& personalFolder) {
  const auto found = FindFolder(personalFolder, "\\My Games\\Freelancer\\Accts\\SinglePlayer");
  return found.value_or(personalFolder / "My Games" / "Freelancer" / "Accts" / "SinglePlayer");
}

void CreateLink(ErrorLog& log, const fs::path& target, const fs::path& link) {
  Routine routine(log, "OrrerixMain.CreateLink");
  routine.Run([&] {
    if (!WriteShortcut(target, link)) {
      routine.Fail({failure_number::kPathFileAccess,
                    fmt::format("Path/File access error: cannot write '{}'", link.string())});
    }
  });
}

void MakeShortcuts(ErrorLog& log, FailureSink& routine, const GameRegistry& registry,
                   const fs::path& applicationFolder, const fs::path& program,
                   const AppVersion& version) {
  const fs::path marker = applicationFolder / "CopyLnk";
  std::error_code error;
  if (!fs::exists(marker, error)) return;
  const std::string name = fmt::format("FL Orrerix v{}.{}.lnk", version.Major, version.Minor);
  CreateLink(log, program, fs::path(registry.GetDesktopFolder()) / name);
  const fs::path programs = fs::path(registry.GetProgramsFolder()) / "FL Orrerix";
  fs::create_directories(programs, error);
  if (error) {
    routine.Fail({failure_number::kPathFileAccess,
                  fmt::format("Path/File access error: cannot make the folder '{}': {}",
                              programs.string(), error.message())});
  }
  CreateLink(log, program, programs / name);
  fs::remove(marker, error);
}

std::string StartCaption(const AppVersion& version) {
  return fmt::format("FreeLancer Orrerix v{}.{} Revision {}", version.Major, version.Minor,
                     version.Revision);
}

std::string MapCaption(const AppVersion& version) {
  return fmt::format("FL Orrerix v{}.{} Revision {}", version.Major, version.Minor,
                     version.Revision);
}

std::string MissingExecutableText(const std::string& registryPath) {
  return "Problem finding [\\exe\\Freelancer.exe] in the folder of ur Registry-Setting:\r\n"
         "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Microsoft Games\\Freelancer\\1.0 Value AppPath  "
         "which is showing:\r\n[" +
         registryPath + "]\r\n\r\nTo fix it - REINSTALL FreeLancer! (or type the Path in...)";
}

}  // namespace orrerix
