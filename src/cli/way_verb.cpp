// SPDX-License-Identifier: MIT
// way: the fastest way between two places, or why there is none.
#include <cstdio>
#include <memory>

#include <fmt/format.h>

#include "cli/json_text.h"
#include "cli/travel_options.h"
#include "cli/verbs.h"
#include "routes/fastest_way.h"

namespace orrerix {
namespace {

using Json = nlohmann::ordered_json;

struct WayArguments {
  std::string From;
  std::string To;
  TravelArguments Travel;
};

const char* NameOf(LegKind kind) {
  switch (kind) {
    case LegKind::Launch:
      return "launch";
    case LegKind::Gate:
      return "gate";
    case LegKind::Hole:
      return "hole";
    case LegKind::Lane:
      return "lane";
    case LegKind::Dock:
      return "dock";
    case LegKind::Fly:
      break;
  }
  return "fly";
}

const char* NameOf(JumpObstacle obstacle) {
  switch (obstacle) {
    case JumpObstacle::Avoided:
      return "avoid";
    case JumpObstacle::NoGates:
      return "no-gates";
    case JumpObstacle::NoHoles:
      return "no-holes";
    case JumpObstacle::Locked:
      return "locked";
    case JumpObstacle::Missing:
      break;
  }
  return "missing";
}

Json WayJson(const Travel& travel, const Way& way) {
  const auto& objects = travel.Graph.Objects;
  Json json = {{"found", true},
               {"model", ModelJson(travel.Model)},
               {"from", objects[way.From].Nickname},
               {"to", objects[way.To].Nickname},
               {"seconds", Seconds(way.Time())},
               {"distance", way.Distance()},
               {"jumps", way.Jumps()}};
  json["legs"] = Json::array();
  for (const WayLeg& leg : way.Legs) {
    const TravelObject& from = objects[leg.From];
    const TravelObject& to = objects[leg.To];
    json["legs"].push_back({{"kind", NameOf(leg.Kind)},
                            {"from", from.Nickname},
                            {"from_name", from.Name},
                            {"to", to.Nickname},
                            {"to_name", to.Name},
                            {"system", travel.Graph.Systems[from.System].Nickname},
                            {"distance", leg.Distance},
                            {"seconds", Seconds(leg.Time)}});
  }
  return json;
}

Json WhyJson(const TravelGraph& graph, const WhyNoWay& why) {
  Json json = {{"items", Json::array()}, {"all", why.AllTogether}, {"blocked", Json::array()}};
  for (const WishItem& item : why.Items) {
    json["items"].push_back(
        {{"option", item.Option}, {"value", item.Value ? Json(*item.Value) : Json(nullptr)}});
  }
  for (const BlockedJump& jump : why.Blocked) {
    const TravelObject& object = graph.Objects[jump.Object];
    json["blocked"].push_back({{"object", object.Nickname},
                               {"system", graph.Systems[object.System].Nickname},
                               {"goto", jump.Goto},
                               {"because", NameOf(jump.Because)}});
  }
  json["entrances"] = why.Entrances;
  json["nearest"] = nullptr;
  if (why.Nearest) {
    json["nearest"] = {{"system", graph.Systems[why.Nearest->System].Nickname},
                       {"object", graph.Objects[why.Nearest->Object].Nickname},
                       {"seconds", Seconds(why.Nearest->Time)},
                       {"cells", why.Nearest->Cells}};
  }
  return json;
}

void PrintWay(const Travel& travel, const Way& way) {
  const auto& objects = travel.Graph.Objects;
  fmt::print("{:<7}{:<10}{:>12}{:>10}  {}\n", "leg", "system", "distance", "seconds", "to");
  for (const WayLeg& leg : way.Legs) {
    const TravelObject& to = objects[leg.To];
    fmt::print("{:<7}{:<10}{:>12.0f}{:>10.1f}  {} ({})\n", NameOf(leg.Kind),
               travel.Graph.Systems[objects[leg.From].System].Nickname, leg.Distance,
               Seconds(leg.Time), to.Name.empty() ? to.Nickname : to.Name, to.Nickname);
  }
  fmt::print("{} to {}: {:.1f} seconds, {:.0f} units, {} jumps\n", objects[way.From].Nickname,
             objects[way.To].Nickname, Seconds(way.Time()), way.Distance(), way.Jumps());
}

void PrintWhy(const TravelGraph& graph, const WhyNoWay& why) {
  for (const WishItem& item : why.Items) {
    fmt::print("There is a way without --{}{}\n", item.Option,
               item.Value ? " " + *item.Value : std::string());
  }
  if (why.AllTogether && why.Items.empty()) fmt::print("There is a way without all options\n");
  for (const BlockedJump& jump : why.Blocked) {
    const TravelObject& object = graph.Objects[jump.Object];
    fmt::print("{} in {} leads to {}: {}\n", object.Nickname, graph.Systems[object.System].Nickname,
               jump.Goto, NameOf(jump.Because));
  }
  fmt::print("{} jumps lead there from other systems\n", why.Entrances);
  if (why.Nearest) {
    fmt::print("Nearest system that is reached: {}, {:.1f} cells away, after {:.1f} seconds\n",
               graph.Systems[why.Nearest->System].Nickname, why.Nearest->Cells,
               Seconds(why.Nearest->Time));
  }
}

int AnswerNoWay(const CommonOptions& options, const WayArguments& arguments, const Travel& travel,
                const TravelPlace& from, const TravelPlace& to) {
  const WhyNoWay why =
      ExplainNoWay(travel.Graph, travel.Model, travel.Wishes, travel.Locked, from, to);
  if (options.Json) {
    PrintJson(Json{
        {"found", false}, {"model", ModelJson(travel.Model)}, {"why", WhyJson(travel.Graph, why)}});
  } else {
    PrintWhy(travel.Graph, why);
  }
  throw CouldNot(fmt::format("there is no way from '{}' to '{}'", arguments.From, arguments.To));
}

int RunWay(const CommonOptions& options, const WayArguments& arguments) {
  RequireWellFormed(arguments.Travel);
  OpenedUniverse universe(options);
  Routine routine(universe.Data.Log, "orrerix-cli.way");
  int exitCode = kCouldNot;
  routine.Run([&] {
    const Travel travel = ReadTravel(routine, universe, arguments.Travel);
    const TravelPlace from = RequirePlace(travel.Graph, arguments.From);
    const TravelPlace to = RequirePlace(travel.Graph, arguments.To);
    const auto way = FastestWay(travel.Graph, travel.Model, travel.Limits, from, to);
    if (!way) {
      exitCode = AnswerNoWay(options, arguments, travel, from, to);
      return;
    }
    options.Json ? PrintJson(WayJson(travel, *way)) : PrintWay(travel, *way);
    exitCode = kDone;
  });
  return exitCode;
}

}  // namespace

void AddWayVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  auto arguments = std::make_shared<WayArguments>();
  CLI::App* verb = app.add_subcommand("way", "The fastest way between two places");
  verb->add_option("FROM", arguments->From, "Object, base, system or name")->required();
  verb->add_option("TO", arguments->To, "Object, base, system or name")->required();
  AddTravelOptions(*verb, arguments->Travel);
  verb->callback([&options, &run, arguments] {
    run = [&options, arguments] { return RunWay(options, *arguments); };
  });
}

}  // namespace orrerix
