// SPDX-License-Identifier: MIT
// Places of the log window's controls.
#pragma once

namespace orrerix {

struct ControlPlace {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
  bool operator==(const ControlPlace&) const = default;
};

// All in twips. The lower half has places only while it is seen.
struct ErrorLogLayout {
  ControlPlace DataHeading;     // Label1(0)
  ControlPlace DataLog;         // Text1
  bool LowerHalfVisible = false;
  ControlPlace ProgramHeading;  // Label1(1)
  ControlPlace ProgramLog;      // Text2
};

// `width` and `height` are the window's outer size. As long as no program error occurred the data
// log fills the window; from the first one on both logs share it half and half.
ErrorLogLayout LayOutErrorLog(int width, int height, bool hasProgramError);

}  // namespace orrerix
