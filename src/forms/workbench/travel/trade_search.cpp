// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/trade_search.h"

#include <algorithm>
#include <numeric>

#include "db/failure.h"
#include "forms/controls/captions.h"

namespace orrerix {
namespace {

constexpr std::size_t kMostPlans = 500;
constexpr double kUsualHold = 100;

TradeQuestion QuestionOf(const TradeWishes& wishes, const TradeWorld& world) {
  TradeQuestion question;
  question.Hold = HoldOf(wishes.Hold, world.Travel);
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

TradeOutcome FindIn(TradeWorlds& worlds, const std::filesystem::path& universe,
                    const TradeWishes& wishes, const BackgroundTask::IsCancelled& isCancelled) {
  TradeOutcome outcome;
  outcome.World = worlds.Of(universe, wishes.Travel, isCancelled);
  if (!outcome.World) return outcome;
  const TradeQuestion question = QuestionOf(wishes, *outcome.World);
  const auto goesOn = [&] { return !isCancelled(); };
  outcome.Answer = FindTrades(outcome.World->Market, *outcome.World->Times, question, goesOn);
  return outcome;
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

TradeOutcome SearchTrades(TradeWorlds& worlds, const std::filesystem::path& universe,
                          const TradeWishes& wishes, Language language,
                          const BackgroundTask::IsCancelled& isCancelled) {
  try {
    return FindIn(worlds, universe, wishes, isCancelled);
  } catch (...) {
    return {nullptr, {}, ErrorText(language, std::current_exception())};
  }
}

std::vector<int> JumpsOf(const TradeOutcome& outcome,
                         const BackgroundTask::IsCancelled& isCancelled) {
  std::vector<DockTrip> trips;
  for (const TradePlan& plan : outcome.Answer.Plans) {
    for (const TradeLeg& leg : plan.Legs) trips.push_back({leg.From, leg.To});
  }
  const Travel& travel = outcome.World->Travel;
  const std::vector<int> ofLegs =
      JumpsOf(travel.Graph, travel.Model, travel.Limits, trips, [&] { return !isCancelled(); });
  std::vector<int> jumps;
  auto leg = ofLegs.begin();
  for (const TradePlan& plan : outcome.Answer.Plans) {
    const auto next = leg + static_cast<std::ptrdiff_t>(plan.Legs.size());
    jumps.push_back(std::accumulate(leg, next, 0));
    leg = next;
  }
  return jumps;
}

double HoldOf(const std::optional<std::int64_t>& wished, const Travel& travel) {
  return wished ? static_cast<double>(*wished) : travel.ShipHold.value_or(kUsualHold);
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

QString ErrorText(Language language, const std::exception_ptr& error) {
  try {
    std::rethrow_exception(error);
  } catch (const UnknownName& unknown) {
    return QString::fromStdString(FormatIn(language, TextOf(unknown.Kind), unknown.Name));
  } catch (const std::exception& other) {
    return other.what();
  } catch (const Failure& failure) {
    return QString::fromStdString(failure.Description);
  }
}

}  // namespace orrerix
