// SPDX-License-Identifier: MIT
// A universe to travel in, as a player asks for it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>

#include "routes/market.h"
#include "routes/places.h"
#include "routes/trades.h"
#include "routes/travel_graph.h"
#include "routes/travel_model.h"
#include "routes/why_no_way.h"

namespace orrerix {

struct TravelRequest {
  std::optional<std::string> Ship;  // whose speeds and hold count
  std::optional<std::string> Game;  // folder, for its cruise speed and all its locked gates
  TravelWishes Wishes;

  bool operator==(const TravelRequest&) const = default;
};

// The travel graph of a universe with the speeds and limits of a request.
struct Travel {
  TravelGraph Graph;
  TravelModel Model;
  TravelWishes Wishes;
  std::set<std::uint32_t> Locked;
  TravelLimits Limits;
  std::optional<double> ShipHold;  // of the ship that was named
};

enum class NameKind { Ship, PlaceToAvoid, Faction, Place, Stop };

// A name that stands for nothing.
struct UnknownName : std::runtime_error {
  UnknownName(NameKind kind, std::string name);
  NameKind Kind;
  std::string Name;
};

// Reads it. The ship counts before the game and the game before the defaults; `adjust` has the last
// word about the model. Throws UnknownName for a ship, a place to avoid or a faction.
Travel ReadTravel(
    FailureSink& sink, Database& universe, const TravelRequest& request,
    const std::function<void(TravelModel&)>& adjust = [](TravelModel&) {});

// The open docks that a name stands for and that the market has; with `anyDock` those without a
// market, too. Throws UnknownName if there is none.
std::vector<NodeIndex> RequireStops(const Travel& travel, const Market& market,
                                    std::string_view name, bool anyDock = false);

// The place of a way. Throws UnknownName if there is none.
TravelPlace RequirePlace(const TravelGraph& graph, std::string_view name);

// Credits a minute; a time below a millisecond counts as one.
double PerMinute(std::int64_t profit, std::int64_t milliseconds);

// Whether the plans of a question get a way back.
bool HasReturns(const TradeQuestion& question);

}  // namespace orrerix
