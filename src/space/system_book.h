// SPDX-License-Identifier: MIT
// The systems of a universe file: where each lies on the map and how large its square is.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "atlas/source.h"
#include "space/space.h"

namespace orrerix {

// A position of the game in a text such as "-33270, 0, -33039": east and south, game units. Nothing
// where fewer than three numbers stand.
struct GamePosition {
  double East = 0;
  double South = 0;
};
std::optional<GamePosition> ReadPosition(std::string_view text);

// The first three numbers of a list with commas; those that are missing are 0.
std::array<double, 3> ReadTriple(std::string_view text);

class SystemBook {
 public:
  // Reads `Systems`. Those without a cell on the map are left out.
  explicit SystemBook(const SourceTables& tables);

  // In the order of the table, without factions.
  const std::vector<SystemArea>& Systems() const { return systems_; }

  // Null for one that is not on the map.
  const SystemArea* Find(std::string_view nickname) const;

  // The system whose own file this is, by a path as `SourceFileName` has it.
  const SystemArea* OfFile(std::string_view path) const;

  // Where a position lies in the square of a system.
  static CellFraction PlaceIn(const SystemArea& system, GamePosition position);

 private:
  std::vector<SystemArea> systems_;
  std::unordered_map<std::string, std::size_t> byNickname_;
  std::unordered_map<std::string, std::size_t> byFile_;
};

}  // namespace orrerix
