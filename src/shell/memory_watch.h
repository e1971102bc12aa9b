// SPDX-License-Identifier: MIT
// Three bars that compare the memory in use at the start with that in use now.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "db/values/number_text.h"
#include "platform/memory_status.h"
#include "shell/text_id.h"

namespace orrerix {

// The nine figures of the bars: physical memory, page file and address space, of each what was in
// use at the start, what has been added since, and what is free. Bytes, read as signed 32 bits.
// The last one is the free page file, as it has always been shown.
std::array<std::int32_t, 9> MemoryFigures(const MemoryStatus& start, const MemoryStatus& now);

// "1,234.50 MB "
std::string MemoryCaption(std::int32_t bytes, const NumberSeparators& separators = {});

// "Startup Memory Usage 12%     Actual Usage 15%"
std::string MemoryHeadline(Language language, const MemoryStatus& start, const MemoryStatus& now);

// One segment of a bar in twips.
struct MemorySegment {
  std::int16_t Left = 0;
  std::int16_t Width = 0;
};

// Lays out the nine segments in a form of this width, the first of each bar at `left`. The three
// segments of a bar always fill the width between `left` and 150 twips before the form's edge.
std::array<MemorySegment, 9> LayOutMemoryBars(const std::array<std::int32_t, 9>& figures,
                                              int formWidth, int left);

}  // namespace orrerix
