// SPDX-License-Identifier: MIT
#pragma once

#include "import/universe.h"

namespace orrerix {

// Gives every ship its price (the hull's, plus that of each good in its package) and the name of
// its package; counts the priced goods of a package in `Packages.Val`. Ships without a hull and
// hulls without a package are named in the data log. Running it twice counts on.
void CalcShipPackages(Universe& universe);

}  // namespace orrerix
