// SPDX-License-Identifier: MIT
#pragma once

namespace orrerix {

// Whether standard error is shown on a terminal.
bool IsErrorShownOnTerminal();

}  // namespace orrerix
