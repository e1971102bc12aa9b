// SPDX-License-Identifier: MIT
// The game's own sounds, by which the program answers the mouse.
#pragma once

#include <string_view>

#include "platform/game_path.h"
#include "platform/sound.h"
#include "shell/error_log.h"

namespace orrerix {

// Paths below the game folder.
inline constexpr std::string_view kHoverSound =
    R"(\DATA\AUDIO\SOUNDS\UI\ui_secondary_window_open.wav)";
inline constexpr std::string_view kStationSound =
    R"(\DATA\AUDIO\SOUNDS\UI\ui_open_infocard_button.wav)";
inline constexpr std::string_view kSwitchSound = R"(\DATA\AUDIO\SOUNDS\UI\ui_item_select.wav)";
inline constexpr std::string_view kZoomSound = R"(\DATA\AUDIO\SOUNDS\UI\ui_nav_map_fade.wav)";
inline constexpr std::string_view kLinkSound = R"(\DATA\AUDIO\SOUNDS\UI\news_vendor_open.wav)";

// Plays one of them in the background. A file that is missing stays silent.
void PlaySoundfile(ErrorLog& log, SoundPlayer& player, const GameFolder& game,
                   std::string_view sound);

}  // namespace orrerix
