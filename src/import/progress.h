// SPDX-License-Identifier: MIT
// The picture and the text of the import's progress.
#pragma once

#include <cstdint>
#include <string>

#include "import/import_host.h"

namespace orrerix {

// A rectangle in twips.
struct ProgressBox {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
  bool operator==(const ProgressBox&) const = default;
};

// The rectangle of all steps, growing from the middle of the frame, and within it that of the
// current step.
struct ProgressPicture {
  ProgressBox Overall;
  ProgressBox Inner;
};

ProgressPicture LayOutProgress(const ProgressBox& frame, std::int32_t maximum, std::int32_t value,
                               const ImportProgress& progress);

// "012.34% done.": the percent of the steps done, and behind the point that of the current step.
std::string ProgressText(std::int32_t maximum, std::int32_t value, const ImportProgress& progress);

}  // namespace orrerix
