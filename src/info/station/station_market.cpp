// SPDX-License-Identifier: MIT
#include "info/station/station_market.h"

#include <algorithm>
#include <string>

#include <fmt/format.h>

#include "db/values/number_text.h"
#include "db/values/text.h"
#include "derived/lookup.h"

namespace orrerix {
namespace {

constexpr int kPlacesPerGood = 11;
constexpr std::size_t kTradesPerGroup = 15;
constexpr std::string_view kBaseEnd = "_BASE";

// What a place charges above a good's list price; empty for an unknown good.
std::string Surcharge(Routine& routine, Universe& universe, const std::string& good,
                      const Value& price) {
  std::string surcharge;
  Recordset listed = RowNamed(routine, universe, "Goods", good);
  if (listed.AtEnd()) return surcharge;
  routine.Try([&] {
    const Value listPrice = listed["price"].Get();
    if (price.IsNull() || listPrice.IsNull()) {
      throw RuntimeFailure(failure_number::kInvalidUseOfNull);
    }
    surcharge = NumberText(price.Number() - listPrice.Number());
  });
  return surcharge;
}

Recordset PricesAt(Routine& routine, Universe& universe, std::string_view place, StationMode mode) {
  return universe.DB.OpenRecordset(
      routine,
      fmt::format("SELECT SysNick, GoodNick, Price, Sell from BaseGoodPrices WHERE "
                  "ucase(BaseNick) = '{{}}'{} ORDER BY Sell DESC, GoodNick",
                  mode == StationMode::Prices ? "" : " AND Sell = 2"),
      {Ucase(place)});
}

// What BaseGoods lists under the first of four spellings of the place that has any of it.
// `condition` stands on GoodNick.
Recordset MarketGoods(Routine& routine, Universe& universe, std::string_view condition,
                      std::string_view nickname, std::string_view base) {
  Recordset goods;
  for (const std::string_view place : {base, nickname}) {
    for (const std::string_view end : {std::string_view(), kBaseEnd}) {
      goods = universe.DB.OpenRecordset(
          routine,
          fmt::format("SELECT * from BaseGoods WHERE {} AND ucase(Base) = '{{}}' AND val5 = 0",
                      condition),
          {Ucase(place) + std::string(end)});
      if (!goods.AtEnd()) return goods;
    }
  }
  return goods;
}

}  // namespace

void MarketReader::ReadPrices(std::string_view base, StationMode mode) {
  Recordset rows = PricesAt(routine_, universe_, base, mode);
  if (rows.AtEnd()) rows = PricesAt(routine_, universe_, nickname_, mode);
  if (rows.AtEnd()) return;
  for (; !rows.AtEnd(); rows.MoveNext()) {
    PriceItem& item = prices_.emplace_back();
    item.Good = rows["GoodNick"].Get().Text();
    const Value price = rows["Price"].Get();
    item.Price = price.Text();
    routine_.Try([&] { item.Group = rows["Sell"].RequireLong(); });
    item.Difference = Surcharge(routine_, universe_, item.Good, price);
  }
  if (mode != StationMode::Trades) return;
  rows.MoveFirst();
  const std::string system = rows["SysNick"].Get().Text();
  for (const int group : {1, 0}) {
    std::vector<PriceItem> trades =
        BestTrades(routine_, universe_, nickname_, system, group, prices_);
    std::move(trades.begin(), trades.end(), std::back_inserter(prices_));
  }
}

std::vector<PriceItem> BestTrades(Routine& routine, Universe& universe, std::string_view nickname,
                                  std::string_view system, int group,
                                  const std::vector<PriceItem>& prices) {
  struct Candidate {
    PriceItem Trade;
    double Profit;
  };
  std::vector<Candidate> candidates;
  const std::string query = fmt::format(
      "SELECT * FROM BaseGoodPrices WHERE ucase(basenick) <> '{{}}' AND ucase(GoodNick) = '{{}}' "
      "AND ucase(SysNick) {} '{{}}' AND Price > {{}} ORDER BY Price DESC",
      group == 1 ? "=" : "<>");
  for (const PriceItem& item : prices) {
    if (item.Price.empty()) {
      // A price that fits no field leaves the query without its number.
      routine.Fail(
          EngineFailure(failure_number::kSyntaxError, "Syntax error in query expression."));
      continue;
    }
    const double paid = Val(item.Price);
    Recordset places = universe.DB.OpenRecordset(
        routine, query, {Ucase(nickname), Ucase(item.Good), Ucase(system), paid});
    for (int i = 0; i < kPlacesPerGood && !places.AtEnd(); ++i, places.MoveNext()) {
      const Value price = places["Price"].Get();
      const double profit = price.Number() - paid;
      candidates.push_back(
          {{group,
            places["SysNick"].Get().Text() + "," + places["BaseNick"].Get().Text() + "," +
                places["GoodNick"].Get().Text(),
            price.Text(), NumberText(profit)},
           profit});
    }
  }
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const Candidate& a, const Candidate& b) { return a.Profit > b.Profit; });
  candidates.resize(std::min(candidates.size(), kTradesPerGroup));
  std::vector<PriceItem> trades;
  trades.reserve(candidates.size());
  for (Candidate& candidate : candidates) trades.push_back(std::move(candidate.Trade));
  return trades;
}

void MarketReader::ReadShips(std::string_view base) {
  for (Recordset goods =
           MarketGoods(routine_, universe_, "ucase(GoodNick) LIKE '*_PACKAGE'", nickname_, base);
       !goods.AtEnd(); goods.MoveNext()) {
    Recordset ship =
        universe_.DB.OpenRecordset(routine_, "SELECT * from Ships where ucase(packagename) = '{}'",
                                   {Ucase(goods["GoodNick"].Get().Text())});
    if (ship.AtEnd()) continue;
    ships_.push_back({ship["packagename"].Get().Text(), ship["realname"].Get().Text()});
  }
}

void MarketReader::ReadEquipment(std::string_view base) {
  for (Recordset goods = MarketGoods(routine_, universe_,
                                     "ucase(GoodNick) NOT LIKE '*_PACKAGE' AND "
                                     "ucase(GoodNick) NOT LIKE 'COMMODITY_*'",
                                     nickname_, base);
       !goods.AtEnd(); goods.MoveNext()) {
    Recordset good = universe_.DB.OpenRecordset(
        routine_,
        "SELECT * from Goods where ucase(nickname) = '{}' AND NOT (realname = '0 - 0' and "
        "ucase(nickname) like '*_AMMO*')",
        {Ucase(goods["GoodNick"].Get().Text())});
    if (good.AtEnd()) continue;
    equipment_.push_back({good["nickname"].Get().Text(), good["realname"].Get().Text()});
  }
}

}  // namespace orrerix
