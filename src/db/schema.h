// SPDX-License-Identifier: MIT
// The tables of the universe database "Orrerix.fl".
#pragma once

#include <string_view>
#include <vector>

#include "db/rows/table_def.h"

namespace orrerix {

// The tables that an import makes before it reads the first file, in this order.
std::vector<TableDef> FixedTables();

// The tables of the derived stages, and the one whose existence marks a finished import.
TableDef JumpNodesTable();
TableDef TradeLanesTable();
TableDef DockObjectsTable();
TableDef VersionTable();

// A section table before its first key: row number and the file that the row came from.
TableDef GenericTable(std::string_view sectionName);

// Whether a section of this name would clash with one of the program's own tables. Case does not
// count; names that the engine keeps for itself clash too.
bool IsOwnTable(std::string_view name);

}  // namespace orrerix
