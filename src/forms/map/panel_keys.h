// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractScrollArea>
#include <QPointF>
#include <functional>
#include <set>
#include <vector>

#include "map/redraw.h"

namespace orrerix {

// Gives the panel's tools, switches, language and news a place in the order of the Tab key, and a
// name for screen readers: one button over each, unseen but for the mark of the focus. The mouse
// goes through them.
class PanelKeys {
 public:
  // Called on Enter and Space with the control and its index, 0 without one.
  using Activate = std::function<void(ControlId id, int index)>;

  // The buttons belong to `frame`.
  PanelKeys(QAbstractScrollArea& frame, Activate activate);

  // Puts them where the controls of a drawing are.
  void Follow(const MapDrawing& drawing);

 private:
  class Key;

  Key* Add(ControlId id, int index);
  void FollowControls(const ControlList& controls, const QPointF& corner, std::set<Key*>& gone);
  Key* KeyOf(ControlId id, int index) const;
  Key* KeyFor(const Control& control, int index);

  QWidget* parent_;
  Activate activate_;
  std::vector<Key*> keys_;  // in the order of the Tab key
};

}  // namespace orrerix
