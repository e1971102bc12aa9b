// SPDX-License-Identifier: MIT
// The warning before the first map: its texts, which a mod may replace, and its switch.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/game_path.h"
#include "shell/text_id.h"

namespace orrerix {

struct SpoilerTexts {
  std::string HeadLine;
  std::string Text;  // lines ending in CR LF, but for the last
  std::string Ok;    // captions of the buttons; "&" before the letter that presses them
  std::string Cancel;
};

// The program's own texts.
SpoilerTexts DefaultSpoilerTexts(Language language);

// The texts of a mod's file in the place of the program's own: the keys "ok", "cancel" and
// "headline", whatever their case, and after "Text =", case and all, and one further character,
// the text over any number of lines. What the file lacks or leaves empty stays.
SpoilerTexts WithModTexts(SpoilerTexts texts, std::string_view file);

// The texts of a game: its "\data\OrrerixWarning.ini" is read if it is there. One that cannot be
// read leaves the program's own texts.
SpoilerTexts ReadSpoilerTexts(const GameFolder& game, Language language);

// Stores in a universe file that its warning is off, or on again. Nothing is said of failures.
void SetWarningOff(const std::filesystem::path& universeFile, bool off);

}  // namespace orrerix
