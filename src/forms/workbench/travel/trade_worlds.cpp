// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/trade_worlds.h"

#include <algorithm>

#include "db/engine/working_copy.h"
#include "forms/workbench/throw_failures.h"
#include "platform/file_time.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostKnown = 2;

std::shared_ptr<const TradeWorld> ReadWorld(const fs::path& universe, const TravelRequest& request,
                                            const BackgroundTask::IsCancelled& isCancelled) {
  ThrowFailures sink;
  WorkingCopy copy;
  Database& data = copy.Of(sink, universe);
  auto world = std::make_shared<TradeWorld>();
  world->Travel = ReadTravel(sink, data, request);
  const Travel& travel = world->Travel;
  world->Market = ReadMarket(sink, data, travel.Graph, travel.Limits);
  world->Times.emplace(travel.Graph, travel.Model, travel.Limits, [&] { return !isCancelled(); });
  return world->Times->IsComplete() ? world : nullptr;
}

}  // namespace

std::shared_ptr<const TradeWorld> TradeWorlds::Of(const fs::path& universe,
                                                  const TravelRequest& request,
                                                  const BackgroundTask::IsCancelled& isCancelled) {
  std::error_code none;
  const fs::file_time_type changed = LastChanged(universe, none);
  const auto isIt = [&](const Known& known) {
    return known.File == universe && known.Changed == changed && known.Request == request;
  };
  {
    const std::lock_guard lock(mutex_);
    const auto found = std::find_if(known_.begin(), known_.end(), isIt);
    if (found != known_.end()) return found->World;
  }
  std::shared_ptr<const TradeWorld> world = ReadWorld(universe, request, isCancelled);
  if (!world) return nullptr;
  const std::lock_guard lock(mutex_);
  if (known_.size() == kMostKnown) known_.erase(known_.begin());
  known_.push_back({universe, changed, request, world});
  return world;
}

}  // namespace orrerix
