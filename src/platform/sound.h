// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace orrerix {

// Plays the game's own sounds.
class SoundPlayer {
 public:
  virtual ~SoundPlayer() = default;

  // Plays a wav file in the background; it cuts off the sound before it. Silent where there is no
  // sound device.
  virtual void Play(const std::filesystem::path& file) = 0;

  // Returns once the sound that plays has ended, or after a few seconds. A program that is about to
  // end calls it, so that its last sound is heard.
  virtual void WaitForEnd() = 0;

  // The system's plain beep.
  virtual void Beep() = 0;
};

}  // namespace orrerix
