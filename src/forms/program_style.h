// SPDX-License-Identifier: MIT
#pragma once

namespace orrerix {

// The look that all windows share: light letters on the blue of the panel, on every desktop.
// Needs a QApplication.
void SetProgramStyle();

}  // namespace orrerix
