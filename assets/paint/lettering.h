// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QString>

namespace orrerix {

// The middle lines of the program's name in its own capitals (E, I, O, R and X are known), the
// left end at 0, 0. They are to be drawn with a pen of about a sixth of the height, so that no
// font is needed. `gap` is the space between letters.
QPainterPath Lettering(const QString& text, double height, double gap);

}  // namespace orrerix
