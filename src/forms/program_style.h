// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

namespace orrerix {

// The look that all windows share: light letters on the blue of the panel, on every desktop.
// Needs a QApplication.
void SetProgramStyle();

// Those colors, and dark letters on light panels for people who read them with more ease.
QPalette DarkPanels();
QPalette LightPanels();

// Whether texts stand on a light background.
bool IsLight(const QPalette& colors);

}  // namespace orrerix
