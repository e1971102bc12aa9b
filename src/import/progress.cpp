// SPDX-License-Identifier: MIT
#include "import/progress.h"

#include <cmath>

#include <fmt/format.h>

#include "db/values/number_text.h"

namespace orrerix {
namespace {

int Rounded(double number) {
  return static_cast<int>(RoundToEven(number));
}

struct Shares {
  double Steps;  // of all steps
  double Part;   // of the current step
};

Shares SharesOf(std::int32_t maximum, std::int32_t value, const ImportProgress& progress) {
  return {progress.ImportSteps == 0
              ? 0.0
              : progress.ImportDone / static_cast<double>(progress.ImportSteps),
          maximum == 0 ? 0.0 : value / static_cast<double>(maximum)};
}

WholeTwipRect Centred(int x, int y, int halfWidth, int halfHeight) {
  return {x - halfWidth, y - halfHeight, 2 * halfWidth, 2 * halfHeight};
}

}  // namespace

ProgressPicture LayOutProgress(const WholeTwipRect& frame, std::int32_t maximum, std::int32_t value,
                               const ImportProgress& progress) {
  const auto [steps, part] = SharesOf(maximum, value, progress);
  const int y = Rounded(frame.Top + frame.Height / 2.0);
  const int halfHeight = Rounded(frame.Height / 2.0);
  const int x = Rounded(frame.Left + frame.Width / 2.0);
  const int halfWidth = Rounded(frame.Width / 2.0);
  const auto overall = [&, share = steps, within = part](int half) {
    const double oneStep =
        progress.ImportSteps == 0 ? 0.0 : half / static_cast<double>(progress.ImportSteps);
    return Rounded(share * half + oneStep * within);
  };
  const int overallWidth = overall(halfWidth);
  const int overallHeight = overall(halfHeight);
  return {Centred(x, y, overallWidth, overallHeight),
          Centred(x, y, Rounded(part * overallWidth), Rounded(part * overallHeight))};
}

std::string ProgressText(std::int32_t maximum, std::int32_t value, const ImportProgress& progress) {
  const auto [steps, part] = SharesOf(maximum, value, progress);
  const double percent = std::floor(steps * 100 + 0.5) + std::floor(part * 100 + 0.5) / 100;
  return fmt::format("{:06.2f}% done.", percent);
}

}  // namespace orrerix
