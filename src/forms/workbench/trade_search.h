// SPDX-License-Identifier: MIT
// The work of the trades page, done beside the event loop.
#pragma once

#include <QString>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/workbench/background_task.h"
#include "forms/workbench/way_leg_model.h"
#include "routes/travel.h"

namespace orrerix {

// What a player asks for. Places that are empty limit nothing.
struct TradeWishes {
  TravelRequest Travel;
  std::optional<std::int64_t> Hold;  // none: that of the ship, else 100
  std::optional<std::int64_t> Credits;
  std::string From;
  std::string To;
  int Hops = 1;  // with a loop at least 2
  bool Loop = false;
  PlanSorting Sorting = PlanSorting::Minute;
};

struct TradeWorld {
  orrerix::Travel Travel;
  orrerix::Market Market;
};

struct TradeOutcome {
  std::shared_ptr<const TradeWorld> World;
  TradeAnswer Answer;
  QString Error;  // why there is no answer
};

// The trades in a universe file.
TradeOutcome SearchTrades(const std::filesystem::path& universe, const TradeWishes& wishes,
                          Language language, const BackgroundTask::IsCancelled& isCancelled);

// What a leg of a plan carries: units, name and both prices; empty if nothing.
QString CargoText(const Market& market, const std::optional<Load>& cargo);

// The ways of all legs of a plan, one after the other.
std::vector<WayLegRow> LegsOf(const TradeWorld& world, const TradePlan& plan);

// That a name stands for nothing.
QString ErrorText(Language language, const UnknownName& error);

}  // namespace orrerix
