// SPDX-License-Identifier: MIT
#pragma once

namespace orrerix::demo {

// A point of a system's map plane in game units, the sun near 0, 0. X grows to the right of the
// map, Y downwards; the game's height axis is left out.
struct PlanePoint {
  double X = 0;
  double Y = 0;
};

// Sine and cosine of a share of a full turn. Our own series: the C library's last digit differs
// between platforms, and the game written must not.
double SineOfTurn(double turn);
double CosineOfTurn(double turn);

// The point at `radius` from 0, 0 in the direction `turn`: 0 right, a quarter down.
PlanePoint OnCircle(double turn, double radius);

// Direction of a point seen from 0, 0 as a share of a turn, 0 up to 1. 0 for the middle itself.
double TurnOf(PlanePoint point);

double Distance(PlanePoint a, PlanePoint b);

// The point that lies `share` of the way from a to b.
PlanePoint Along(PlanePoint a, PlanePoint b, double share);

// Distance of the middle of the plane from the line between a and b.
double DistanceFromMiddle(PlanePoint a, PlanePoint b);

}  // namespace orrerix::demo
