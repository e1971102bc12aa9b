// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "import/universe.h"
#include "info/wording.h"
#include "shell/routine.h"

namespace orrerix {

// What the info box says of a piece of equipment, appended to `text`: its price as a good, with the
// ammunition that comes with it; its figures as a shield; its figures as a gun. Each part stands
// only if the table has the nickname.
//
// A gun's damage in the game's files is the figure for a second, and that times its refire delay
// the figure for a shot. A gun without energy damage does half its hull damage to shields.
void WriteEquipmentText(Routine& routine, Universe& universe, const Wording& wording,
                        std::string_view nickname, std::string& text);

}  // namespace orrerix
