// SPDX-License-Identifier: MIT
// Finds anything of a universe by a part of its name, its nickname or what the game says about it.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "atlas/sales.h"
#include "space/space.h"

namespace orrerix {

enum class FoundKind { System, Place, Body, Gate, Zone, Ship, Commodity, Equipment, Faction };

struct FoundThing {
  FoundKind Kind = FoundKind::Place;
  std::string Name;
  std::string Nickname;
  std::string Where;            // name of the system; empty for what is in none
  std::optional<MapCell> Cell;  // of that system
  std::string AtlasTable;       // the ID of the atlas's table that has it; empty for none
  std::string InfoText;         // of the game, one line
};

// A thing that was found. Where only the info text holds what was looked for, `Passage` is what
// stands around it.
struct FoundRow {
  const FoundThing* Thing = nullptr;
  std::string Passage;
};

struct FoundRows {
  std::vector<FoundRow> Rows;
  std::size_t Count = 0;  // of all that was found; the rows may be fewer
};

class FindBook {
 public:
  FindBook() = default;
  explicit FindBook(std::vector<FoundThing> things);

  std::size_t Size() const { return things_.size(); }

  // At most `most` things that hold a text, whatever its case: those of that name first, then names
  // that begin with it, names a word of which does, names that hold it, nicknames, info texts. An
  // empty text finds nothing.
  FoundRows Find(std::string_view text, std::size_t most) const;

 private:
  struct Keys {
    std::string Name;
    std::string Nickname;
    std::string InfoText;
  };

  std::vector<FoundThing> things_;
  std::vector<Keys> keys_;  // in lower case, one for each thing
};

// All systems, places, bodies, gates and named zones of a space, and what the tables of the atlas
// hold of ships, commodities, equipment and factions. Stops once `isCancelled` is true.
FindBook ReadFindBook(const AtlasSource& source, const Space& space,
                      const std::function<bool()>& isCancelled);

}  // namespace orrerix
