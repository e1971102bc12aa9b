// SPDX-License-Identifier: MIT
// Which packages are sold as which ship. A ship may have several, each with other equipment.
#pragma once

#include <string>
#include <vector>

#include "atlas/source.h"

namespace orrerix {

// The packages of a row of Ships: first its own package, then all others with the ship's hull.
std::vector<std::string> PackagesOf(const SourceTables& tables, const SourceRow& ship);

// The row of Ships that a good of category ship stands for; none if there is none.
SourceRow ShipOfPackage(const SourceTables& tables, const SourceRow& package);

// A ship's name; its nickname where it has none.
std::string ShipName(const SourceRow& ship);

}  // namespace orrerix
