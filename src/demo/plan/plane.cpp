// SPDX-License-Identifier: MIT
#include "demo/plan/plane.h"

#include <algorithm>
#include <cmath>

namespace orrerix::demo {

double SineOfTurn(double turn) {
  turn -= std::floor(turn);
  if (turn >= 0.5) return -SineOfTurn(turn - 0.5);
  if (turn > 0.25) turn = 0.5 - turn;
  const double x = turn * 6.283185307179586;
  const double square = x * x;
  return x *
         (1 - square / 6 *
                  (1 - square / 20 * (1 - square / 42 * (1 - square / 72 * (1 - square / 110)))));
}

double CosineOfTurn(double turn) {
  return SineOfTurn(turn + 0.25);
}

PlanePoint OnCircle(double turn, double radius) {
  return {CosineOfTurn(turn) * radius, SineOfTurn(turn) * radius};
}

double TurnOf(PlanePoint point) {
  const double x = std::abs(point.X);
  const double y = std::abs(point.Y);
  double low = 0;
  double high = 0.25;
  // Within the first quarter the direction passes the point's own once, so that halving finds it.
  for (int step = 0; step < 40; ++step) {
    const double middle = (low + high) / 2;
    (CosineOfTurn(middle) * y > SineOfTurn(middle) * x ? low : high) = middle;
  }
  const double turn = point.X < 0 ? 0.5 - low : low;
  return point.Y < 0 && turn > 0 ? 1 - turn : turn;
}

double Distance(PlanePoint a, PlanePoint b) {
  return std::sqrt((a.X - b.X) * (a.X - b.X) + (a.Y - b.Y) * (a.Y - b.Y));
}

PlanePoint Along(PlanePoint a, PlanePoint b, double share) {
  return {a.X + (b.X - a.X) * share, a.Y + (b.Y - a.Y) * share};
}

double DistanceFromMiddle(PlanePoint a, PlanePoint b) {
  const double length = Distance(a, b);
  if (length == 0) return Distance(a, {});
  const double dot = -(a.X * (b.X - a.X) + a.Y * (b.Y - a.Y)) / (length * length);
  return Distance(Along(a, b, std::clamp(dot, 0.0, 1.0)), {});
}

}  // namespace orrerix::demo
