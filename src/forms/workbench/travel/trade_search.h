// SPDX-License-Identifier: MIT
// The work of the trades page, done beside the event loop.
#pragma once

#include <QString>
#include <exception>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/workbench/travel/trade_worlds.h"
#include "forms/workbench/travel/way_leg_model.h"
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

struct TradeOutcome {
  std::shared_ptr<const TradeWorld> World;
  TradeAnswer Answer;
  QString Error;  // why there is no answer
};

// The trades in a universe file.
TradeOutcome SearchTrades(TradeWorlds& worlds, const std::filesystem::path& universe,
                          const TradeWishes& wishes, Language language,
                          const BackgroundTask::IsCancelled& isCancelled);

// What a leg of a plan carries: units, name and both prices; empty if nothing.
QString CargoText(const Market& market, const std::optional<Load>& cargo);

// The ways of all legs of a plan, one after the other.
std::vector<WayLegRow> LegsOf(const TradeWorld& world, const TradePlan& plan);

// The jumps of each plan of an answer, summed over its legs.
std::vector<int> JumpsOf(const TradeOutcome& outcome,
                         const BackgroundTask::IsCancelled& isCancelled);

// What is aboard at most: the hold that is wished for, else that of the ship, else 100.
double HoldOf(const std::optional<std::int64_t>& wished, const Travel& travel);

// Why background work came to nothing: the words for what it threw.
QString ErrorText(Language language, const std::exception_ptr& error);

}  // namespace orrerix
