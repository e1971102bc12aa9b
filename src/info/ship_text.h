// SPDX-License-Identifier: MIT
// What the info box and the station window say of a ship.
#pragma once

#include <string>

#include "import/universe.h"
#include "info/table_row.h"
#include "shell/routine.h"

namespace orrerix {

// Price and info texts of a row of `Ships`, appended to `text` with a CR LF at the end.
void WriteShipHead(Routine& routine, Universe& universe, TableRow& ship, std::string& text);

// Mass, steering and forces, as the database has them: six lines with CR LF between them.
void WriteShipFigures(Routine& routine, TableRow& ship, std::string& text);

}  // namespace orrerix
