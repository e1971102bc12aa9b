// SPDX-License-Identifier: MIT
#pragma once

#include "import/game_files.h"
#include "import/import_host.h"
#include "import/sections/section_tables.h"
#include "import/universe.h"
#include "platform/game_path.h"
#include "shell/routine.h"

namespace orrerix {

// What the stages of one import share.
struct Import {
  Universe Target;
  const GameFolder& Game;
  ImportHost& Host;
  ImportProgress Progress;
  SectionTables Sections;
  GameFiles Files{Game};

  // An overflow is the routine's failure and leaves the number of steps as it was.
  void AddSteps(Routine& routine, int count) {
    Progress.ImportSteps = routine.Integer(Progress.ImportSteps + count, Progress.ImportSteps);
  }

  void ProgressIt(std::int32_t maximum, std::int32_t value) {
    Host.ProgressIt(maximum, value, Progress);
  }
};

}  // namespace orrerix
