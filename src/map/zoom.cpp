// SPDX-License-Identifier: MIT
#include "map/zoom.h"

namespace orrerix {

bool ZoomRectangle::IsValid() const {
  return X1 >= 0 && X1 <= X2 && X2 <= MapMaxX && Y1 >= 0 && Y1 <= Y2 && Y2 <= MapMaxY;
}

void ZoomStack::Reset(const ZoomRectangle& rectangle) {
  current_ = rectangle;
  saved_.clear();
}

ZoomChange ZoomStack::PushZoomStack(const ZoomRectangle& rectangle) {
  if (!saved_.empty() && rectangle == current_) return ZoomChange::Beep;
  saved_.push_back(current_);
  current_ = rectangle;
  return ZoomChange::Changed;
}

bool ZoomStack::PopZoomStack() {
  if (saved_.empty()) return false;
  current_ = saved_.back();
  saved_.pop_back();
  return true;
}

}  // namespace orrerix
