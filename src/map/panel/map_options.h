// SPDX-License-Identifier: MIT
// The six display switches of the map.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace orrerix {

// Numbers of the switches.
enum class MapSwitch {
  EmptyBackgrounds = 0,
  SystemBackgrounds = 1,
  JumpgateLines = 2,
  JumpholeLines = 3,
  TradelaneLines = 4,
  SystemNames = 5
};

inline constexpr int kMapSwitches = 6;

// Index of the label after those of the switches: it names the language in use.
inline constexpr int kLanguageLabel = 6;

struct MapOptions {
  std::array<bool, kMapSwitches> On{};

  bool operator[](MapSwitch which) const { return On[static_cast<std::size_t>(which)]; }

  // The defaults of the whole grid's set and of the set for zoomed views.
  static MapOptions Defaults(bool zoomed);
};

// Key of a switch in the settings: set 1 for the whole grid, set 2 for zoomed views.
std::string SettingKey(bool zoomed, int which);

// Whether a setting's text, or a switch's tag, means "on": its number is above 0.
bool IsOn(std::string_view text);

}  // namespace orrerix
