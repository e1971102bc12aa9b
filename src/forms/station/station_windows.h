// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/station/station_info.h"

namespace orrerix {

// The station windows that stand open, any number side by side.
class StationWindows {
 public:
  explicit StationWindows(StationParts parts) : parts_(std::move(parts)) {}

  // Shows one more. It is freed when it is closed, or with this.
  void Open(const std::string& nickname, const std::string& picture);

  void CloseAll() { windows_.clear(); }

  // Those that are open, the oldest first.
  const std::vector<std::unique_ptr<StationInfo>>& Windows() const { return windows_; }

 private:
  void Forget(const StationInfo* window);

  const StationParts parts_;
  std::vector<std::unique_ptr<StationInfo>> windows_;
};

}  // namespace orrerix
