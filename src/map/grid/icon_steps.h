// SPDX-License-Identifier: MIT
// Goes from one icon of the map to the next by the arrow keys.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace orrerix {

enum class StepDirection { Left, Right, Up, Down };

// The middle of an icon, in any unit: to the right, and down.
struct IconPoint {
  double X = 0;
  double Y = 0;
};

// The nearest point in a direction, where what lies off the straight way counts as twice as far.
// Points at the same place follow each other by right and down in their order, by left and up the
// other way round. Nothing if no point lies there. `from` is one of the points.
std::optional<std::size_t> NextIcon(const std::vector<IconPoint>& points, std::size_t from,
                                    StepDirection direction);

// The point that is read first: the topmost, of those the leftmost. Nothing without points.
std::optional<std::size_t> FirstIcon(const std::vector<IconPoint>& points);

}  // namespace orrerix
