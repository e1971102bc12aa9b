// SPDX-License-Identifier: MIT
#pragma once

#include "import/import_host.h"
#include "import/section_tables.h"
#include "import/universe.h"
#include "platform/game_path.h"

namespace orrerix {

// What the stages of one import share.
struct Import {
  Universe Target;
  const GameFolder& Game;
  ImportHost& Host;
  ImportProgress Progress;
  SectionTables Sections;

  void ProgressIt(std::int32_t maximum, std::int32_t value) {
    Host.ProgressIt(maximum, value, Progress);
  }
};

}  // namespace orrerix
