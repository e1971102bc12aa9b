// SPDX-License-Identifier: MIT
#include "platform/terminal.h"

#include <windows.h>

namespace orrerix {

bool IsErrorShownOnTerminal() {
  DWORD mode = 0;
  return GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode) != 0;
}

}  // namespace orrerix
