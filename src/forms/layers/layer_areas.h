// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>

#include "forms/layers/layer_view.h"

namespace orrerix {

// Paints what stands below the lines and icons of the map: territories, zones, sectors, bodies and
// symbols. What lies outside `exposed` may be left out.
void PaintAreas(QPainter& painter, const LayerView& view, const QRectF& exposed);

}  // namespace orrerix
