// SPDX-License-Identifier: MIT
// Which files of a game an import reads, and where they lie.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "platform/game_path.h"

namespace orrerix {

// Paths of the game's kind: of a library or the configuration, of a data file, and of what belongs
// to the universe.
std::string ProgramPath(const GameFolder& game, std::string_view file);
std::string DataPath(const GameFolder& game, std::string_view file);
std::string UniversePath(const GameFolder& game, std::string_view file);

// The file of the characters in bars, below the data.
inline constexpr std::string_view kCharacterFile = "missions\\mbases.ini";

// Whether a data file of this type stands for the files of all systems.
bool StandsForSystems(std::string_view type);

// A plan has about so many files at most; no game has as many.
inline constexpr std::size_t kMostPlannedFiles = 10'000;

// The paths of the files that follow the configuration and "universe.ini", in the order in which an
// import reads them, by the tables "resources", "DataFiles" and "Systems". What cannot be read in
// these tables is left out.
std::vector<std::string> PlannedFiles(Database& database, const GameFolder& game);

}  // namespace orrerix
