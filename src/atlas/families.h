// SPDX-License-Identifier: MIT
// The tables of the atlas, family by family.
#pragma once

#include "atlas/atlas_table.h"
#include "atlas/source.h"

namespace orrerix {

AtlasTable ShipsTable();
AtlasTable GunsTable();
AtlasTable TurretsTable();
AtlasTable MissilesTable();
AtlasTable MinesTable();
AtlasTable ShieldsTable();
AtlasTable ThrustersTable();
AtlasTable EnginesTable();
AtlasTable PowerTable();
AtlasTable CountermeasuresTable();
AtlasTable ScannersTable();
AtlasTable CommoditiesTable();
AtlasTable BasesTable();
AtlasTable SystemsTable();
AtlasTable FactionsTable();
AtlasTable BribesTable();

// Whether a gun that fires this belongs to the missiles: it has a motor or ends in a blast.
bool IsGuidedOrBlasting(const SourceRow& munition);

}  // namespace orrerix
