// SPDX-License-Identifier: MIT
#include "online/news_band.h"

#include <algorithm>
#include <cstddef>

namespace orrerix {
namespace {

constexpr int kStep = 21;

}  // namespace

std::vector<BandLabel> ScrolledNews(std::vector<BandLabel> labels, int bottom) {
  BandLabel* gone = nullptr;
  int lowest = 0;
  for (std::size_t n = 1; n < labels.size(); ++n) {
    BandLabel& label = labels[n];
    label.Top -= kStep;
    if (label.Top < 0 && -label.Top > label.Height) gone = &label;
    label.Visible = label.Top < bottom;
    lowest = std::max(lowest, label.Top);
  }
  if (gone != nullptr) gone->Top = lowest + gone->Height;
  return labels;
}

}  // namespace orrerix
