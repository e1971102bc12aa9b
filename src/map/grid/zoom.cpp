// SPDX-License-Identifier: MIT
#include "map/grid/zoom.h"

#include <limits>

#include "shell/routine.h"

namespace orrerix {
namespace {

constexpr std::size_t kLargestDepth = std::numeric_limits<std::int16_t>::max();

}  // namespace

bool ZoomRectangle::IsValid() const {
  return X1 >= 0 && X1 <= X2 && X2 <= MapMaxX && Y1 >= 0 && Y1 <= Y2 && Y2 <= MapMaxY;
}

void ZoomStack::Reset(const ZoomRectangle& rectangle) {
  current_ = rectangle;
  saved_.clear();
}

ZoomChange ZoomStack::PushZoomStack(ErrorLog& log, const ZoomRectangle& rectangle) {
  ZoomChange change = ZoomChange::None;
  Routine routine(log, "OrrerixMain.PushZoomStack");
  routine.Run([&] {
    if (!saved_.empty() && rectangle == current_) {
      change = ZoomChange::Beep;
      return;
    }
    routine.Try([&] {
      if (saved_.size() == kLargestDepth) throw RuntimeFailure(failure_number::kOverflow);
      saved_.emplace_back();
    });
    if (!saved_.empty()) saved_.back() = current_;
    current_ = rectangle;
    change = ZoomChange::Changed;
  });
  return change;
}

bool ZoomStack::PopZoomStack(ErrorLog& log) {
  bool restored = false;
  Routine routine(log, "OrrerixMain.PopZoomStack");
  routine.Run([&] {
    if (saved_.empty()) return;
    current_ = saved_.back();
    saved_.pop_back();
    restored = true;
  });
  return restored;
}

}  // namespace orrerix
