// SPDX-License-Identifier: MIT
#include "map/game_sounds.h"

#include <string>

#include "shell/routine.h"

namespace orrerix {

void PlaySoundfile(ErrorLog& log, SoundPlayer& player, const GameFolder& game,
                   std::string_view sound) {
  Routine routine(log, "OrrerixMain.PlaySoundfile", "While playing a soundfile");
  routine.Run([&] {
    if (const auto file = game.FindFile(game.Text() + std::string(sound))) player.Play(*file);
  });
}

}  // namespace orrerix
