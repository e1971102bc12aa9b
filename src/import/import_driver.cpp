// SPDX-License-Identifier: MIT
#include "import/import_driver.h"

#include <array>

#include <fmt/format.h>

#include "db/schema.h"
#include "import/game_plan.h"
#include "import/ini/ini_reader.h"
#include "import/resources/crunching.h"
#include "import/resources/resource_strings.h"
#include "platform/wide_registers.h"
#include "shell/files.h"
#include "shell/language_texts.h"
#include "shell/routine.h"
#include "shell/startup.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr int kPauseAfterTexts = 500;

// The stages, each a function that reads like the list of its steps.
class ImportRun {
 public:
  ImportRun(ErrorLog& log, ImportHost& host, Database& database, const ImportOrder& order,
            Routine& routine)
      : log_(log),
        host_(host),
        database_(database),
        order_(order),
        routine_(routine),
        import_{{log, database}, order.Game, host, {}, {}} {}

  // A stage whose own statements do not stop a failure is one step: the next stage follows it.
  std::vector<TableCount> Run(const std::vector<DerivedStage>& stages) {
    using Stage = void (ImportRun::*)();
    constexpr std::array<Stage, 7> readers = {
        &ImportRun::OpenFile,      &ImportRun::CreateFixedTables, &ImportRun::ReadConfiguration,
        &ImportRun::ReadTexts,     &ImportRun::NameSystems,       &ImportRun::ReadDataFiles,
        &ImportRun::ReadCharacters};
    for (const Stage stage : readers) routine_.Try([&] { (this->*stage)(); });
    Derive(stages);
    return routine_.Or(std::vector<TableCount>(), [this] { return Crunch(); });
  }

 private:
  void ReadConfiguration() {
    Read(ProgramPath(order_.Game, "freelancer.ini"));
    Read(UniversePath(order_.Game, "universe.ini"));
    import_.Files.Expect(PlannedFiles(database_, order_.Game));
    CleanUp();
  }

  void ReadCharacters() {
    Read(DataPath(order_.Game, kCharacterFile));
    import_.Files.Expect({});
    CleanUp();
  }

  fs::path File() const { return UniverseFileIn(order_.SaveFolder); }

  void OpenFile() {
    database_ = FileExists(routine_, File())
                    ? DBEngine::OpenDatabase(routine_, File(), FileUse::Building)
                    : DBEngine::CreateDatabase(routine_, File(), order_.Format, FileUse::Building);
    database_.Begin(routine_);
  }

  void CreateFixedTables() {
    for (const TableDef& table : FixedTables()) database_.CreateHeldTable(routine_, table);
  }

  void Read(const std::string& path, const std::string& system = {}) {
    routine_.Try([&] { ReadINI(import_, path, system); });
  }

  void CleanUp() { CleanUpMemory(log_, host_, database_, order_.SaveFolder); }

  void ReadTexts() {
    std::int32_t place = 1;
    for (Recordset libraries = database_.OpenRows(routine_, "resources", RecordsetType::Snapshot);
         !libraries.AtEnd(); libraries.MoveNext(), ++place) {
      routine_.Try([&] { ReadLibrary(libraries["DLL"].Get().Text(), place); });
    }
    host_.Pause(kPauseAfterTexts);
    CleanUp();
  }

  void ReadLibrary(const std::string& library, std::int32_t place) {
    constexpr int stepsOfLibrary = 2;
    import_.AddSteps(routine_, stepsOfLibrary);
    routine_.Try([&] {
      host_.AppendText("\r\n\r\n" + FormatIn(host_.Speech(), TextId::ReadingLibrary, library));
    });
    host_.Yield();
    ReadHTML_STRData(import_, ProgramPath(order_.Game, library),
                     RequireLong(static_cast<double>(place) * kNumbersPerLibrary));
  }

  // Names are known only now that the libraries are read.
  void NameSystems() {
    for (Recordset systems = database_.OpenRows(routine_, "Systems"); !systems.AtEnd();
         systems.MoveNext()) {
      systems.Edit();
      systems["realname"] = [&] {
        return GetName(import_.Target, systems["stridname"].RequireLong(),
                       systems["nickname"].RequireText());
      };
      systems.Update();
    }
  }

  void ReadDataFiles() {
    for (Recordset files = database_.OpenRows(routine_, "DataFiles", RecordsetType::Snapshot);
         !files.AtEnd(); files.MoveNext()) {
      routine_.Try(
          [&] { ReadDataFile(files["type"].Get().Text(), files["pathfile"].Get().Text()); });
    }
    CleanUp();
  }

  void ReadDataFile(const std::string& type, const std::string& file) {
    if (StandsForSystems(type)) {
      ReadSystemFiles();
    } else {
      Read(DataPath(order_.Game, file));
    }
  }

  void ReadSystemFiles() {
    for (Recordset systems = database_.OpenRows(routine_, "Systems", RecordsetType::Snapshot);
         !systems.AtEnd(); systems.MoveNext()) {
      routine_.Try([&] {
        Read(UniversePath(order_.Game, systems["file"].Get().Text()),
             systems["nickname"].Get().Text());
      });
    }
  }

  void Derive(const std::vector<DerivedStage>& stages) {
    const auto count = static_cast<std::int32_t>(stages.size());
    for (std::int32_t k = 0; k < count; ++k) {
      const DerivedStage& stage = stages[static_cast<std::size_t>(k)];
      import_.ProgressIt(count, k);
      routine_.Try([&] {
        const std::string text = "\r\n\r\n" + std::string(TextIn(host_.Speech(), stage.Text));
        k < 2 ? host_.ShowText(text) : host_.AppendText(text);
      });
      host_.Yield();
      routine_.Try([&] { stage.Calculate(import_.Target, host_); });
      if (k + 1 < count) CleanUp();
    }
    import_.ProgressIt(count, count);
    routine_.Try([&] {
      host_.AppendText("\r\n\r\n" + std::string(TextIn(host_.Speech(), TextId::ImportDone)));
    });
    host_.Yield();
  }

  // The stamp goes into the build file, before crunching: a process that dies earlier leaves no
  // file that looks finished.
  void StampVersion(const fs::path& build) {
    Database file = DBEngine::OpenDatabase(routine_, build, FileUse::Building);
    file.CreateTable(routine_, VersionTable());
    Recordset version = file.OpenTable(routine_, "Version");
    version.AddNew();
    version["Version"] = order_.Version.Stamp();
    version.Update();
    file.Close();
  }

  std::vector<TableCount> Crunch() {
    const fs::path build = order_.SaveFolder / "build.mdb";
    const std::vector<HeldRows> held = database_.TakeHeldRows();
    CloseDB(database_, File());
    DeleteFile(routine_, build);
    RenameFile(routine_, File(), build);
    StampVersion(build);
    std::vector<TableCount> tables =
        CrunchTXTFields(log_, build, File(), order_.Format, {import_.Sections.Tables(), held});
    DeleteFile(routine_, build);
    database_ = DBEngine::OpenDatabase(routine_, File());
    return tables;
  }

  ErrorLog& log_;
  ImportHost& host_;
  Database& database_;
  const ImportOrder& order_;
  Routine& routine_;
  Import import_;
};

}  // namespace

ImportResult ImportGame(ErrorLog& log, ImportHost& host, Database& database,
                        const ImportOrder& order, const std::vector<DerivedStage>& stages) {
  Routine routine(log, "OrrerixMain.Command1_Click", "While getting Data from FreeLancer");
  ImportResult result;
  ClearWideRegisters();
  result.Finished = routine.Run(
      [&] { result.Tables = ImportRun(log, host, database, order, routine).Run(stages); });
  return result;
}

}  // namespace orrerix
