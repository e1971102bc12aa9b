// SPDX-License-Identifier: MIT
#include "forms/map/news_controller.h"

#include <algorithm>

#include "map/grid/numeric.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

constexpr int kInfoBox = 2;  // index of the info box among the panel's frames

Control* InfoBoxOf(Control& panel) {
  for (Control& child : panel.Children) {
    if (child.Id == ControlId::PanelFrame && child.Index == kInfoBox) return &child;
  }
  return nullptr;
}

bool IsNews(const Control& control) {
  return control.Id == ControlId::NewsLabel;
}

// The slogan's label, where the news end.
bool IsSlogan(const Control& control) {
  return control.Id == ControlId::InfoBoxLine && control.Index == 0;
}

}  // namespace

NewsController::NewsController(MapScreen& screen, ErrorLog& log) : screen_(screen), log_(log) {
  timer_.setInterval(kNewsInterval);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { ScrollNews(); });
}

void NewsController::MapRedrawn() {
  timer_.stop();
  all_.clear();
  band_.clear();
  const Control* panel = screen_.Scene().Find(ControlId::PanelFrame, 0);
  if (panel == nullptr || !screen_.Drawing().NewsScrolls) return;
  Control copy = *panel;
  const Control* box = InfoBoxOf(copy);
  if (box == nullptr) return;
  for (const Control& child : box->Children) {
    if (IsSlogan(child)) bottom_ = WholeTwips(child.Place.Top);
    if (!IsNews(child)) continue;
    all_.push_back(child);
    const int top = WholeTwips(child.Place.Top);
    band_.push_back({top, WholeTwips(child.Place.Height), true});
  }
  timer_.start();
}

void NewsController::ScrollNews() {
  Routine routine(log_, "OrrerixMain.NewsTimer_Timer");
  routine.Run([&] {
    band_ = ScrolledNews(std::move(band_), bottom_);
    ShowBand();
  });
}

void NewsController::ShowBand() {
  const Control* shown = screen_.Scene().Find(ControlId::PanelFrame, 0);
  if (shown == nullptr) return;
  Control panel = *shown;
  ControlList& children = InfoBoxOf(panel)->Children;
  auto at = std::find_if(children.begin(), children.end(), IsNews);
  at = children.erase(at, std::find_if_not(at, children.end(), IsNews));
  for (std::size_t n = 0; n < all_.size(); ++n) {
    all_[n].Place.Top = band_[n].Top;
    if (band_[n].Visible) at = children.insert(at, all_[n]) + 1;
  }
  screen_.Scene().Replace(panel);
  if (OnMoved) OnMoved();
}

}  // namespace orrerix
