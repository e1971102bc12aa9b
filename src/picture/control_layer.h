// SPDX-License-Identifier: MIT
// The layers of a map scene.
#pragma once

#include <span>
#include <vector>

#include "picture/control_items.h"
#include "picture/picture_store.h"

namespace orrerix {

// The layers of a list, back to front: each is a run of controls of one array and one kind. Trade
// lanes are a layer apart from other lines.
std::vector<std::span<const Control>> LayersOf(const ControlList& controls);

// The items of one layer, which are its children. A layer that changes leaves all others as they
// are.
class ControlLayer : public ControlItem {
 public:
  ControlLayer();

  // Whether it shows controls of the same array and kind as this one.
  bool Holds(const Control& control) const;

  // Shows a layer of the next list in the place of the one before, whose list must still be there.
  // Those that both begin with keep their items, unless the view is another one.
  void Show(std::span<const Control> controls, PictureStore& pictures, const ItemView& view);

  // Changes one of the controls, which keeps its place in the stack. False if it is none of this
  // layer's.
  bool Replace(Control& known, const Control& changed, PictureStore& pictures);

  // Precondition: Show has been called.
  const Control& First() const { return controls_.front(); }

  // One for each control; a single one for lines.
  const std::vector<ControlItem*>& Items() const { return items_; }

  // Its items, too.
  void SetStill(StillItems* still) override;
  // Whether the last Show made items.
  bool IsNew() const { return isNew_; }

  void SpareLetters(const std::vector<QRectF>& letters) override;
  QRectF boundingRect() const override { return {}; }
  void Draw(QPainter&, const QStyleOptionGraphicsItem&, QWidget*) override {}

 private:
  void Add(ControlItem* item);
  void Remove(std::size_t first);
  std::size_t KeepItems(std::span<const Control> next);

  std::span<const Control> controls_;
  std::vector<ControlItem*> items_;
  bool isNew_ = true;
  ItemView view_;
};

}  // namespace orrerix
