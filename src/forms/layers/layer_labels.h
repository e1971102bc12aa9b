// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QString>
#include <vector>

#include "forms/layers/layer_view.h"

namespace orrerix {

// A name on the map with its place.
struct LayerLabel {
  QString Text;
  QRectF Box;
  QColor Ink;
};

// The smallest type of names, points.
inline constexpr int kLabelPoints = 8;

// The names that the layers show, placed so that none covers another, an icon of the map or the
// scale bar. Those of systems come first; a name without a free place is left out.
std::vector<LayerLabel> PlaceNames(const LayerView& view, const QFont& font);

// Where the scale bar stands; empty where none is shown.
QRectF ScaleBarPlace(const LayerView& view);

// Paints the names, the letters of the sectors and the scale bar.
void PaintNames(QPainter& painter, const LayerView& view, const std::vector<LayerLabel>& names,
                const QFont& font);

}  // namespace orrerix
