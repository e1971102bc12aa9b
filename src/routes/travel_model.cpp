// SPDX-License-Identifier: MIT
#include "routes/travel_model.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "db/values/number_text.h"
#include "db/values/text.h"
#include "routes/game_lines.h"
#include "routes/table_rows.h"

namespace orrerix {
namespace {

constexpr double kLiningUpSeconds = 7.5;

// The first row whose field holds a text, whatever its case.
bool FindRow(TableRows& rows, std::string_view field, std::string_view text) {
  for (; !rows.AtEnd(); rows.MoveNext()) {
    if (EqualIgnoringCase(rows.Text(field), text)) return true;
  }
  return false;
}

// Moves `engines` to the engine that is the first of its kind in a package.
bool FindEngine(FailureSink& sink, Database& universe, std::string_view package,
                TableRows& engine) {
  for (TableRows parts(sink, universe, "Packages"); !parts.AtEnd(); parts.MoveNext()) {
    if (!EqualIgnoringCase(parts.Text("PackageName"), package)) continue;
    const std::string part = parts.Text("NickName");
    if (part.empty()) continue;
    engine = TableRows(sink, universe, "engine");
    if (FindRow(engine, "nickname", part)) return true;
  }
  return false;
}

}  // namespace

std::int64_t Milliseconds(double seconds) {
  constexpr double noise = 0.000001;
  constexpr double longest = 9e15;  // what no sum of legs makes overflow
  return static_cast<std::int64_t>(std::clamp(std::ceil(1000 * seconds - noise), 0.0, longest));
}

std::int64_t FlyTime(const TravelModel& model, double distance) {
  return Milliseconds(
      std::min(distance / model.ImpulseSpeed, model.ChargeSeconds + distance / model.CruiseSpeed));
}

std::int64_t LaneTime(const TravelModel& model, double distance) {
  return Milliseconds(model.LaneSeconds + distance / model.LaneSpeed);
}

double LaneSecondsOf(FailureSink& sink, Database& universe) {
  TableRows lanes(sink, universe, "tradelane");
  const auto part = [&](std::string_view field, double otherwise) {
    return lanes.AtEnd() || lanes.IsEmpty(field) ? otherwise : lanes.Number(field);
  };
  return kLiningUpSeconds + part("secs_before_enter", 2) + part("secs_before_splash", 0.2) +
         part("secs_before_exit", 0.3);
}

std::optional<double> CruiseSpeedOfGame(const GameFolder& game) {
  std::string file;
  ForEachGameLine(game, "\\exe\\freelancer.ini", [&](const GameLine& line) {
    if (EqualIgnoringCase(line.Section, "Data") && EqualIgnoringCase(line.Key, "constants")) {
      file = line.Value;
    }
  });
  std::optional<double> speed;
  if (file.empty()) return speed;
  ForEachGameLine(game, "\\data\\" + file, [&](const GameLine& line) {
    if (!EqualIgnoringCase(line.Section, "EngineEquipConsts") ||
        !EqualIgnoringCase(line.Key, "CRUISING_SPEED")) {
      return;
    }
    const double value = Val(line.Value);
    if (value > 0) speed = value;
  });
  return speed;
}

std::optional<ShipTravel> TravelOfShip(FailureSink& sink, Database& universe,
                                       std::string_view nickname) {
  TableRows ship(sink, universe, "Ships");
  if (!FindRow(ship, "NickName", nickname)) return std::nullopt;
  ShipTravel travel;
  if (ship.Number("hold_size") >= 1) travel.HoldSize = ship.Number("hold_size");
  const std::string package = ship.Text("packagename");
  TableRows engine(sink, universe, "engine");
  if (package.empty() || !FindEngine(sink, universe, package, engine)) return travel;
  if (engine.Number("cruise_speed") > 0) travel.CruiseSpeed = engine.Number("cruise_speed");
  const double drag = engine.Number("linear_drag") + ship.Number("linear_drag");
  if (drag > 0 && engine.Number("max_force") / drag > 0) {
    travel.ImpulseSpeed = engine.Number("max_force") / drag;
  }
  if (!engine.IsEmpty("cruise_charge_time") && engine.Number("cruise_charge_time") >= 0) {
    travel.ChargeSeconds = engine.Number("cruise_charge_time");
  }
  return travel;
}

}  // namespace orrerix
