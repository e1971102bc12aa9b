// SPDX-License-Identifier: MIT
#include "map/grid/icon_steps.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace orrerix {
namespace {

constexpr double kSideways = 2;  // how much farther what is off the straight way counts

struct Way {
  double Ahead = 0;
  double Aside = 0;
};

Way WayTo(const IconPoint& from, const IconPoint& to, StepDirection direction) {
  const double x = to.X - from.X;
  const double y = to.Y - from.Y;
  switch (direction) {
    case StepDirection::Left:
      return {-x, std::abs(y)};
    case StepDirection::Right:
      return {x, std::abs(y)};
    case StepDirection::Up:
      return {-y, std::abs(x)};
    case StepDirection::Down:
      return {y, std::abs(x)};
  }
  return {};
}

// The next point at the same place, in the order of the points or against it.
std::optional<std::size_t> TwinOf(const std::vector<IconPoint>& points, std::size_t from,
                                  bool forward) {
  const auto isTwin = [&](std::size_t at) {
    return points[at].X == points[from].X && points[at].Y == points[from].Y;
  };
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (forward ? from + i >= points.size() : i > from) break;
    const std::size_t at = forward ? from + i : from - i;
    if (isTwin(at)) return at;
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::size_t> NextIcon(const std::vector<IconPoint>& points, std::size_t from,
                                    StepDirection direction) {
  const bool forward = direction == StepDirection::Right || direction == StepDirection::Down;
  if (const auto twin = TwinOf(points, from, forward)) return twin;
  std::optional<std::size_t> nearest;
  double least = 0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Way way = WayTo(points[from], points[i], direction);
    if (way.Ahead <= 0) continue;
    const double distance = way.Ahead + kSideways * way.Aside;
    // Of twins the first on the way, so that all of them are passed.
    if (nearest && (forward ? distance >= least : distance > least)) continue;
    nearest = i;
    least = distance;
  }
  return nearest;
}

std::optional<std::size_t> FirstIcon(const std::vector<IconPoint>& points) {
  if (points.empty()) return std::nullopt;
  const auto first = std::min_element(
      points.begin(), points.end(),
      [](const auto& a, const auto& b) { return std::tie(a.Y, a.X) < std::tie(b.Y, b.X); });
  return static_cast<std::size_t>(first - points.begin());
}

}  // namespace orrerix
