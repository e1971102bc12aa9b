// SPDX-License-Identifier: MIT
// The layers as items of the map's scene.
#pragma once

#include <QPixmap>
#include <functional>

#include "picture/control_items.h"

namespace orrerix {

// Shows what a function paints in a part of the scene. On a screen it is painted once and kept as a
// picture, elsewhere, as on paper, each time anew. Nothing points at it; as a control it is the
// bare map frame.
class PaintedItem : public ControlItem {
 public:
  using Paint = std::function<void(QPainter&, const QRectF& exposed)>;
  explicit PaintedItem(Paint paint);

  // Another content, or another place for it (scene's coordinates).
  void Renew(const QRectF& place);

  // What the kept picture takes, in bytes.
  qint64 BytesOfPicture() const;

  QRectF boundingRect() const override { return place_; }
  QPainterPath shape() const override { return {}; }
  bool contains(const QPointF&) const override { return false; }
  void Draw(QPainter& painter, const QStyleOptionGraphicsItem& option, QWidget* widget) override;

 private:
  void DrawPicture(double devicePixelRatio);

  Paint paint_;
  QRectF place_;
  QPixmap picture_;        // null if there is nothing to be seen in it
  double drawnRatio_ = 0;  // device pixels of a logical one in it; 0 if it is to be drawn
};

}  // namespace orrerix
