// SPDX-License-Identifier: MIT
// The markets and travel times of a universe, kept while the program runs.
#pragma once

#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "forms/workbench/background_task.h"
#include "routes/travel.h"

namespace orrerix {

// A universe as one ship travels and trades in it. It stays where it is made, since the times refer
// to the rest.
struct TradeWorld {
  orrerix::Travel Travel;
  orrerix::Market Market;
  std::optional<TravelTimes> Times;
};

// Gives the world of a universe file and a request, reading it only if neither it nor the file has
// been asked for lately. Several threads may ask at once.
class TradeWorlds {
 public:
  // Nothing if the reading was cancelled. Throws what reading throws.
  std::shared_ptr<const TradeWorld> Of(const std::filesystem::path& universe,
                                       const TravelRequest& request,
                                       const BackgroundTask::IsCancelled& isCancelled);

 private:
  struct Known {
    std::filesystem::path File;
    std::filesystem::file_time_type Changed;
    TravelRequest Request;
    std::shared_ptr<const TradeWorld> World;
  };

  std::mutex mutex_;
  std::vector<Known> known_;  // the latest last
};

}  // namespace orrerix
