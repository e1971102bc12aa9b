// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <functional>
#include <vector>

#include "forms/map/map_screen.h"
#include "online/news_band.h"

namespace orrerix {

// Moves the news in the panel's info box if they do not fit.
class NewsController {
 public:
  // Both must outlive this.
  NewsController(MapScreen& screen, ErrorLog& log);

  // To be called after each redraw: the labels begin at their own places again.
  void MapRedrawn();

  // The labels have moved in the scene.
  std::function<void()> OnMoved;

  bool Scrolls() const { return timer_.isActive(); }

  // One step; the timer calls it.
  void ScrollNews();

 private:
  void ShowBand();

  MapScreen& screen_;
  ErrorLog& log_;
  QTimer timer_;
  ControlList all_;  // all labels of the band as they were laid out
  std::vector<BandLabel> band_;
  int bottom_ = 0;
};

}  // namespace orrerix
