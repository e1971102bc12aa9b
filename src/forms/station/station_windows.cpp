// SPDX-License-Identifier: MIT
#include "forms/station/station_windows.h"

#include <algorithm>

namespace orrerix {

void StationWindows::Open(const std::string& nickname, const std::string& picture) {
  windows_.push_back(std::make_unique<StationInfo>(parts_, nickname, picture));
  StationInfo* window = windows_.back().get();
  window->OnClosed = [this, window] { Forget(window); };
  window->show();
}

// The window's own event is on the stack: it goes with the next turn of the event loop.
void StationWindows::Forget(const StationInfo* window) {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& known) { return known.get() == window; });
  if (found == windows_.end()) return;
  found->release()->deleteLater();
  windows_.erase(found);
}

}  // namespace orrerix
