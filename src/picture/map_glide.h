// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QTransform>
#include <QVariantAnimation>
#include <functional>
#include <optional>

#include "map/redraw.h"

namespace orrerix {

// Where a drawing has the cells of the map.
struct ShownCells {
  CellGeometry Cells;
  TwipRect Frame;
  bool OnPaper = false;

  static ShownCells Of(const MapDrawing& drawing) {
    return {drawing.Cells, drawing.Frame, drawing.PrintMode};
  }
};

// From the pixels of the map in one place to those in another. Null if both are the same, if one of
// them is for paper, or if the frames differ.
std::optional<QTransform> WayBetween(const ShownCells& from, const ShownCells& to);

// What a zoom shows until the new map is painted, and while the eye follows it: a picture of the
// map of before, on its way to where its cells are now. All places are pixels of the device.
class MapGlide {
 public:
  MapGlide();

  // Milliseconds of a movement; 0: the picture is at once where it ends.
  void SetTime(int milliseconds) { movement_.setDuration(milliseconds); }

  // Called whenever the picture has moved.
  std::function<void()> OnMove;

  // Shows `part` of a picture, and moves it along the way. A picture that is shown already hands
  // its place over.
  void Begin(QImage picture, const QRect& part, const QTransform& way);

  // The map has moved on before it was painted: the same picture leaves for another place.
  void Redirect(const QTransform& way);

  void End();

  bool IsShown() const { return !picture_.isNull(); }
  bool IsMoving() const { return movement_.state() == QAbstractAnimation::Running; }

  // Where the picture is, and where it ends.
  QTransform Now() const;
  const QTransform& Goal() const { return goal_; }

  // The pixels that it hides now.
  QRect Hides() const;

  // Paints it in a part of the device. It is quick: points that are enlarged are squares.
  void Paint(QPainter& painter, const QRect& part) const;

 private:
  void Leave(const QTransform& start, const QTransform& goal);

  QVariantAnimation movement_;  // from 0 to 1
  QImage picture_;
  QRect part_;  // of the picture
  QTransform start_;
  QTransform goal_;
};

}  // namespace orrerix
