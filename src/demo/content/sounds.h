// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace orrerix::demo {

struct SoundFile {
  std::string Name;   // file name
  std::string Bytes;  // the whole wav file
};

// The five sounds of the game's menus that a map program plays, each a short synthesised chime of
// 0.1 to 0.5 seconds that begins and ends in silence.
std::vector<SoundFile> MenuSounds();

}  // namespace orrerix::demo
