// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/sound.h"

namespace orrerix {

// The desktop's sound: by Qt's multimedia, on Windows by the system's own call. Needs the running
// QApplication.
std::unique_ptr<SoundPlayer> MakeDesktopSound();

}  // namespace orrerix
