// SPDX-License-Identifier: MIT
#include "cli/travel_options.h"

#include <array>
#include <charconv>
#include <cmath>

#include <fmt/format.h>

#include "db/values/text.h"

namespace orrerix {
namespace {

struct ConstantOption {
  const char* Name;  // without the dashes; with "_" for "-" the key of the answer
  const char* Help;
  double TravelModel::*Field;
  bool IsSpeed;
};

constexpr std::array<ConstantOption, 9> kConstants = {{
    {"cruise-speed", "Cruise speed, game units a second", &TravelModel::CruiseSpeed, true},
    {"impulse-speed", "Impulse speed", &TravelModel::ImpulseSpeed, true},
    {"charge-seconds", "Time to charge the cruise engines", &TravelModel::ChargeSeconds, false},
    {"lane-speed", "Speed in a trade lane", &TravelModel::LaneSpeed, true},
    {"lane-seconds", "Time to enter and leave a lane", &TravelModel::LaneSeconds, false},
    {"gate-seconds", "Time of a jump gate", &TravelModel::GateSeconds, false},
    {"hole-seconds", "Time of a jump hole", &TravelModel::HoleSeconds, false},
    {"dock-seconds", "Time to dock", &TravelModel::DockSeconds, false},
    {"launch-seconds", "Time to launch", &TravelModel::LaunchSeconds, false},
}};

double ParseConstant(const ConstantOption& option, const std::string& text) {
  const auto number = WholeTextNumber(text);
  if (!number || *number < 0 || (option.IsSpeed && *number == 0)) {
    throw WrongUsage(fmt::format("--{} needs a number {} 0, not '{}'", option.Name,
                                 option.IsSpeed ? "above" : "from", text));
  }
  return *number;
}

}  // namespace

void AddTravelOptions(CLI::App& verb, TravelArguments& arguments) {
  arguments.Constants.resize(kConstants.size());
  for (std::size_t i = 0; i < kConstants.size(); ++i) {
    arguments.Constants[i].Field = kConstants[i].Field;
    AddText(verb, std::string("--") + kConstants[i].Name, arguments.Constants[i].Text,
            kConstants[i].Help);
  }
  AddText(verb, "--ship", arguments.Ship, "Ship whose speeds and hold count");
  AddText(verb, "--game", arguments.Game,
          "Game folder, for its cruise speed and all its locked gates");
  AddText(verb, "--avoid", arguments.Avoid, "Systems, objects and bases to keep away from: X,...");
  AddText(verb, "--avoid-faction", arguments.AvoidFactions, "Factions that let nobody dock: F,...");
  verb.add_flag("--no-gates", arguments.Switches.NoGates, "Take no jump gate");
  verb.add_flag("--no-holes", arguments.Switches.NoHoles, "Take no jump hole");
  verb.add_flag("--no-locked", arguments.Switches.NoLocked,
                "Take no jump that the story keeps locked");
}

void RequireWellFormed(const TravelArguments& arguments) {
  for (std::size_t i = 0; i < kConstants.size(); ++i) {
    if (const auto& text = arguments.Constants[i].Text) ParseConstant(kConstants[i], *text);
  }
}

Travel ReadTravel(Routine& routine, OpenedUniverse& universe, const TravelArguments& arguments) {
  TravelRequest request{arguments.Ship, arguments.Game, arguments.Switches};
  if (arguments.Avoid) request.Wishes.Avoid = SplitList(*arguments.Avoid);
  if (arguments.AvoidFactions) request.Wishes.AvoidFactions = SplitList(*arguments.AvoidFactions);
  return ReadTravel(routine, universe.Data.DB, request, [&](TravelModel& model) {
    for (std::size_t i = 0; i < kConstants.size(); ++i) {
      if (const auto& text = arguments.Constants[i].Text) {
        model.*kConstants[i].Field = ParseConstant(kConstants[i], *text);
      }
    }
  });
}

std::optional<double> WholeTextNumber(const std::string& text) {
  double number = 0;
  const char* const end = text.data() + text.size();
  const auto [next, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || next != end || !std::isfinite(number)) return std::nullopt;
  return number;
}

nlohmann::ordered_json ModelJson(const TravelModel& model) {
  nlohmann::ordered_json json;
  for (const ConstantOption& constant : kConstants) {
    std::string key = constant.Name;
    std::replace(key.begin(), key.end(), '-', '_');
    json[key] = model.*constant.Field;
  }
  return json;
}

double Seconds(std::int64_t milliseconds) {
  return static_cast<double>(milliseconds) / 1000;
}

}  // namespace orrerix
