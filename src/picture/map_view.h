// SPDX-License-Identifier: MIT
#pragma once

#include <QGraphicsView>

namespace orrerix {

// Makes a view show a map scene pixel for pixel, as fast as it can. The scene paints every pixel
// that it is asked for, so nothing is painted below it.
void SetUpMapView(QGraphicsView& view);

}  // namespace orrerix
