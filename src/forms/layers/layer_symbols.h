// SPDX-License-Identifier: MIT
// The symbols of the layers.
#pragma once

#include <QColor>
#include <QPainter>

#include "space/layers.h"

namespace orrerix {

// A sun: a bright disc with a glow. A planet: a shaded disc. `radius` in pixels.
void DrawSun(QPainter& painter, QPointF middle, double radius, bool onPaper);
void DrawPlanet(QPainter& painter, QPointF middle, double radius, bool onPaper);

// A ring around a gate; that of a hole is dashed.
void DrawGate(QPainter& painter, QPointF middle, double radius, const QColor& color, bool isHole);

// A triangle for a weapon platform, a diamond for a wreck.
void DrawPlatform(QPainter& painter, QPointF middle, const QColor& color);
void DrawWreck(QPainter& painter, QPointF middle, const QColor& color);

// The symbol of a layer that is no area, in the middle of a box.
void DrawLegendSymbol(QPainter& painter, Layer layer, const QRectF& box);

}  // namespace orrerix
