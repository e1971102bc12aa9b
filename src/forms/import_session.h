// SPDX-License-Identifier: MIT
// One import of a game folder, run from the main form.
#pragma once

#include "forms/form_parts.h"
#include "forms/start/import_screen.h"
#include "forms/start/window_host.h"
#include "import/import_driver.h"
#include "platform/folder_lock.h"

namespace orrerix {

// Holds the folder of the universe file for as long as it lives. It runs in the form's own event
// loop, so that the form stays alive meanwhile; End ends it.
class ImportSession {
 public:
  enum class Result {
    Finished,
    GivenUp,  // the user cancelled a failed step; there is no usable universe file
    Ended     // by End, or for lack of memory: the program is to end too
  };

  // `screen` belongs to `form`; `start` is the memory as it was when the program started.
  ImportSession(const FormParts& parts, QWidget& form, ImportScreen& screen,
                const MemoryStatus& start, FolderLock lock);

  // Runs the whole import. Once only.
  Result Run(const ImportOrder& order);

  // Ends the import at the next event that it lets through.
  void End() { host_.End(); }

 private:
  ErrorLog& log_;
  WindowHost host_;
  FolderLock lock_;
};

}  // namespace orrerix
