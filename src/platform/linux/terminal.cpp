// SPDX-License-Identifier: MIT
#include "platform/terminal.h"

#include <unistd.h>

namespace orrerix {

bool IsErrorShownOnTerminal() {
  return isatty(STDERR_FILENO) != 0;
}

}  // namespace orrerix
