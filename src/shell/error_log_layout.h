// SPDX-License-Identifier: MIT
// Places of the log window's controls.
#pragma once

#include "shell/whole_twip_rect.h"

namespace orrerix {

// All in twips. The lower half has places only while it is seen.
struct ErrorLogLayout {
  WholeTwipRect DataHeading;
  WholeTwipRect DataLog;
  bool LowerHalfVisible = false;
  WholeTwipRect ProgramHeading;
  WholeTwipRect ProgramLog;
};

// `width` and `height` are the window's outer size. As long as no program error occurred the data
// log fills the window; from the first one on both logs share it half and half.
ErrorLogLayout LayOutErrorLog(int width, int height, bool hasProgramError);

}  // namespace orrerix
