// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractScrollArea>
#include <functional>
#include <string>
#include <vector>

#include "forms/map/map_keys.h"
#include "map/grid/icon_steps.h"
#include "map/redraw.h"

namespace orrerix {

// Gives the icons that are seen on the map one place in the order of the Tab key, after the map
// itself, and each of them a name for screen readers: a button over each, unseen but for the mark
// of the focus. The arrow keys go from one to the next, Home to the first. The mouse goes through
// them.
class IconKeys {
 public:
  struct Events {
    std::function<void(int icon)> Enter;    // an icon has the focus now
    std::function<void()> Leave;            // none has it any more
    std::function<void(int icon)> Press;    // Enter or Space
    std::function<void(MapKey key)> OnMap;  // a key that is the map's own; the map has the focus
  };

  // Names of icons, for screen readers, in the order of the controls.
  using NamesOf = std::function<std::vector<std::string>(const std::vector<const Control*>& icons)>;

  // The buttons belong to `frame`, which outlives this.
  IconKeys(QAbstractScrollArea& frame, Events events);
  ~IconKeys();
  IconKeys(const IconKeys&) = delete;
  IconKeys& operator=(const IconKeys&) = delete;

  // Puts them where the icons of a drawing are. The names are asked for if the icons are others.
  // A focus on an icon that is gone goes to the map.
  void Follow(const MapDrawing& drawing, const std::string& description, const NamesOf& namesOf);

 private:
  class Key;

  void MakeKeys(std::size_t count);
  void SetNames(const std::vector<const Control*>& icons, const std::string& description,
                const NamesOf& namesOf);
  void MakeStop(std::size_t key);
  void Step(StepDirection direction);
  bool KeyPress(int key);

  QAbstractScrollArea& frame_;
  Events events_;
  std::vector<Key*> keys_;  // more than icons: the others are hidden
  std::vector<std::string> texts_;
  std::vector<IconPoint> points_;
  std::string description_;
  std::size_t stop_ = 0;  // the one that the Tab key leads to
};

}  // namespace orrerix
