// SPDX-License-Identifier: MIT
#pragma once

#include <QGraphicsView>
#include <QRegion>
#include <functional>

#include "picture/map_glide.h"
#include "picture/map_scene.h"
#include "picture/still_picture.h"

namespace orrerix {

// Shows a map scene pixel for pixel. It keeps a picture of what is still in the scene, in the
// window's own pixels, so that most redraws copy it and paint the rest.
//
// In the window no redraw waits for what takes long: after a zoom the picture of before is shown in
// its new place, and the new one is painted in passes. Whoever renders or grabs the view waits.
class MapSceneView : public QGraphicsView {
 public:
  explicit MapSceneView(QWidget* parent = nullptr);

  // Called when there is something to paint in passes, and when a zoom has ended, which sets memory
  // free. Without it nothing waits for passes.
  std::function<void()> OnUnfinished;

  // Paints the next pass, and returns which pixels of the view (logical ones) will be painted again
  // for it. Null if there was nothing to do.
  std::optional<QRegion> PaintMore();

  // The movement after a zoom.
  MapGlide& Glide() { return glide_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void drawBackground(QPainter* painter, const QRectF& exposed) override;

  // Whether the painter is at work on the window itself.
  virtual bool IsOnWindow(const QPainter& painter) const;

 private:
  MapScene* Map() const { return dynamic_cast<MapScene*>(scene()); }
  bool Moves(MapScene& map, const StillLook& look);
  void Renew(MapScene& map, const StillLook& look, bool inPasses);
  void EndGlide();
  void Draw(QPainter& painter) const;
  QRegion InView(const QRegion& pixels) const;

  bool isPainting_ = false;
  StillPicture still_;
  ShownCells cells_;  // of what is in the picture
  MapGlide glide_;
};

}  // namespace orrerix
