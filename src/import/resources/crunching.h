// SPDX-License-Identifier: MIT
// Care of the database file between and after the stages of an import.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "db/engine/engine.h"
#include "import/import_host.h"
#include "import/sections/section_tables.h"
#include "shell/error_log.h"

namespace orrerix {

// Lets go of a file if it is the one that `database` has open; any other path is no error.
void CloseDB(Database& database, const std::filesystem::path& path);

// Gives memory and file space back: closes the file, compacts it by way of "Orrerix.ok" and opens
// it again for building. If the compaction fails, "Orrerix.ok" stays behind and holds the data. A
// file without free pages has nothing to give back and stays open.
void CleanUpMemory(ErrorLog& log, ImportHost& host, Database& database,
                   const std::filesystem::path& saveFolder);

// What an import kept in memory: the section tables, and rows of tables that are empty in the file.
struct KeptInMemory {
  const std::vector<std::unique_ptr<SectionTable>>& Sections;
  const std::vector<HeldRows>& Rows;
};

// A table and the number of its rows.
struct TableCount {
  std::string Name;
  std::int64_t Rows = 0;
};

// Copies all tables of a file into a new one, with every Text field cut down to what its longest
// text needs (254 where there is none). Fields and rows are carried over, keys are not; tables
// whose names begin with "MSYS" are the engine's own and stay behind. The section tables are
// written after the fixed tables. The target is replaced. Gives the tables of the target in the
// order of their making; none if the user gave it up or the target could not be completed.
std::vector<TableCount> CrunchTXTFields(ErrorLog& log, const std::filesystem::path& source,
                                        const std::filesystem::path& target,
                                        JetVersionOption option, const KeptInMemory& kept);

}  // namespace orrerix
