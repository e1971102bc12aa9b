// SPDX-License-Identifier: MIT
#include "import/resources/crunching.h"

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "db/schema.h"
#include "db/values/text.h"
#include "shell/files.h"
#include "shell/routine.h"
#include "shell/startup.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr std::size_t kSizeOfEmptyField = 254;

// The table without its key, its Text fields as long as their longest text.
TableDef Crunched(TableDef table, const std::vector<std::size_t>& longest) {
  table.PrimaryKey.reset();
  for (std::size_t i = 0; i < table.Fields.size(); ++i) {
    if (table.Fields[i].Type != FieldType::Text) continue;
    table.Fields[i].Size = longest[i] > 0 ? longest[i] : kSizeOfEmptyField;
  }
  return table;
}

// The place after the fixed tables, which are made first.
std::vector<TableDef>::const_iterator EndOfFixedTables(const std::vector<TableDef>& tables) {
  const std::vector<TableDef> fixed = FixedTables();
  return std::find_if(tables.begin(), tables.end(), [&fixed](const TableDef& table) {
    return std::none_of(fixed.begin(), fixed.end(), [&table](const TableDef& known) {
      return EqualIgnoringCase(known.Name, table.Name);
    });
  });
}

// All tables of a file that are not the engine's own.
std::vector<TableDef> TablesOf(FailureSink& routine, const fs::path& file) {
  Database database = DBEngine::OpenDatabase(routine, file, FileUse::Filling);
  std::vector<TableDef> tables = database.TableDefs(routine);
  database.Close();
  std::erase_if(tables,
                [](const TableDef& table) { return Ucase(table.Name).starts_with("MSYS"); });
  return tables;
}

// Makes tables with their rows in a file, out of the one attached to it or out of memory.
class Cruncher {
 public:
  Cruncher(FailureSink& routine, Database& to, const std::vector<HeldRows>& held)
      : routine_(routine), to_(to), held_(held) {}

  void Copy(const TableDef& table) {
    const TableDef definition = DefinitionOf(table);
    to_.CreateTable(routine_, definition);
    CountRows(definition, [&] { Fill(definition); });
  }

  std::vector<TableCount> TakeCounts() { return std::move(counts_); }

  // Section tables, followed by tables of the file.
  void Write(const std::vector<std::unique_ptr<SectionTable>>& sections,
             std::span<const TableDef> behind) {
    std::vector<TableDef> definitions;
    definitions.reserve(sections.size() + behind.size());
    for (const auto& table : sections) {
      definitions.push_back(Crunched(table->Definition(), table->LongestTexts()));
    }
    for (const TableDef& table : behind) definitions.push_back(DefinitionOf(table));
    to_.CreateTables(routine_, definitions, [&](std::size_t i) {
      CountRows(definitions[i], [&] {
        if (i >= sections.size()) return Fill(definitions[i]);
        sections[i]->AppendTo(routine_, to_, definitions[i]);
      });
    });
  }

 private:
  // Asking the file afterwards would cost the engine a search among all its tables for each.
  template <typename Step>
  void CountRows(const TableDef& table, const Step& fill) {
    const std::int64_t before = to_.ChangedRows();
    fill();
    counts_.push_back({table.Name, to_.ChangedRows() - before});
  }

  const HeldRows* Held(const std::string& table) const {
    const auto held = std::find_if(held_.begin(), held_.end(), [&table](const HeldRows& rows) {
      return rows.Definition().Name == table;
    });
    return held == held_.end() ? nullptr : &*held;
  }

  TableDef DefinitionOf(const TableDef& table) const {
    if (const HeldRows* held = Held(table.Name)) {
      return Crunched(held->Definition(), held->LongestTexts());
    }
    return Crunched(table, to_.LongestAttachedTexts(routine_, table));
  }

  void Fill(const TableDef& definition) {
    if (const HeldRows* held = Held(definition.Name)) {
      return to_.Append(routine_, *held, definition);
    }
    to_.CopyFromAttached(routine_, definition.Name);
  }

  FailureSink& routine_;
  Database& to_;
  const std::vector<HeldRows>& held_;
  std::vector<TableCount> counts_;
};

std::string InfoOf(const fs::path& source, const fs::path& target) {
  return fmt::format("While crunching the big database...\r\n\r\nSRC:[{}]\r\n\r\nDST:[{}]",
                     source.string(), target.string());
}

}  // namespace

void CloseDB(Database& database, const fs::path& path) {
  if (Ucase(database.Path().string()) == Ucase(path.string())) database.Close();
}

void CleanUpMemory(ErrorLog& log, ImportHost& host, Database& database,
                   const fs::path& saveFolder) {
  Routine routine(log, "OrrerixMain.CleanUpMemory", "While cleaning up Memory");
  routine.Run([&] {
    const fs::path file = UniverseFileIn(saveFolder);
    const fs::path aside = saveFolder / "Orrerix.ok";
    host.Yield();
    if (database.IsOpen() && database.FreePages(routine) == 0) {
      // There is nothing to give back; renaming the file there and back would change nothing.
      database.Commit(routine);
      database.Begin(routine);
      host.Yield();
      return;
    }
    database.WriteHeldRows(routine);
    CloseDB(database, file);
    RenameFile(routine, file, aside);
    DBEngine::CompactDatabase(routine, aside, file);
    if (FileExists(routine, file)) DeleteFile(routine, aside);
    database = DBEngine::OpenDatabase(routine, file, FileUse::Building);
    database.Begin(routine);
    host.Yield();
  });
}

std::vector<TableCount> CrunchTXTFields(ErrorLog& log, const fs::path& source,
                                        const fs::path& target, JetVersionOption option,
                                        const KeptInMemory& kept) {
  Routine routine(log, "DB_Work.CrunchTXTFields", InfoOf(source, target));
  std::vector<TableCount> counts;
  routine.Run([&] {
    const std::vector<TableDef> tables = TablesOf(routine, source);
    DeleteFile(routine, target);
    Database to = DBEngine::CreateDatabase(routine, target, option, FileUse::Filling);
    to.Attach(routine, source);
    const auto behindFixed = EndOfFixedTables(tables);
    Cruncher cruncher(routine, to, kept.Rows);
    // One transaction: a process that dies on the way leaves a file without any table.
    to.Begin(routine);
    std::for_each(tables.begin(), behindFixed, [&](const TableDef& t) { cruncher.Copy(t); });
    cruncher.Write(kept.Sections, std::span(behindFixed, tables.end()));
    if (to.Commit(routine)) counts = cruncher.TakeCounts();
  });
  return counts;
}

}  // namespace orrerix
