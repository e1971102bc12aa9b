// SPDX-License-Identifier: MIT
// What the search panel finds.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "derived/system_grid.h"
#include "import/universe.h"
#include "info/texts/info_text.h"
#include "shell/routine.h"

namespace orrerix {

// What a player looks for; the numbers are those of the panel's icons.
enum class SearchType { Place = 0, Ship = 1, Equipment = 2, Bribe = 3 };

// A row of one of the panel's lists.
struct SearchRow {
  std::string Nickname;
  std::string RealName;
  std::string Package;  // of a ship: the good that it is sold as

  bool operator==(const SearchRow&) const = default;
};

// The rows whose name holds a text, whatever its case; "*", "?", "#" and "[...]" in it are
// wildcards, a "'" breaks the query, which is a failure and finds nothing. An empty text finds
// everything: all places of the map by name, all ships that are sold, all equipment with a name,
// all factions.
std::vector<SearchRow> Search(Universe& universe, SearchType type, std::string_view text);

// The places where a ship or a piece of equipment is sold, or a faction's bribe is taken. A planet
// with a docking ring sells under its ring, but takes bribes under its own name. Places that are
// not on the map are left out. Nothing for a place.
std::vector<SearchRow> SellersOf(Universe& universe, SearchType type, const SearchRow& row);

// What stands beside the name of a row.
struct SearchDetail {
  std::string System;           // name of a place's system; empty for what is no place
  std::optional<double> Price;  // credits: the usual one, of a place what is asked there

  bool operator==(const SearchDetail&) const = default;
};

struct DetailedRow {
  SearchRow Row;
  SearchDetail Detail;
};

// The same rows as Search and SellersOf find, with what stands beside them. Where the game gives no
// price, or one of 0, there is none.
std::vector<DetailedRow> SearchInDetail(Universe& universe, SearchType type, std::string_view text);
std::vector<DetailedRow> SellersInDetail(Universe& universe, SearchType type, const SearchRow& row);

// What the info box shows for a row; places have none.
std::optional<InfoType> InfoTypeOf(SearchType type);

// A place as the map has it, whatever the case of `nickname`.
struct JumpTarget {
  std::string Nickname;
  MapCell Cell;
};
std::optional<JumpTarget> JumpTargetOf(Routine& routine, Universe& universe,
                                       std::string_view nickname);

}  // namespace orrerix
