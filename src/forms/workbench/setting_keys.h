// SPDX-License-Identifier: MIT
// What the workbench remembers in its own settings file.
#pragma once

namespace orrerix::setting_key {

inline constexpr const char* kGeometry = "workbench/geometry";
inline constexpr const char* kPage = "workbench/page";
inline constexpr const char* kWatch = "game/watch";
inline constexpr const char* kRecentGames = "game/recent";
inline constexpr const char* kEditor = "editor/command";
inline constexpr const char* kLayers = "map/layers";
inline constexpr const char* kLightPanels = "window/light_panels";
inline constexpr const char* kScale = "window/scale";  // percent

// What the pages of travel share. `kFrom` is there only if the player chose a start.
inline constexpr const char* kFrom = "travel/from";
inline constexpr const char* kShip = "travel/ship";
inline constexpr const char* kHold = "travel/hold";
inline constexpr const char* kMoney = "travel/money";
inline constexpr const char* kEnemies = "travel/enemies";
inline constexpr const char* kKeepAway = "travel/keep_away";
inline constexpr const char* kNoGates = "travel/no_gates";
inline constexpr const char* kNoHoles = "travel/no_holes";
inline constexpr const char* kNoLocked = "travel/no_locked";
inline constexpr const char* kHops = "trades/hops";
inline constexpr const char* kLoop = "trades/loop";
inline constexpr const char* kSorting = "trades/sorting";

// The table of the atlas by its ID, and the ship that equipment fits. The rest is below the ID.
inline constexpr const char* kAtlasTable = "atlas/table";
inline constexpr const char* kAtlasShip = "atlas/ship";
inline constexpr const char* kAtlasFilter = "filter";
inline constexpr const char* kAtlasConditions = "conditions";
inline constexpr const char* kAtlasSorting = "sorting";
inline constexpr const char* kAtlasHidden = "hidden";
inline constexpr const char* kAtlasFields = "fields";
inline constexpr const char* kAtlasAxes = "axes";

// Widths of the columns of a table, by its object name, are below this and the page's name.
inline constexpr const char* kWidths = "widths";

}  // namespace orrerix::setting_key
