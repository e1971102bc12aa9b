// SPDX-License-Identifier: MIT
// How fast a ship travels: every constant of the travel times, in one place.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "db/database.h"
#include "platform/game_path.h"

namespace orrerix {

// Speeds in game units a second, above 0; durations in seconds, from 0 on.
struct TravelModel {
  double CruiseSpeed = 300;  // CRUISING_SPEED of the game's constants
  double ImpulseSpeed = 80;  // the usual engine against the usual drag
  double ChargeSeconds = 5;  // cruise_charge_time of the engines
  double LaneSpeed = 2250;   // fixed in the game
  double LaneSeconds = 10;   // lining up, entering, splash, leaving
  double GateSeconds = 20;   // estimates: the files do not say what a jump or a dock takes
  double HoleSeconds = 15;
  double DockSeconds = 10;
  double LaunchSeconds = 5;
};

// A duration as it is kept: whole milliseconds, rounded up, never below 0. A hair above a whole
// millisecond counts as that one, so that the noise of floating-point sums makes no difference.
std::int64_t Milliseconds(double seconds);

// What each leg takes, for a distance in game units.
std::int64_t FlyTime(const TravelModel& model, double distance);
std::int64_t LaneTime(const TravelModel& model, double distance);

// Seconds of a ride along a trade lane beside its distance: 7.5 for lining up, and the times before
// entering, splash and exit that the first row of table `tradelane` gives, or 2, 0.2 and 0.3.
double LaneSecondsOf(FailureSink& sink, Database& universe);

// The last CRUISING_SPEED above 0 of [EngineEquipConsts] in the file of constants that the game's
// freelancer.ini names; nothing if there is none. Plain and packed files are read.
std::optional<double> CruiseSpeedOfGame(const GameFolder& game);

// What a ship and the engine of its package say; nothing where they say nothing or a speed or
// divisor of 0 or less.
struct ShipTravel {
  std::optional<double> CruiseSpeed;
  std::optional<double> ImpulseSpeed;  // max_force / (linear_drag of engine and ship)
  std::optional<double> ChargeSeconds;
  std::optional<double> HoldSize;  // at least 1
};

// The first ship with a nickname, whatever its case; nothing if there is none.
std::optional<ShipTravel> TravelOfShip(FailureSink& sink, Database& universe,
                                       std::string_view nickname);

}  // namespace orrerix
