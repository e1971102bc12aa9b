// SPDX-License-Identifier: MIT
// What the workbench remembers in its own settings file.
#pragma once

namespace orrerix::setting_key {

inline constexpr const char* kGeometry = "workbench/geometry";
inline constexpr const char* kPage = "workbench/page";
inline constexpr const char* kWatch = "game/watch";
inline constexpr const char* kRecentGames = "game/recent";
inline constexpr const char* kEditor = "editor/command";

}  // namespace orrerix::setting_key
