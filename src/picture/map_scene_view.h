// SPDX-License-Identifier: MIT
#pragma once

#include <QGraphicsView>
#include <QImage>
#include <QPointer>
#include <QTransform>
#include <cstdint>

#include "picture/map_scene.h"

namespace orrerix {

// Shows a map scene pixel for pixel. It keeps a picture of what is still in the scene, in the
// window's own pixels, so that most redraws copy it and paint the rest.
class MapSceneView : public QGraphicsView {
 public:
  explicit MapSceneView(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void drawBackground(QPainter* painter, const QRectF& exposed) override;

 private:
  // What the picture depends on besides the scene's content.
  struct Look {
    QPointer<QGraphicsScene> Scene;
    std::uint64_t Version = 0;
    QTransform ToDevice;  // from the scene to the picture's pixels
    QSize Size;
    double DevicePixelRatio = 1;
    bool operator==(const Look&) const = default;
  };

  void PaintPicture(MapScene& map, const Look& look);

  bool isPainting_ = false;
  QImage still_;
  Look look_;
};

}  // namespace orrerix
