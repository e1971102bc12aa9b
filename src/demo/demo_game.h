// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "demo/files/game_folder.h"
#include "demo/plan/universe_plan.h"

namespace orrerix {

inline constexpr int DefaultDemoSystems = 40;

// Writes a complete made-up game of `systemCount` systems (demo::FewestSystems to
// demo::MostSystems) to a folder: configuration, universe, systems, equipment, markets, resource
// libraries, sounds. The same count gives the same bytes. Some faults are planted for the log of
// data errors: writers.h and universe_plan.h name them. Throws demo::FolderRefused if the folder
// holds anything but an earlier demo game.
void WriteDemoGame(const std::filesystem::path& folder, int systemCount = DefaultDemoSystems);

}  // namespace orrerix
