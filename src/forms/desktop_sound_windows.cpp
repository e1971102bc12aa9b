// SPDX-License-Identifier: MIT
#include "forms/desktop_sound.h"
#include "platform/windows/system_sound.h"

namespace orrerix {

std::unique_ptr<SoundPlayer> MakeDesktopSound() {
  return std::make_unique<SystemSound>();
}

}  // namespace orrerix
