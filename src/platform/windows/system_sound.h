// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include "platform/sound.h"

namespace orrerix {

// Plays sounds by the system's own call, which plays one at a time.
class SystemSound : public SoundPlayer {
 public:
  void Play(const std::filesystem::path& file) override;
  void WaitForEnd() override;
  void Beep() override;

 private:
  std::chrono::steady_clock::time_point end_{};  // of the sound that plays
};

// How long a wav file plays; nothing if it is none.
std::chrono::milliseconds WavDuration(const std::filesystem::path& file);

}  // namespace orrerix
