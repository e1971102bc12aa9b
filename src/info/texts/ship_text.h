// SPDX-License-Identifier: MIT
// What the info box and the station window say of a ship.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "import/universe.h"
#include "info/texts/table_row.h"
#include "shell/routine.h"

namespace orrerix {

// Writes the text of a ship part by part. Cancelled in the middle, it keeps what it has.
class ShipWriter {
 public:
  // Both must outlive this.
  ShipWriter(Routine& routine, Universe& universe) : routine_(routine), universe_(universe) {}

  // Price and info texts of a row of `Ships`, with a CR LF at the end.
  void WriteHead(TableRow& ship);

  // Mass, steering and forces, as the database has them: six lines with CR LF between them.
  void WriteFigures(TableRow& ship);

  void Add(std::string_view words) { text_ += words; }

  // What is written so far.
  std::string Take() { return std::move(text_); }

 private:
  Routine& routine_;
  Universe& universe_;
  std::string text_;
};

}  // namespace orrerix
