// SPDX-License-Identifier: MIT
// Where the things of a table are: bases that sell them, that they own or that they are.
#pragma once

#include <vector>

#include "atlas/atlas_table.h"
#include "atlas/sales.h"
#include "db/rows/stored_table.h"

namespace orrerix {

// For each row of a table the places of bases in source.Bases.Bases(): of ships, equipment and
// commodities the bases that sell them; of a system and a faction their bases; of a base and a
// bribe the base itself.
std::vector<Sellers> PlacesOfRows(const AtlasTable& table, const StoredTable& rows,
                                  const AtlasSource& source);

}  // namespace orrerix
