// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <array>

#include "canvas.h"

namespace orrerix {

constexpr int LogoWidth = 640;
constexpr int LogoHeight = 160;

// One ring of the orrery and the world on it. Both halves of the emblem draw the same rings.
struct OrreryRing {
  double Radius;  // along the long axis, natural pixels
  double Turn;    // where its world stands, in turns, clockwise from the right
  double World;   // radius of the world
};

constexpr std::array<OrreryRing, 4> OrreryRings{
    {{66, 0.86, 5}, {118, 0.38, 8}, {176, 0.965, 10}, {240, 0.44, 7}}};

constexpr double SunRadius = 24;

// The point of a ring at an angle in turns, on the tilted plane of the orrery.
Spot OnRing(double radius, double turn);

// The two halves, each over the whole area; the emblem shows one triangle of each.
QImage PaintLogoSky(int scale);
void DrawLogoMachine(QPainter& painter);

}  // namespace orrerix
