// SPDX-License-Identifier: MIT
// The picture and the text of the import's progress.
#pragma once

#include <cstdint>
#include <string>

#include "import/import_host.h"
#include "shell/whole_twip_rect.h"

namespace orrerix {

// The rectangle of all steps, growing from the middle of the frame, and within it that of the
// current step.
struct ProgressPicture {
  WholeTwipRect Overall;
  WholeTwipRect Inner;
};

ProgressPicture LayOutProgress(const WholeTwipRect& frame, std::int32_t maximum, std::int32_t value,
                               const ImportProgress& progress);

// "012.34% done.": the percent of the steps done, and after the point that of the current step.
std::string ProgressText(std::int32_t maximum, std::int32_t value, const ImportProgress& progress);

}  // namespace orrerix
