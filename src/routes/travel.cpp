// SPDX-License-Identifier: MIT
#include "routes/travel.h"

#include <algorithm>

#include <fmt/format.h>

namespace orrerix {
namespace {

std::string TextOf(NameKind kind, const std::string& name) {
  switch (kind) {
    case NameKind::Ship:
      return fmt::format("there is no ship '{}'", name);
    case NameKind::PlaceToAvoid:
      return fmt::format("there is no system, object or base '{}' to avoid", name);
    case NameKind::Faction:
      return fmt::format("there is no faction '{}' to avoid", name);
    case NameKind::Stop:
      return fmt::format("there is no place of trade '{}'", name);
    case NameKind::Place:
      break;
  }
  return fmt::format("there is no place '{}'", name);
}

// Speeds of the ship over those of a model; the hold of the ship.
std::optional<double> ApplyShip(FailureSink& sink, Database& universe, const std::string& nickname,
                                TravelModel& model) {
  const auto ship = TravelOfShip(sink, universe, nickname);
  if (!ship) throw UnknownName(NameKind::Ship, nickname);
  model.CruiseSpeed = ship->CruiseSpeed.value_or(model.CruiseSpeed);
  model.ImpulseSpeed = ship->ImpulseSpeed.value_or(model.ImpulseSpeed);
  model.ChargeSeconds = ship->ChargeSeconds.value_or(model.ChargeSeconds);
  return ship->HoldSize;
}

void RequireKnown(FailureSink& sink, Database& universe, const TravelGraph& graph,
                  const TravelWishes& wishes) {
  for (const std::string& name : wishes.Avoid) {
    if (NodesToAvoid(graph, name).empty() && !graph.FindSystem(NicknameOfRow(name))) {
      throw UnknownName(NameKind::PlaceToAvoid, name);
    }
  }
  for (const std::string& faction : wishes.AvoidFactions) {
    if (!IsFaction(sink, universe, graph, faction)) throw UnknownName(NameKind::Faction, faction);
  }
}

}  // namespace

UnknownName::UnknownName(NameKind kind, std::string name)
    : std::runtime_error(TextOf(kind, name)), Kind(kind), Name(std::move(name)) {}

Travel ReadTravel(FailureSink& sink, Database& universe, const TravelRequest& request,
                  const std::function<void(TravelModel&)>& adjust) {
  Travel travel;
  std::optional<GameFolder> game;
  if (request.Game) game.emplace(*request.Game);
  travel.Model.LaneSeconds = LaneSecondsOf(sink, universe);
  if (game) {
    travel.Model.CruiseSpeed = CruiseSpeedOfGame(*game).value_or(travel.Model.CruiseSpeed);
  }
  if (request.Ship) travel.ShipHold = ApplyShip(sink, universe, *request.Ship, travel.Model);
  adjust(travel.Model);
  travel.Graph = ReadTravelGraph(sink, universe);
  travel.Wishes = request.Wishes;
  RequireKnown(sink, universe, travel.Graph, travel.Wishes);
  travel.Locked = LockedNumbers(sink, universe, game ? &*game : nullptr);
  travel.Limits = LimitsOf(travel.Graph, travel.Wishes, travel.Locked);
  return travel;
}

std::vector<NodeIndex> RequireStops(const Travel& travel, const Market& market,
                                    std::string_view name, bool anyDock) {
  const auto isStop = [&](NodeIndex dock) {
    return std::any_of(market.Stops.begin(), market.Stops.end(),
                       [dock](const TradeStop& stop) { return stop.Dock == dock; });
  };
  std::vector<NodeIndex> docks = DocksOfTrade(travel.Graph, name);
  std::erase_if(
      docks, [&](NodeIndex dock) { return anyDock ? !travel.Limits.IsOpen(dock) : !isStop(dock); });
  if (docks.empty()) throw UnknownName(NameKind::Stop, std::string(name));
  return docks;
}

TravelPlace RequirePlace(const TravelGraph& graph, std::string_view name) {
  TravelPlace place = PlaceOfWay(graph, name);
  if (place.Nodes.empty()) throw UnknownName(NameKind::Place, std::string(name));
  return place;
}

double PerMinute(std::int64_t profit, std::int64_t milliseconds) {
  return static_cast<double>(profit) * 60'000 /
         static_cast<double>(std::max<std::int64_t>(1, milliseconds));
}

bool HasReturns(const TradeQuestion& question) {
  return question.Via.empty() && question.Hops == 1 && !question.Loop;
}

}  // namespace orrerix
