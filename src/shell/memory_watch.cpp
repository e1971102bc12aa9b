// SPDX-License-Identifier: MIT
#include "shell/memory_watch.h"

#include <algorithm>
#include <limits>

#include "shell/language_texts.h"

namespace orrerix {
namespace {

constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr int kRightMargin = 150;

std::int64_t Signed(std::uint32_t figure) {
  return static_cast<std::int32_t>(figure);
}

std::int32_t NotNegative(std::int64_t figure) {
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(figure, 0, kMost));
}

std::int16_t ClampToInteger(double number) {
  return static_cast<std::int16_t>(std::clamp(RoundToEven(number), -32768.0, 32767.0));
}

}  // namespace

std::array<std::int32_t, 9> MemoryFigures(const MemoryStatus& start, const MemoryStatus& now) {
  std::array<std::int32_t, 9> figures{};
  const auto bar = [&figures](std::size_t first, std::int64_t atStart, std::int64_t inUse,
                              std::uint32_t available) {
    figures[first] = NotNegative(atStart);
    figures[first + 1] = NotNegative(inUse - figures[first]);
    figures[first + 2] = static_cast<std::int32_t>(available);
  };
  bar(0, Signed(start.dwTotalPhys) - Signed(start.dwAvailPhys),
      Signed(now.dwTotalPhys) - Signed(now.dwAvailPhys), now.dwAvailPhys);
  bar(3, Signed(start.dwTotalPageFile) - Signed(start.dwAvailPageFile),
      Signed(now.dwTotalPageFile) - Signed(now.dwAvailPageFile), now.dwAvailPageFile);
  bar(6, Signed(start.dwTotalVirtual) - Signed(start.dwAvailVirtual),
      Signed(now.dwTotalVirtual) - Signed(now.dwAvailVirtual), now.dwAvailPageFile);
  return figures;
}

std::string MemoryCaption(std::int32_t bytes, const NumberSeparators& separators) {
  return FormatGrouped(bytes / 1024.0 / 1024.0, 2, separators) + " MB ";
}

std::string MemoryHeadline(Language language, const MemoryStatus& start, const MemoryStatus& now) {
  return FormatIn(language, TextId::MemoryUsage, start.dwMemoryLoad, now.dwMemoryLoad);
}

std::array<MemorySegment, 9> LayOutMemoryBars(const std::array<std::int32_t, 9>& figures,
                                              int formWidth, int left) {
  std::array<MemorySegment, 9> segments;
  const std::int16_t width = ClampToInteger(formWidth - left - kRightMargin);
  for (std::size_t first = 0; first < figures.size(); first += 3) {
    const std::int64_t sum =
        static_cast<std::int64_t>(figures[first]) + figures[first + 1] + figures[first + 2];
    const auto whole = static_cast<double>(std::clamp<std::int64_t>(sum, 1, kMost));
    MemorySegment& used = segments[first];
    MemorySegment& added = segments[first + 1];
    MemorySegment& free = segments[first + 2];
    used.Width = ClampToInteger(width / whole * figures[first]);
    added.Width = ClampToInteger(width / whole * figures[first + 1]);
    free.Width = ClampToInteger(width - used.Width - added.Width);
    used.Left = ClampToInteger(left);
    added.Left = ClampToInteger(used.Left + used.Width);
    free.Left = ClampToInteger(added.Left + added.Width);
  }
  return segments;
}

}  // namespace orrerix
