// SPDX-License-Identifier: MIT
#pragma once

#include <QGraphicsView>
#include <QPixmap>
#include <QTransform>
#include <QVariantAnimation>
#include <QWidget>

#include "map/redraw.h"

namespace orrerix {

// What the panel leaves of the map frame, in pixels.
QRectF OpenPart(const MapDrawing& drawing);

// Milliseconds that a movement takes where the desktop wants movements; 0 where it wants none, or
// where nobody sees them.
int DesktopGlideTime(const QWidget& widget);

// Lets the eye follow a zoom: a picture of the map of before grows or shrinks towards its new place
// while it fades. The map below is the new one at once, and the mouse belongs to it.
class MapGlide : public QWidget {
 public:
  explicit MapGlide(QGraphicsView& frame);

  // 0: nothing moves.
  void SetTime(int milliseconds) { movement_.setDuration(milliseconds); }

  // How long painting the map may take, in milliseconds. After three pictures in a row that took
  // longer nothing moves any more.
  void SetPatience(int milliseconds) { patience_ = milliseconds; }

  // To be called while the old drawing is on the frame. Does nothing if both show the same cells
  // in the same places, if one of them is for paper, or where painting takes too long.
  void Take(const MapDrawing& shown, const MapDrawing& next);

  // Starts the movement of what was taken; without that nothing happens.
  void Start();

  // Where the picture ends: from the pixels of the old drawing to those of the next one.
  const QTransform& End() const { return end_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Stop();

  QGraphicsView& frame_;
  QVariantAnimation movement_;  // from 0 to 1
  QPixmap before_;
  QRectF from_;  // the part of it that moves
  QRectF open_;  // where it is seen
  QTransform end_;
  int patience_ = 40;
  int slowPictures_ = 0;  // in a row
};

}  // namespace orrerix
