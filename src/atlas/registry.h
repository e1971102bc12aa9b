// SPDX-License-Identifier: MIT
// All tables of the atlas, and their content out of a universe.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "atlas/atlas_table.h"
#include "atlas/sales.h"
#include "db/rows/stored_table.h"

namespace orrerix {

// In the order of lists.
const std::vector<AtlasTable>& AtlasTables();

// The table of an ID, compared without regard to case; none if there is none.
const AtlasTable* FindAtlasTable(std::string_view id);

// The rows of a table, its fields called by the heads of its columns.
StoredTable ReadAtlasTable(const AtlasTable& table, const AtlasSource& source);

}  // namespace orrerix
