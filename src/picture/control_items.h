// SPDX-License-Identifier: MIT
// The controls of a drawing list as items of a graphics scene.
#pragma once

#include <QGraphicsItem>
#include <memory>
#include <vector>

#include "map/drawing_list.h"
#include "picture/picture_store.h"
#include "picture/still_changes.h"

namespace orrerix {

// The items at the back of a scene that stay as they are through most redraws. A view may keep a
// picture of them; what paints the picture calls their Draw.
struct StillItems {
  bool AreKept = false;  // the view that is being painted has a picture of them
  StillChanges Changes;  // of what they look like
};

// Shows one control, or several lines; the controls outlive their item. An item's origin is the top
// left corner of its control, that of lines the corner of their parent.
class ControlItem : public QGraphicsItem {
 public:
  ControlItem(const Control& control, QGraphicsItem* parent);

  const Control& Shown() const { return *control_; }

  // Goes over to a control that equals the one shown, before that one ends; for lines to the first
  // of them.
  void Rebind(const Control& same);

  // Where the name of a system has its letters, in the scene's coordinates; empty for all others.
  virtual QRectF NameLetters() const { return {}; }

  // What it asks the pictures for: a file or another name; empty if nothing.
  virtual QString PictureName() const { return {}; }

  // The part of the scene in which nothing below can be seen.
  virtual QRectF Hides() const { return {}; }

  // The device's pixels in which it paints, if it knows them, and those of them in which nothing
  // below can be seen. The painter is in the item's coordinates.
  virtual QRect PaintedPixels(const QPainter&) const { return {}; }
  virtual QRect HiddenPixels(const QPainter&) const { return {}; }

  // Joins the items that stay as they are; null takes it out, which also comes before its end. Both
  // change what these look like. An item that is not a layer leaves its children as they are.
  virtual void SetStill(StillItems* still);
  StillItems* Still() const { return still_; }
  bool IsStill() const { return still_ != nullptr; }

  // Whether it may paint in a part of the scene.
  bool IsSeenIn(const QRegion& part) const {
    return part.intersects(PaintedPart().adjusted(-1, -1, 1, 1).toAlignedRect());
  }

  // The part of the scene in which it leaves pixels; soft edges may go a pixel further.
  virtual QRectF PaintedPart() const { return mapRectToScene(boundingRect()); }

  // Adds the place in which it paints to the changes, if it is still.
  virtual void MarkChanged() const;

  // Paints it, with the painter in the item's coordinates.
  virtual void Draw(QPainter& painter, const QStyleOptionGraphicsItem& option, QWidget* widget) = 0;

  // Draws it where no picture of it is shown instead.
  void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) final;

  // Lines let the letters in these places shine through; nothing else does.
  virtual void SpareLetters(const std::vector<QRectF>&) {}

  // The control behind an item; every item of a map scene has one.
  static const Control& Of(const QGraphicsItem& item) {
    return static_cast<const ControlItem&>(item).Shown();
  }

 protected:
  // To be called when it looks other than before without having been made anew.
  void SetChanged();

 private:
  const Control* control_;
  StillItems* still_ = nullptr;
};

// The whole pixels of a place.
QRect WholePixelsWithin(const QRectF& box);

// What items are made for.
struct ItemView {
  QRectF Open;           // what can be seen of pictures and lines, in the parent's coordinates
  bool OnPaper = false;  // lines are drawn as they are, without what helps them on a dark sky
  bool operator==(const ItemView&) const = default;
};

// Makes the item of a control, with those of its children. It belongs to the parent or, without
// one, to the caller.
ControlItem* MakeControlItem(const Control& control, PictureStore& pictures, const ItemView& view,
                             QGraphicsItem* parent);

}  // namespace orrerix
