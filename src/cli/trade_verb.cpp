// SPDX-License-Identifier: MIT
// trade: what to carry where for the most profit.
#include <map>
#include <memory>

#include <fmt/format.h>

#include "cli/json_text.h"
#include "cli/travel_options.h"
#include "cli/verbs.h"
#include "db/values/text.h"
#include "routes/places.h"
#include "routes/trades.h"

namespace orrerix {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::int64_t kMostHold = 100'000'000;
constexpr std::int64_t kMostCredits = 1'000'000'000'000;
constexpr std::int64_t kMostPlans = 1'000'000;

const std::map<std::string, PlanSorting> kSortings = {{"profit", PlanSorting::Profit},
                                                      {"minute", PlanSorting::Minute},
                                                      {"percent", PlanSorting::Percent},
                                                      {"loop", PlanSorting::Loop}};

// As they were given.
struct TradeArguments {
  std::optional<std::string> Hold;
  std::optional<std::string> Credits;
  std::optional<std::string> From;
  std::optional<std::string> To;
  std::optional<std::string> Near;
  std::optional<std::string> Goods;
  std::optional<std::string> SkipGoods;
  std::optional<std::string> LongestMinutes;
  std::optional<std::string> Hops;
  bool Loop = false;
  std::optional<std::string> Via;
  std::optional<std::string> Carry;
  std::string Sort = "minute";
  std::optional<std::string> Top;
  std::optional<std::string> Width;
  TravelArguments Travel;
};

// Reads what needs no universe, and refuses what does not go together.
TradeQuestion ParseQuestion(const TradeArguments& arguments) {
  TradeQuestion question;
  question.Loop = arguments.Loop;
  question.Hops = arguments.Loop ? 2 : 1;
  question.Sorting = kSortings.at(arguments.Sort);
  const auto count = [](const char* option, const std::optional<std::string>& text,
                        std::int64_t least, std::int64_t most, auto& number) {
    if (!text) return;
    number = static_cast<std::remove_reference_t<decltype(number)>>(
        ParseCount(option, *text, least, most));
  };
  count("--hold", arguments.Hold, 1, kMostHold, question.Hold);
  count("--hops", arguments.Hops, 1, 6, question.Hops);
  count("--top", arguments.Top, 1, kMostPlans, question.Top);
  count("--width", arguments.Width, 1, 100, question.Width);
  if (arguments.Credits) {
    question.Credits = ParseCount("--credits", *arguments.Credits, 0, kMostCredits);
  }
  if (arguments.LongestMinutes) {
    const auto minutes = WholeTextNumber(*arguments.LongestMinutes);
    if (!minutes || *minutes < 0) {
      throw WrongUsage("--max-minutes needs a number from 0, not '" + *arguments.LongestMinutes +
                       "'");
    }
    question.LongestTime = static_cast<std::int64_t>(std::min(*minutes * 60'000, 9e15));
  }
  if (arguments.Loop && question.Hops < 2) throw WrongUsage("--loop needs --hops of 2 or more");
  if (arguments.Via && !arguments.From) throw WrongUsage("--via needs --from");
  if (arguments.Via && arguments.To) throw WrongUsage("--via does not go with --to");
  if (arguments.Carry && !arguments.From) throw WrongUsage("--carry needs --from");
  if (arguments.Carry && (arguments.Loop || arguments.Via || question.Hops > 1)) {
    throw WrongUsage("--carry goes neither with --loop nor --via nor more hops than one");
  }
  if (arguments.Loop && arguments.To) throw WrongUsage("--loop does not go with --to");
  return question;
}

// A trade question with the market that it is about.
class TradeVerb {
 public:
  TradeVerb(Routine& routine, OpenedUniverse& universe, const TradeArguments& arguments)
      : routine_(routine),
        universe_(universe),
        arguments_(arguments),
        travel_(ReadTravel(routine, universe, arguments.Travel)),
        market_(ReadMarket(routine, universe.Data.DB, travel_.Graph, travel_.Limits)),
        question_(ParseQuestion(arguments)) {}

  void Run(bool asJson) {
    if (!arguments_.Hold) question_.Hold = travel_.ShipHold.value_or(question_.Hold);
    RestrictGoods();
    RestrictNear();
    ReadPlaces();
    ReadCarry();
    const TravelTimes times(travel_.Graph, travel_.Model, travel_.Limits);
    const TradeAnswer answer = FindTrades(market_, times, question_);
    asJson ? PrintJson(AnswerJson(answer)) : PrintText(answer);
  }

 private:
  std::set<std::string> TradedGoods(const std::string& list) {
    std::set<std::string> keys;
    for (const std::string& good : SplitList(list)) {
      if (!IsTraded(routine_, universe_.Data.DB, good)) {
        throw CouldNot(fmt::format("no base trades a good '{}'", good));
      }
      keys.insert(FoldAscii(good));
    }
    return keys;
  }

  // Goods that are not wanted are offered nowhere.
  void RestrictGoods() {
    const auto erase = [&](const std::set<std::string>& keys, bool listed) {
      for (TradeStop& stop : market_.Stops) {
        std::erase_if(stop.Offers, [&](const Offer& offer) {
          return keys.contains(market_.Goods[offer.Good].Key) == listed;
        });
      }
    };
    if (arguments_.Goods) erase(TradedGoods(*arguments_.Goods), false);
    if (arguments_.SkipGoods) erase(TradedGoods(*arguments_.SkipGoods), true);
  }

  // Stops only in one system and where one open jump from it leads.
  void RestrictNear() {
    if (!arguments_.Near) return;
    const TravelGraph& graph = travel_.Graph;
    const std::set<SystemIndex> centres = SystemsCalled(graph, *arguments_.Near);
    if (centres.empty()) {
      throw CouldNot(fmt::format("there is no system '{}'", *arguments_.Near));
    }
    std::set<SystemIndex> near = centres;
    for (NodeIndex i = 0; i < graph.Objects.size(); ++i) {
      if (!centres.contains(graph.Objects[i].System)) continue;
      if (ObstacleOf(graph, travel_.Limits, i)) continue;
      near.insert(graph.Objects[graph.Objects[i].JumpsTo->Target].System);
    }
    std::erase_if(market_.Stops, [&](const TradeStop& stop) {
      return !near.contains(graph.Objects[stop.Dock].System);
    });
  }

  void ReadPlaces() {
    if (arguments_.From) {
      question_.From =
          RequireStops(travel_, market_, *arguments_.From, arguments_.Carry.has_value());
    }
    if (arguments_.To) question_.To = RequireStops(travel_, market_, *arguments_.To);
    if (!arguments_.Via) return;
    for (const std::string& place : SplitList(*arguments_.Via)) {
      question_.Via.push_back(RequireStops(travel_, market_, place));
    }
    if (CombinationsOf(question_) > kMostCombinations) {
      throw CouldNot("the places have more than 100000 combinations of docks");
    }
  }

  void ReadCarry() {
    if (!arguments_.Carry) return;
    const std::string& text = *arguments_.Carry;
    const std::size_t colon = text.rfind(':');
    const std::string good(Trim(std::string_view(text).substr(0, colon)));
    CarriedGood carried;
    if (colon != std::string::npos) {
      carried.Units = ParseCount("--carry", text.substr(colon + 1), 1, kMostHold);
    }
    if (!IsTraded(routine_, universe_.Data.DB, good)) {
      throw CouldNot(fmt::format("no base trades a good '{}'", good));
    }
    const auto known = market_.FindGood(good);
    if (!known) {
      // It is traded, but only at stops that are closed.
      carried.Good = market_.Goods.size();
      market_.Goods.push_back({good, FoldAscii(good), {}, 1});
    } else {
      carried.Good = *known;
    }
    question_.Carry = carried;
  }

  Json LegJson(NodeIndex from, NodeIndex to, const std::optional<Load>& load,
               std::int64_t time) const {
    const TravelGraph& graph = travel_.Graph;
    Json json;
    for (const auto& [key, node] : {std::pair("from", from), std::pair("to", to)}) {
      const TravelObject& dock = graph.Objects[node];
      json[key] = dock.Nickname;
      json[std::string(key) + "_name"] = dock.Name;
      json[std::string(key) + "_system"] = graph.Systems[dock.System].Nickname;
    }
    json["good"] = load ? Json(market_.Goods[load->Good].Nickname) : Json(nullptr);
    json["good_name"] = load ? Json(market_.Goods[load->Good].Name) : Json(nullptr);
    json["buy"] = load ? load->Buy : 0;
    json["sell"] = load ? load->Sell : 0;
    json["units"] = load ? load->Units : 0;
    json["profit"] = load ? load->Profit() : 0;
    json["seconds"] = Seconds(time);
    return json;
  }

  Json PlanJson(const TradePlan& plan) const {
    Json json = {{"legs", Json::array()}};
    for (const TradeLeg& leg : plan.Legs) {
      json["legs"].push_back(LegJson(leg.From, leg.To, leg.Cargo, leg.Time));
    }
    json["profit"] = plan.Profit();
    json["seconds"] = Seconds(plan.Time());
    json["minute"] = PerMinute(plan.Profit(), plan.Time());
    json["percent"] = plan.Spending() == 0 ? Json(nullptr)
                                           : Json(100.0 * static_cast<double>(plan.Profit()) /
                                                  static_cast<double>(plan.Spending()));
    if (!HasReturns(question_)) return json;
    json["back"] = nullptr;
    json["loop_minute"] = nullptr;
    if (plan.Back) {
      const TradeLeg& leg = plan.Legs.front();
      json["back"] = LegJson(leg.To, leg.From, plan.Back->Cargo, plan.Back->Time);
      const std::int64_t profit = plan.Back->Cargo ? plan.Back->Cargo->Profit() : 0;
      json["loop_minute"] = PerMinute(plan.Profit() + profit, plan.Time() + plan.Back->Time);
    }
    return json;
  }

  Json AnswerJson(const TradeAnswer& answer) const {
    Json json = {{"model", ModelJson(travel_.Model)}};
    const auto whole = static_cast<std::int64_t>(question_.Hold);
    const bool isWhole = static_cast<double>(whole) == question_.Hold;
    json["hold"] = isWhole ? Json(whole) : Json(question_.Hold);
    json["credits"] = question_.Credits ? Json(*question_.Credits) : Json(nullptr);
    json["sort"] = arguments_.Sort;
    json["count"] = answer.Count;
    json["plans"] = Json::array();
    for (const TradePlan& plan : answer.Plans) json["plans"].push_back(PlanJson(plan));
    return json;
  }

  void PrintText(const TradeAnswer& answer) const {
    const auto& objects = travel_.Graph.Objects;
    for (const TradePlan& plan : answer.Plans) {
      fmt::print("{:.0f} a minute: {} in {:.1f} seconds\n", PerMinute(plan.Profit(), plan.Time()),
                 plan.Profit(), Seconds(plan.Time()));
      for (const TradeLeg& leg : plan.Legs) {
        const std::string load =
            leg.Cargo
                ? fmt::format("{} {} at {}, sold at {}", leg.Cargo->Units,
                              market_.Goods[leg.Cargo->Good].Name, leg.Cargo->Buy, leg.Cargo->Sell)
                : "empty";
        fmt::print("  {} ({}) to {} ({}): {}, {:.1f} seconds\n", objects[leg.From].Name,
                   SystemOf(leg.From), objects[leg.To].Name, SystemOf(leg.To), load,
                   Seconds(leg.Time));
      }
    }
    fmt::print("{} plans, {} shown\n", answer.Count, answer.Plans.size());
  }

  const std::string& SystemOf(NodeIndex node) const {
    return travel_.Graph.Systems[travel_.Graph.Objects[node].System].Nickname;
  }

  Routine& routine_;
  OpenedUniverse& universe_;
  const TradeArguments& arguments_;
  Travel travel_;
  Market market_;
  TradeQuestion question_;
};

int RunTrade(const CommonOptions& options, const TradeArguments& arguments) {
  RequireWellFormed(arguments.Travel);
  ParseQuestion(arguments);
  OpenedUniverse universe(options);
  Routine routine(universe.Data.Log, "orrerix-cli.trade");
  int exitCode = kCouldNot;
  routine.Run([&] {
    TradeVerb(routine, universe, arguments).Run(options.Json);
    exitCode = kDone;
  });
  return exitCode;
}

}  // namespace

void AddTradeVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  auto arguments = std::make_shared<TradeArguments>();
  CLI::App* verb = app.add_subcommand("trade", "What to carry where for the most profit");
  AddText(*verb, "--hold", arguments->Hold, "Units of hold; default: the ship's, else 100");
  AddText(*verb, "--credits", arguments->Credits, "Money at the start; default: without limit");
  AddText(*verb, "--from", arguments->From, "First stop");
  AddText(*verb, "--to", arguments->To, "Last stop");
  AddText(*verb, "--near", arguments->Near, "Stops in this system or one jump away");
  AddText(*verb, "--goods", arguments->Goods, "Only these goods: G,...");
  AddText(*verb, "--skip-goods", arguments->SkipGoods, "Not these goods: G,...");
  AddText(*verb, "--max-minutes", arguments->LongestMinutes, "No plan lasts longer");
  AddText(*verb, "--hops", arguments->Hops, "Legs at most, 1 to 6");
  verb->add_flag("--loop", arguments->Loop,
                 "The last leg leads back to the first stop; not with --to");
  AddText(*verb, "--via", arguments->Via,
          "From --from, which it needs, through these places in turn: P,...; not with --to");
  AddText(*verb, "--carry", arguments->Carry,
          "Where to sell what is aboard: GOOD[:N]; needs --from, not with --loop or --via");
  verb->add_option("--sort", arguments->Sort, "Order of the plans")
      ->check(CLI::IsMember({"profit", "minute", "percent", "loop"}));
  AddText(*verb, "--top", arguments->Top, "Plans shown; default 20");
  AddText(*verb, "--width", arguments->Width, "Stops that a plan goes on to, 1 to 100; default 10");
  AddTravelOptions(*verb, arguments->Travel);
  verb->callback([&options, &run, arguments] {
    run = [&options, arguments] { return RunTrade(options, *arguments); };
  });
}

}  // namespace orrerix
