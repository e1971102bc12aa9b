// SPDX-License-Identifier: MIT
// travel-times: how long it takes from each dock to each other one.
#include <memory>

#include <fmt/format.h>

#include "cli/travel_options.h"
#include "cli/verbs.h"
#include "routes/travel_times.h"

namespace orrerix {
namespace {

using Json = nlohmann::ordered_json;

std::string JsonText(const Json& json) {
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json DocksJson(const Travel& travel, const TravelTimes& times) {
  Json docks = Json::array();
  for (const NodeIndex node : times.Docks()) {
    const TravelObject& dock = travel.Graph.Objects[node];
    docks.push_back({{"nickname", dock.Nickname},
                     {"name", dock.Name},
                     {"base", dock.Base},
                     {"system", travel.Graph.Systems[dock.System].Nickname}});
  }
  return docks;
}

// One row at a time: the whole table of a large universe would not fit into a document.
void PrintTimesJson(const Travel& travel, const TravelTimes& times) {
  fmt::print("{{\"model\": {},\n\"docks\": {},\n\"seconds\": [", JsonText(ModelJson(travel.Model)),
             JsonText(DocksJson(travel, times)));
  for (std::size_t from = 0; from < times.Docks().size(); ++from) {
    std::string line = from == 0 ? "\n[" : ",\n[";
    const std::vector<std::int64_t> row = times.RowFrom(from);
    for (std::size_t to = 0; to < row.size(); ++to) {
      if (to > 0) line += ',';
      line += row[to] == kUnreachable ? "null" : fmt::format("{}", Seconds(row[to]));
    }
    fmt::print("{}]", line);
  }
  fmt::print("]}}\n");
}

void PrintTimes(const Travel& travel, const TravelTimes& times) {
  const auto nickname = [&](std::size_t dock) -> const std::string& {
    return travel.Graph.Objects[times.Docks()[dock]].Nickname;
  };
  for (std::size_t from = 0; from < times.Docks().size(); ++from) {
    const std::vector<std::int64_t> row = times.RowFrom(from);
    for (std::size_t to = 0; to < row.size(); ++to) {
      if (row[to] == kUnreachable) continue;
      fmt::print("{}\t{}\t{}\n", nickname(from), nickname(to), Seconds(row[to]));
    }
  }
}

int RunTravelTimes(const CommonOptions& options, const TravelArguments& arguments) {
  RequireWellFormed(arguments);
  OpenedUniverse universe(options);
  Routine routine(universe.Data.Log, "orrerix-cli.travel-times");
  int exitCode = kCouldNot;
  routine.Run([&] {
    const Travel travel = ReadTravel(routine, universe, arguments);
    const TravelTimes times(travel.Graph, travel.Model, travel.Limits);
    options.Json ? PrintTimesJson(travel, times) : PrintTimes(travel, times);
    exitCode = kDone;
  });
  return exitCode;
}

}  // namespace

void AddTravelTimesVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  auto arguments = std::make_shared<TravelArguments>();
  CLI::App* verb =
      app.add_subcommand("travel-times", "How long it takes from each dock to each other one");
  AddTravelOptions(*verb, *arguments);
  verb->callback([&options, &run, arguments] {
    run = [&options, arguments] { return RunTravelTimes(options, *arguments); };
  });
}

}  // namespace orrerix
