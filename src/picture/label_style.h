// SPDX-License-Identifier: MIT
// How labels are drawn.
#pragma once

#include <Qt>

#include "map/drawing_list.h"

namespace orrerix {

// What a label's control does not carry because it never changes.
struct LabelStyle {
  double MarginX = 0;  // logical pixels kept free at the sides, at top and bottom
  double MarginY = 0;
  Qt::Alignment Alignment = Qt::AlignHCenter | Qt::AlignTop;
  bool FixedWidth = false;  // letters of one width
  bool Lines = false;       // it has lines of its own; each is shown as far as the label reaches
  bool Overflows = false;   // what is too long for it leaves it
  bool Wraps = false;       // at word ends, in a smaller font if it must; else it is cut with "..."
  bool Transparent = false;  // its back colour is not painted
  bool Spared = false;       // lines in front of it pale
  bool Outlined = false;     // dark round the letters, where the background may be bright
};

// Names of systems stand on white paper in print, and need no outline there.
LabelStyle StyleOf(const Control& label, bool onPaper);

}  // namespace orrerix
