// SPDX-License-Identifier: MIT
// The map of the window as a picture file.
#pragma once

#include <QGraphicsView>
#include <QString>
#include <QStringList>

namespace orrerix {

// The kinds of files that can be written, as a file dialog lists them.
QStringList PictureFilters();

// Writes a part of the map (pixels of the frame) with all that stands over it. The name's ending
// says which kind of file: .png in twice the size, .svg or .pdf; without one of them it is .png.
// Returns the name of the file that was written; empty if it cannot be written.
QString SaveMap(QGraphicsView& map, const QRect& part, const QString& file);

}  // namespace orrerix
