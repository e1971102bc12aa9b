// SPDX-License-Identifier: MIT
#include "shell/error_log_layout.h"

#include <algorithm>

#include "db/values/number_text.h"

namespace orrerix {

ErrorLogLayout LayOutErrorLog(int width, int height, bool hasProgramError) {
  ErrorLogLayout layout;
  layout.DataHeading = {120, 0, 7095, 255};
  layout.DataLog = {120, 240, 0, 0};
  layout.DataLog.Width = std::max(0, width - 2 * layout.DataLog.Left);
  layout.DataLog.Height = std::max(0, height - 2 * layout.DataLog.Top - 300);
  layout.ProgramHeading = {120, 2760, 7095, 255};
  layout.ProgramLog = {120, 3000, 7092, 2535};
  if (!hasProgramError) return layout;
  layout.LowerHalfVisible = true;
  layout.ProgramLog.Width = std::max(0, width - 2 * layout.ProgramLog.Left);
  layout.ProgramHeading.Top = static_cast<int>(RoundToEven(height / 2.0));
  layout.ProgramLog.Top = layout.ProgramHeading.Top + layout.ProgramHeading.Height;
  layout.DataLog.Height = std::max(0, layout.ProgramHeading.Top - layout.DataLog.Top);
  layout.ProgramLog.Height = std::max(0, height - 300 - layout.ProgramLog.Top);
  return layout;
}

}  // namespace orrerix
