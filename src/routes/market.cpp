// SPDX-License-Identifier: MIT
#include "routes/market.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <unordered_map>

#include "db/values/text.h"
#include "routes/table_rows.h"

namespace orrerix {
namespace {

constexpr int kSoldAndTaken = 1;  // column Sell
constexpr int kTaken = 2;

struct PriceRow {
  std::string Good;
  std::int64_t Price;
  bool IsSold;
};

// The first row of Goods of category commodity, and whatever row is first, by nickname.
struct GoodRow {
  std::string Name;
  std::string Equipment;
  bool IsCommodity = false;
};

class MarketReader {
 public:
  MarketReader(FailureSink& sink, Database& universe, const TravelGraph& graph,
               const TravelLimits& limits)
      : sink_(sink), universe_(universe), graph_(graph), limits_(limits) {}

  Market Read() {
    ReadPrices();
    NumberGoods();
    DescribeGoods();
    AddStops();
    return std::move(market_);
  }

 private:
  void ReadPrices() {
    for (TableRows rows(sink_, universe_, "BaseGoodPrices"); !rows.AtEnd(); rows.MoveNext()) {
      const auto dock = graph_.FindObject(rows.Text("BaseNick"));
      if (!dock || !graph_.Objects[*dock].IsDock) continue;
      if (!limits_.IsOpen(*dock) || limits_.Forbidden[*dock]) continue;
      const std::string good = rows.Text("GoodNick");
      const double price = rows.Number("Price");
      const double sell = rows.Number("Sell");
      if (good.empty() || price < 1 || (sell != kSoldAndTaken && sell != kTaken)) continue;
      const std::string key = FoldAscii(good);
      prices_[*dock].try_emplace(
          key, PriceRow{good, static_cast<std::int64_t>(price), sell == kSoldAndTaken});
      spellings_.try_emplace(key, good);
    }
  }

  void NumberGoods() {
    for (const auto& [key, spelling] : spellings_) {
      goods_.emplace(key, market_.Goods.size());
      market_.Goods.push_back({spelling, key, {}, 1});
    }
  }

  void DescribeGoods() {
    std::unordered_map<std::string, GoodRow> known;
    for (TableRows rows(sink_, universe_, "Goods"); !rows.AtEnd(); rows.MoveNext()) {
      const bool isCommodity = EqualIgnoringCase(rows.Text("category"), "commodity");
      GoodRow row{rows.Text("realname"), rows.Text("equipment"), isCommodity};
      const auto [place, isNew] = known.try_emplace(FoldAscii(rows.Text("nickname")), row);
      if (!isNew && isCommodity && !place->second.IsCommodity) place->second = std::move(row);
    }
    std::unordered_map<std::string, double> volumes;
    for (TableRows rows(sink_, universe_, "commodity"); !rows.AtEnd(); rows.MoveNext()) {
      volumes.try_emplace(FoldAscii(rows.Text("nickname")), rows.Number("volume"));
    }
    for (TradedGood& good : market_.Goods) {
      const auto row = known.find(good.Key);
      if (row != known.end()) good.Name = row->second.Name;
      const bool hasEquipment = row != known.end() && row->second.IsCommodity;
      const auto volume = volumes.find(hasEquipment ? FoldAscii(row->second.Equipment) : good.Key);
      if (volume != volumes.end()) good.Volume = std::max(1.0, volume->second);
    }
  }

  void AddStops() {
    std::unordered_map<std::string, std::size_t> bases;
    for (const auto& [dock, prices] : prices_) {
      TradeStop stop;
      stop.Dock = dock;
      stop.Base =
          bases.try_emplace(FoldAscii(graph_.Objects[dock].Base), bases.size()).first->second;
      for (const auto& [key, row] : prices) {
        stop.Offers.push_back({goods_.at(key), row.Price, row.IsSold});
      }
      market_.Stops.push_back(std::move(stop));
    }
    market_.Bases = bases.size();
  }

  FailureSink& sink_;
  Database& universe_;
  const TravelGraph& graph_;
  const TravelLimits& limits_;
  Market market_;
  std::map<NodeIndex, std::map<std::string, PriceRow>> prices_;  // by dock, then by good
  std::map<std::string, std::string> spellings_;                 // of the goods, by key
  std::unordered_map<std::string, GoodIndex> goods_;             // by key
};

}  // namespace

const Offer* TradeStop::Find(GoodIndex good) const {
  const auto found =
      std::lower_bound(Offers.begin(), Offers.end(), good,
                       [](const Offer& offer, GoodIndex sought) { return offer.Good < sought; });
  return found == Offers.end() || found->Good != good ? nullptr : &*found;
}

std::optional<GoodIndex> Market::FindGood(std::string_view nickname) const {
  const std::string key = FoldAscii(nickname);
  for (GoodIndex i = 0; i < Goods.size(); ++i) {
    if (Goods[i].Key == key) return i;
  }
  return std::nullopt;
}

Market ReadMarket(FailureSink& sink, Database& universe, const TravelGraph& graph,
                  const TravelLimits& limits) {
  return MarketReader(sink, universe, graph, limits).Read();
}

bool IsTraded(FailureSink& sink, Database& universe, std::string_view good) {
  for (TableRows rows(sink, universe, "BaseGoodPrices"); !rows.AtEnd(); rows.MoveNext()) {
    if (EqualIgnoringCase(rows.Text("GoodNick"), good)) return true;
  }
  return false;
}

std::int64_t UnitsOf(const TradedGood& good, std::int64_t price, const Purse& purse) {
  const auto fitting = static_cast<std::int64_t>(std::floor(purse.Hold / good.Volume));
  if (!purse.Money || price == 0) return fitting;
  return std::min(fitting, *purse.Money / price);
}

std::optional<Load> BestLoad(const Market& market, const TradeStop& from, const TradeStop& to,
                             const Purse& purse) {
  std::optional<Load> best;
  auto there = to.Offers.begin();
  for (const Offer& here : from.Offers) {
    if (!here.IsSold) continue;
    while (there != to.Offers.end() && there->Good < here.Good) ++there;
    if (there == to.Offers.end()) break;
    if (there->Good != here.Good || there->Price <= here.Price) continue;
    const Load load{here.Good, here.Price, there->Price,
                    UnitsOf(market.Goods[here.Good], here.Price, purse)};
    if (load.Units < 1) continue;
    if (!best || load.Profit() > best->Profit() ||
        (load.Profit() == best->Profit() && load.Spending() < best->Spending())) {
      best = load;
    }
  }
  return best;
}

}  // namespace orrerix
