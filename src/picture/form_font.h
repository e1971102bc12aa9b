// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

namespace orrerix {

// The face of all captions in a size in points of 20 twips. It is set in logical pixels, so that a
// text keeps its place on the map whatever resolution the desktop claims to have.
QFont FormFont(int points);

// The same size in a face whose characters share one width.
QFont FixedFont(int points);

// The face of the spoiler warning, "Courier New" or the one with its metrics.
QFont CourierFont(int points);

}  // namespace orrerix
