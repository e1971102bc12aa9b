// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/goods_search.h"

#include <algorithm>

#include "forms/controls/captions.h"
#include "forms/workbench/travel/trade_search.h"

namespace orrerix {
namespace {

GoodsOutcome FindIn(TradeWorlds& worlds, const std::filesystem::path& universe,
                    const GoodsWishes& wishes, const BackgroundTask::IsCancelled& isCancelled) {
  GoodsOutcome outcome;
  outcome.World = worlds.Of(universe, wishes.Travel, isCancelled);
  if (!outcome.World) return outcome;
  const Travel& travel = outcome.World->Travel;
  const Market& market = outcome.World->Market;
  std::optional<std::vector<NodeIndex>> docks;
  if (!wishes.From.empty()) {
    outcome.Start = RequirePlace(travel.Graph, wishes.From);
    docks = DocksOfTrade(travel.Graph, wishes.From);
  }
  const auto goesOn = [&] { return !isCancelled(); };
  outcome.Best = BestTradeOfGoods(market, *outcome.World->Times,
                                  {HoldOf(wishes.Hold, travel), wishes.Credits}, docks, goesOn);
  std::vector<DockTrip> trips;
  for (const auto& leg : outcome.Best) {
    trips.push_back(leg ? DockTrip{leg->From, leg->To} : DockTrip{});
  }
  outcome.Jumps = JumpsOf(travel.Graph, travel.Model, travel.Limits, trips, goesOn);
  return outcome;
}

QString NamedOr(const std::string& name, const std::string& nickname) {
  return QString::fromStdString(name.empty() ? nickname : name);
}

Cell TextCell(const QString& text) {
  return {text, text};
}

class GoodsCells {
 public:
  GoodsCells(const TravelGraph& graph, Language language) : graph_(graph), language_(language) {}

  Cell Number(std::int64_t number) const {
    return {NumberText(language_, static_cast<double>(number)), static_cast<qlonglong>(number)};
  }
  Cell Minutes(std::int64_t time) const {
    return {MinutesText(time), static_cast<qlonglong>(time)};
  }
  Cell Dock(NodeIndex dock) const {
    return TextCell(NamedOr(graph_.Objects[dock].Name, graph_.Objects[dock].Nickname));
  }
  Cell SystemOf(NodeIndex dock) const {
    const TravelSystem& system = graph_.Systems[graph_.Objects[dock].System];
    return TextCell(NamedOr(system.Name, system.Nickname));
  }
  Cell DockInSystem(NodeIndex dock) const {
    return TextCell(Dock(dock).Text + ", " + SystemOf(dock).Text);
  }

 private:
  const TravelGraph& graph_;
  Language language_;
};

}  // namespace

int GoodsOutcome::CountOfTrades() const {
  return static_cast<int>(
      std::count_if(Best.begin(), Best.end(), [](const auto& leg) { return leg.has_value(); }));
}

GoodsOutcome SearchGoods(TradeWorlds& worlds, const std::filesystem::path& universe,
                         const GoodsWishes& wishes, Language language,
                         const BackgroundTask::IsCancelled& isCancelled) {
  try {
    return FindIn(worlds, universe, wishes, isCancelled);
  } catch (...) {
    GoodsOutcome outcome;
    outcome.Error = ErrorText(language, std::current_exception());
    return outcome;
  }
}

QString NameOf(const TradedGood& good) {
  return NamedOr(good.Name, good.Nickname);
}

std::vector<TextId> GoodHeads() {
  return {TextId::HeadGood,  TextId::HeadBuyAt,   TextId::HeadSellAt,
          TextId::BuyPrice,  TextId::SellPrice,   TextId::HeadUnitProfit,
          TextId::HeadJumps, TextId::HeadMinutes, TextId::HeadPerMinute};
}

std::vector<std::vector<Cell>> RowsOf(const GoodsOutcome& outcome, Language language) {
  const GoodsCells cells(outcome.World->Travel.Graph, language);
  std::vector<std::vector<Cell>> rows;
  for (GoodIndex good = 0; good < outcome.Best.size(); ++good) {
    std::vector<Cell> row(GoodHeads().size());
    row[0] = TextCell(NameOf(outcome.World->Market.Goods[good]));
    if (const auto& leg = outcome.Best[good]) {
      row[1] = cells.DockInSystem(leg->From);
      row[2] = cells.DockInSystem(leg->To);
      row[3] = cells.Number(leg->Cargo->Buy);
      row[4] = cells.Number(leg->Cargo->Sell);
      row[5] = cells.Number(leg->Cargo->Sell - leg->Cargo->Buy);
      row[6] = cells.Number(outcome.Jumps[good]);
      row[7] = cells.Minutes(leg->Time);
      const double minute = PerMinute(leg->Cargo->Profit(), leg->Time);
      row[kGoodMinuteColumn] = {NumberText(language, minute), minute};
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

std::vector<TextId> OfferHeads() {
  return {TextId::HeadWhere,      TextId::HeadSystem, TextId::HeadOffer,  TextId::HeadPrice,
          TextId::HeadUnitProfit, TextId::HeadJumps,  TextId::HeadMinutes};
}

std::vector<std::vector<Cell>> RowsOf(const GoodsOutcome& outcome, GoodIndex good,
                                      const std::vector<GoodOffer>& offers, Language language) {
  const GoodsCells cells(outcome.World->Travel.Graph, language);
  const auto here =
      outcome.Start ? CheapestAt(outcome.World->Market, outcome.Start->Nodes, good) : std::nullopt;
  std::vector<std::vector<Cell>> rows;
  for (const GoodOffer& offer : offers) {
    std::vector<Cell> row(OfferHeads().size());
    row[0] = cells.Dock(offer.Dock);
    row[1] = cells.SystemOf(offer.Dock);
    row[2] = TextCell(CaptionIn(language, offer.IsSold ? TextId::OfferSells : TextId::OfferTakes));
    row[3] = cells.Number(offer.Price);
    if (here) row[4] = cells.Number(offer.Price - *here);
    if (offer.WayThere) {
      row[5] = cells.Number(offer.WayThere->Jumps());
      row[6] = cells.Minutes(offer.WayThere->Time());
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace orrerix
