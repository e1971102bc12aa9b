// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <array>

#include "canvas.h"

namespace orrerix {

constexpr int LogoWidth = 400;
constexpr int LogoHeight = 300;

// One ring of the orrery and the world on it. Both halves of the emblem draw the same rings.
struct OrreryRing {
  double Radius;  // along the long axis, natural pixels
  double Turn;    // where its world stands, in turns, clockwise from the right
  double World;   // radius of the world
};

constexpr std::array<OrreryRing, 4> OrreryRings{
    {{58, 0.86, 6}, {96, 0.36, 9}, {136, 0.995, 12}, {174, 0.43, 8}}};

constexpr double SunRadius = 26;

// The point of a ring at an angle in turns, on the tilted plane of the orrery.
Spot OnRing(double radius, double turn);

// The two halves, each over the whole area; the emblem shows one triangle of each.
QImage PaintLogoSky(int scale);
void DrawLogoMachine(QPainter& painter);

}  // namespace orrerix
