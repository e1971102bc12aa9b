// SPDX-License-Identifier: MIT
// Colours and lines of the layers, told apart by pattern as well as by colour.
#pragma once

#include <QBrush>
#include <QColor>
#include <QIcon>
#include <QPen>

#include "space/layers.h"

namespace orrerix {

struct AreaStyle {
  QPen Outline;
  QBrush Fill;
};

AreaStyle StyleOf(ZoneKind kind, bool onPaper);

// The territory of a faction by its place in Space::Factions: neighbours in the list differ in hue,
// and each third one is hatched otherwise.
AreaStyle TerritoryStyle(std::size_t faction, bool onPaper);

// Text of a layer's names and the colour of its symbols.
QColor InkOf(Layer layer, bool onPaper);

// What a layer looks like, for the legend.
QIcon LegendOf(Layer layer);
QIcon LegendOfFaction(std::size_t faction);

}  // namespace orrerix
