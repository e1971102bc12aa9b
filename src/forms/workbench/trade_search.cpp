// SPDX-License-Identifier: MIT
#include "forms/workbench/trade_search.h"

#include <algorithm>

#include "db/engine/working_copy.h"
#include "forms/controls/captions.h"
#include "forms/workbench/throw_failures.h"

namespace orrerix {
namespace {

constexpr std::size_t kMostPlans = 500;
constexpr double kUsualHold = 100;

TradeQuestion QuestionOf(const TradeWishes& wishes, const TradeWorld& world) {
  TradeQuestion question;
  question.Hold =
      wishes.Hold ? static_cast<double>(*wishes.Hold) : world.Travel.ShipHold.value_or(kUsualHold);
  question.Credits = wishes.Credits;
  question.Loop = wishes.Loop;
  question.Hops = std::max(wishes.Hops, wishes.Loop ? 2 : 1);
  question.Sorting = wishes.Sorting;
  question.Top = kMostPlans;
  if (!wishes.From.empty()) {
    question.From = RequireStops(world.Travel, world.Market, wishes.From);
  }
  if (!wishes.To.empty() && !wishes.Loop) {
    question.To = RequireStops(world.Travel, world.Market, wishes.To);
  }
  return question;
}

TradeOutcome FindIn(const std::filesystem::path& universe, const TradeWishes& wishes,
                    const BackgroundTask::IsCancelled& isCancelled) {
  ThrowFailures sink;
  WorkingCopy copy;
  Database& data = copy.Of(sink, universe);
  auto world = std::make_shared<TradeWorld>();
  world->Travel = ReadTravel(sink, data, wishes.Travel);
  world->Market = ReadMarket(sink, data, world->Travel.Graph, world->Travel.Limits);
  const TradeQuestion question = QuestionOf(wishes, *world);
  const auto goesOn = [&] { return !isCancelled(); };
  const TravelTimes times(world->Travel.Graph, world->Travel.Model, world->Travel.Limits, goesOn);
  TradeOutcome outcome;
  if (times.IsComplete()) outcome.Answer = FindTrades(world->Market, times, question, goesOn);
  outcome.World = std::move(world);
  return outcome;
}

TradeOutcome Impossible(QString error) {
  return {nullptr, {}, std::move(error)};
}

TextId TextOf(NameKind kind) {
  switch (kind) {
    case NameKind::Ship:
      return TextId::NoSuchShip;
    case NameKind::Faction:
      return TextId::NoSuchFaction;
    case NameKind::Stop:
      return TextId::NoSuchStop;
    default:
      return TextId::NoSuchPlace;
  }
}

}  // namespace

TradeOutcome SearchTrades(const std::filesystem::path& universe, const TradeWishes& wishes,
                          Language language, const BackgroundTask::IsCancelled& isCancelled) {
  try {
    return FindIn(universe, wishes, isCancelled);
  } catch (const UnknownName& error) {
    return Impossible(ErrorText(language, error));
  } catch (const std::exception& error) {
    return Impossible(error.what());
  } catch (const Failure& failure) {
    return Impossible(QString::fromStdString(failure.Description));
  }
}

QString CargoText(const Market& market, const std::optional<Load>& cargo) {
  if (!cargo) return {};
  const TradedGood& good = market.Goods[cargo->Good];
  return QString("%1 %2 (%3 \u2192 %4)")
      .arg(cargo->Units)
      .arg(QString::fromStdString(good.Name.empty() ? good.Nickname : good.Name))
      .arg(cargo->Buy)
      .arg(cargo->Sell);
}

std::vector<WayLegRow> LegsOf(const TradeWorld& world, const TradePlan& plan) {
  std::vector<WayLegRow> rows;
  const Travel& travel = world.Travel;
  for (const TradeLeg& leg : plan.Legs) {
    const auto way =
        FastestWay(travel.Graph, travel.Model, travel.Limits, {{leg.From}, true}, {{leg.To}, true});
    if (!way) continue;
    for (WayLegRow& row : RowsOf(travel, *way, CargoText(world.Market, leg.Cargo))) {
      rows.push_back(std::move(row));
    }
  }
  return rows;
}

QString ErrorText(Language language, const UnknownName& error) {
  return QString::fromStdString(FormatIn(language, TextOf(error.Kind), error.Name));
}

}  // namespace orrerix
