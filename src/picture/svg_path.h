// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QStringView>
#include <vector>

namespace orrerix {

// The numbers of an SVG attribute, separated by blanks and commas. What is no number ends them.
std::vector<double> SvgNumbers(QStringView text);

// The path of an SVG attribute "d" in absolute coordinates: M, L, H, V, C and Z. Anything else ends
// it; what was read until then stays.
QPainterPath SvgPath(QStringView text);

}  // namespace orrerix
