// SPDX-License-Identifier: MIT
// The columns of the atlas and their formulas as text.
#pragma once

#include <string>

#include "atlas/atlas_table.h"

namespace orrerix {

// A table's section in Markdown.
std::string ExplainAtlasTable(const AtlasTable& table);

// The whole page docs/atlas.md.
std::string AtlasPage();

}  // namespace orrerix
