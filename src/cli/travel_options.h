// SPDX-License-Identifier: MIT
// What way, trade and travel-times have in common.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "cli/opened_universe.h"
#include "routes/travel.h"
#include "shell/routine.h"

namespace orrerix {

// The arguments about ships, speeds and what to keep away from, as they were given.
struct TravelArguments {
  struct Constant {
    double TravelModel::*Field;
    std::optional<std::string> Text;
  };
  std::vector<Constant> Constants;
  std::optional<std::string> Ship;
  std::optional<std::string> Game;
  std::optional<std::string> Avoid;
  std::optional<std::string> AvoidFactions;
  TravelWishes Switches;  // --no-gates and its like; its lists stay empty
};

void AddTravelOptions(CLI::App& verb, TravelArguments& arguments);

// Throws WrongUsage for a speed that is not above 0 or a time below 0. To be asked before a
// universe is opened.
void RequireWellFormed(const TravelArguments& arguments);

// Throws CouldNot for a ship, a place or a faction that is not there.
Travel ReadTravel(Routine& routine, OpenedUniverse& universe, const TravelArguments& arguments);

// A number that is all of a text; nothing if it is not one or not finite.
std::optional<double> WholeTextNumber(const std::string& text);

nlohmann::ordered_json ModelJson(const TravelModel& model);

// Milliseconds as seconds.
double Seconds(std::int64_t milliseconds);

}  // namespace orrerix
