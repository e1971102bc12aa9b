// SPDX-License-Identifier: MIT
#include "routes/good_offers.h"

#include <algorithm>
#include <map>
#include <tuple>

#include "routes/ratio.h"

namespace orrerix {
namespace {

bool IsBetter(const TradeLeg& a, const TradeLeg& b) {
  const Ratio ratioA{a.Cargo->Profit(), std::max<std::int64_t>(1, a.Time)};
  const Ratio ratioB{b.Cargo->Profit(), std::max<std::int64_t>(1, b.Time)};
  if (!(ratioA == ratioB)) return ratioA > ratioB;
  return std::tie(a.Time, a.From, a.To) < std::tie(b.Time, b.From, b.To);
}

bool IsAmong(const std::optional<std::vector<NodeIndex>>& docks, NodeIndex dock) {
  return !docks || std::find(docks->begin(), docks->end(), dock) != docks->end();
}

// Keeps the best trade of each good.
class BestTrades {
 public:
  BestTrades(const Market& market, const Purse& purse)
      : market_(market), purse_(purse), best_(market.Goods.size()) {}

  void Add(const TradeStop& here, const TradeStop& there, std::int64_t time) {
    for (const Offer& offer : here.Offers) {
      if (!offer.IsSold) continue;
      const Offer* sale = there.Find(offer.Good);
      if (sale == nullptr || sale->Price <= offer.Price) continue;
      const std::int64_t units = UnitsOf(market_.Goods[offer.Good], offer.Price, purse_);
      if (units < 1) continue;
      const TradeLeg leg{here.Dock, there.Dock, Load{offer.Good, offer.Price, sale->Price, units},
                         time};
      std::optional<TradeLeg>& known = best_[offer.Good];
      if (!known || IsBetter(leg, *known)) known = leg;
    }
  }

  std::vector<std::optional<TradeLeg>> Take() { return std::move(best_); }

 private:
  const Market& market_;
  const Purse& purse_;
  std::vector<std::optional<TradeLeg>> best_;
};

bool ComesBefore(const GoodOffer& a, const GoodOffer& b) {
  if (a.Price != b.Price) return a.Price > b.Price;
  if (a.WayThere.has_value() != b.WayThere.has_value()) return a.WayThere.has_value();
  if (a.WayThere && a.WayThere->Time() != b.WayThere->Time()) {
    return a.WayThere->Time() < b.WayThere->Time();
  }
  return a.Dock < b.Dock;
}

}  // namespace

std::vector<std::optional<TradeLeg>> BestTradeOfGoods(
    const Market& market, const TravelTimes& times, const Purse& purse,
    const std::optional<std::vector<NodeIndex>>& from, const std::function<bool()>& goesOn) {
  BestTrades trades(market, purse);
  std::map<NodeIndex, std::size_t> columns;
  for (std::size_t i = 0; i < times.Docks().size(); ++i) columns.emplace(times.Docks()[i], i);
  for (const TradeStop& here : market.Stops) {
    if (!IsAmong(from, here.Dock)) continue;
    if (!goesOn()) break;
    const std::vector<std::int64_t> row = times.RowFrom(columns.at(here.Dock));
    for (const TradeStop& there : market.Stops) {
      const std::int64_t time = row[columns.at(there.Dock)];
      if (there.Dock != here.Dock && time != kUnreachable) trades.Add(here, there, time);
    }
  }
  return trades.Take();
}

std::vector<GoodOffer> OffersOf(const Market& market, const Travel& travel, GoodIndex good,
                                const std::optional<TravelPlace>& from,
                                const std::function<bool()>& goesOn) {
  std::vector<GoodOffer> offers;
  for (const TradeStop& stop : market.Stops) {
    const Offer* offer = stop.Find(good);
    if (offer == nullptr) continue;
    if (!goesOn()) break;
    GoodOffer found{stop.Dock, offer->Price, offer->IsSold, std::nullopt};
    if (from) {
      found.WayThere =
          FastestWay(travel.Graph, travel.Model, travel.Limits, *from, {{stop.Dock}, true});
    }
    offers.push_back(std::move(found));
  }
  std::sort(offers.begin(), offers.end(), ComesBefore);
  return offers;
}

std::optional<std::int64_t> CheapestAt(const Market& market, const std::vector<NodeIndex>& docks,
                                       GoodIndex good) {
  std::optional<std::int64_t> cheapest;
  for (const TradeStop& stop : market.Stops) {
    if (!IsAmong(docks, stop.Dock)) continue;
    const Offer* offer = stop.Find(good);
    if (offer == nullptr || !offer->IsSold) continue;
    cheapest = std::min(cheapest.value_or(offer->Price), offer->Price);
  }
  return cheapest;
}

}  // namespace orrerix
