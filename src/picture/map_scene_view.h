// SPDX-License-Identifier: MIT
#pragma once

#include <QGraphicsView>
#include <QImage>
#include <QPointer>
#include <QRegion>
#include <QTransform>
#include <cstdint>
#include <optional>

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
    QTransform ToDevice;  // from the scene to the picture's pixels
    QSize Size;
    double DevicePixelRatio = 1;
    bool operator==(const Look&) const = default;
  };

  void Renew(MapScene& map, const Look& look);
  void Paint(MapScene& map, const std::optional<QRegion>& part);

  bool isPainting_ = false;
  QImage still_;
  Look look_;
  std::uint64_t version_ = 0;  // of the still items in the picture
};

}  // namespace orrerix
