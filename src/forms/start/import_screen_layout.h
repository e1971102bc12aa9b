// SPDX-License-Identifier: MIT
// Places on the first screen: before an import and during one.
#pragma once

#include "shell/whole_twip_rect.h"

namespace orrerix {

struct ImportScreenInput {
  int FormWidth = 0;  // outer size of the form, twips
  int FormHeight = 0;
  int ButtonWidth = 0;  // of StartButton
  int MemFrameHeight = 0;
  bool Importing = false;
};

// All in twips; no width or height goes below 0. What an import has no use for is hidden during
// one, and the other way round; see the screen itself.
struct ImportScreenLayout {
  WholeTwipRect Text;
  WholeTwipRect GameFolder;   // its height is the box's own
  WholeTwipRect StartButton;  // only its left and top
  WholeTwipRect Progress;     // Progress(0), during an import
  WholeTwipRect MemFrame;     // during an import
};

ImportScreenLayout LayOutImportScreen(const ImportScreenInput& input);

// Outer place of the window while it imports, on a screen of this size: as wide as the screen, so
// that the right half shows the progress.
WholeTwipRect ImportWindowPlace(int screenWidth, int screenHeight, int memFrameHeight);

}  // namespace orrerix
