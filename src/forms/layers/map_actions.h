// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRect>
#include <QString>
#include <string>

#include "forms/layers/map_space.h"
#include "map/bookmarks.h"

namespace orrerix {

// What a key does with a point of the map, or with the map as it is shown. Points are pixels of the
// frame.
class MapActions {
 public:
  // All of these outlive this.
  MapActions(MapScreen& screen, const MapSpace& space, ErrorLog& log, const LanguageChoice& choice)
      : screen_(screen), space_(space), log_(log), choice_(choice) {}

  // The place at a point, or the point, in the game's notation and numbers; empty beside the map.
  std::string CoordinatesAt(QPointF point) const;

  // A bookmark of the place at a point, else of what the map shows.
  Bookmark BookmarkAt(QPointF point) const;
  Bookmark BookmarkOfView() const;

  // The part of the frame that shows cells, without the panel.
  QRect ShownPart() const;

  // Where the pointer is.
  QPointF Pointer() const;

  // Asks for a file and writes the map as it is shown. Returns what is to be said about it; empty
  // if the user gave up.
  QString SaveAs(QWidget& parent) const;

 private:
  std::string NameOf(const ZoomRectangle& view) const;

  MapScreen& screen_;
  const MapSpace& space_;
  ErrorLog& log_;
  const LanguageChoice& choice_;
};

}  // namespace orrerix
