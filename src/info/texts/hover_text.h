// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "import/universe.h"
#include "map/grid/map_coords.h"
#include "shell/language.h"
#include "shell/routine.h"

namespace orrerix {

// What the hover box of an icon says, lines ending in CR LF but for the last, which is the icon's
// tag. Of an object with an owner: name, owner and coordinates. Of one without: name, coordinates
// and what its loadout carries, each cargo with amount and price. Any other tag stands alone.
std::string HoverText(Universe& universe, const CellNames& names, TextSource& texts,
                      std::string_view tag);

// Writes the same as a part of a routine. Cancelled in the middle, it keeps what it has.
class HoverWriter {
 public:
  // All of these must outlive this.
  HoverWriter(Routine& routine, Universe& universe, const CellNames& names, TextSource& texts,
              std::string_view tag)
      : routine_(routine), universe_(universe), names_(names), texts_(texts), text_(tag) {}

  void Write();

  // What is written so far; the tag alone at the start.
  std::string Take() { return std::move(text_); }

 private:
  void PutInFront(std::string_view line) { text_.insert(0, line); }
  void WriteOwner(Recordset& dock, const std::string& reputation);
  void WriteCargo(std::string_view loadout);
  std::string CargoLine(const std::string& cargo, const Value& amount);
  std::string CargoName(const std::string& cargo, Recordset& good);

  Routine& routine_;
  Universe& universe_;
  const CellNames& names_;
  TextSource& texts_;
  std::string text_;
};

// The tag of an object's icon: its nickname as the map has it, whatever the case of `nickname`. One
// that the map does not have comes back as it is.
std::string IconTag(Universe& universe, std::string_view nickname);

// Whether a click on an icon with this tag opens a station window.
bool OpensStation(Universe& universe, std::string_view tag);

}  // namespace orrerix
