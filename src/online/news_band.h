// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace orrerix {

// Milliseconds between two steps of the news band.
inline constexpr int kNewsInterval = 5000;

// Place of a news label in the info box, twips.
struct BandLabel {
  int Top = 0;
  int Height = 0;
  bool Visible = true;
};

// One step of the band of news, which goes round without an end: all labels but the first, which
// stands still, move up by 21 twips; one that has left the box at its top comes back below the
// last. Labels that have not reached `bottom`, where the box ends, are hidden.
std::vector<BandLabel> ScrolledNews(std::vector<BandLabel> labels, int bottom);

}  // namespace orrerix
