// SPDX-License-Identifier: MIT
#include "derived/base_prices.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "db/values/number_text.h"
#include "db/values/text.h"
#include "db/values/text_store.h"
#include "platform/tick_count.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

using Cells = std::span<const HeldRows::Cell>;

// Names are one if they are equal to the engine.
struct NameHash {
  std::size_t operator()(std::string_view name) const { return HashIgnoringCase(name); }
};
struct SameName {
  bool operator()(std::string_view a, std::string_view b) const {
    return CompareIgnoringCase(a, b) == 0;
  }
};
template <typename T>
using ByName = std::unordered_map<std::string_view, T, NameHash, SameName>;

const std::string_view* TextIn(const HeldRows::Cell& cell) {
  return std::get_if<std::string_view>(&cell);
}

std::optional<double> NumberIn(const HeldRows::Cell& cell) {
  if (const auto* real = std::get_if<double>(&cell)) return *real;
  const Value value = HeldRows::ValueOf(cell);
  return value.IsNull() ? std::nullopt : std::optional(value.Number());
}

// A number rounded to a whole one, ties to even; nothing if it leaves the range between the bounds.
std::optional<std::int64_t> Fitted(std::optional<double> number, double lowest, double highest) {
  if (!number) return std::nullopt;
  const double whole = RoundToEven(*number);
  if (!(whole >= lowest && whole <= highest)) return std::nullopt;
  return static_cast<std::int64_t>(whole);
}

Value WholeOrNull(std::optional<std::int64_t> whole) {
  return whole ? Value(*whole) : Value();
}

// Hands on all failures but that of a key which is there already.
class DropDoubles : public FailureSink {
 public:
  explicit DropDoubles(FailureSink& sink) : sink_(sink) {}
  void Fail(const Failure& failure) override {
    if (failure.Number != failure_number::kDuplicateKey) sink_.Fail(failure);
  }

 private:
  FailureSink& sink_;
};

// Joins market lines with the commodities that they name and the objects that dock with their
// bases; lines of unknown goods or bases give no row. The tables stay in memory.
class MarketStage {
 public:
  MarketStage(Routine& routine, Database& database) : routine_(routine), db_(database) {}

  void Run() {
    if (!NoteCommodities() || !NoteDocks()) return;
    RankCommodities();
    if (JoinMarkets()) Append();
  }

 private:
  struct Commodity {
    std::optional<double> Price;
    std::optional<std::string_view> RealName;
    std::size_t Rank = 0;  // by that name, from 0; the same for equal names
  };
  struct Dock {
    std::string_view Nickname;
    std::optional<std::string_view> System;
  };
  struct Price {
    std::string_view Good;
    const Dock* At;
    std::string_view System;
    std::optional<std::int64_t> Amount;
    std::optional<std::int64_t> Sell;
  };

  // Null comes first.
  static bool ComesBefore(std::optional<std::string_view> a, std::optional<std::string_view> b) {
    if (!a || !b) return !a && b.has_value();
    return CompareIgnoringCase(*a, *b) < 0;
  }

  std::optional<std::string_view> Kept(const HeldRows::Cell& cell) {
    const std::string_view* text = TextIn(cell);
    return text == nullptr ? std::nullopt : std::optional(texts_.Keep(*text));
  }

  bool NoteCommodities() {
    return db_.VisitRows(
        routine_, "Goods", {"category", "nickname", "price", "realname"},
        [this](std::int64_t, Cells good) {
          const std::string_view* category = TextIn(good[0]);
          const std::string_view* nickname = TextIn(good[1]);
          if (category == nullptr || !EqualIgnoringCase(*category, "commodity")) return;
          if (nickname == nullptr) return;
          commodities_.emplace(texts_.Keep(*nickname), Commodity{NumberIn(good[2]), Kept(good[3])});
        });
  }

  bool NoteDocks() {
    return db_.VisitRows(routine_, "Objects", {"dock_with", "nickname", "sys_nick"},
                         [this](std::int64_t, Cells object) {
                           const std::string_view* base = TextIn(object[0]);
                           const std::string_view* nickname = TextIn(object[1]);
                           if (base == nullptr || nickname == nullptr || nickname->empty()) return;
                           auto docks = docks_.find(*base);
                           if (docks == docks_.end())
                             docks = docks_.try_emplace(texts_.Keep(*base)).first;
                           docks->second.push_back({texts_.Keep(*nickname), Kept(object[2])});
                         });
  }

  void RankCommodities() {
    std::vector<Commodity*> sorted;
    for (auto& [name, commodity] : commodities_) sorted.push_back(&commodity);
    std::sort(sorted.begin(), sorted.end(), [](const Commodity* a, const Commodity* b) {
      return ComesBefore(a->RealName, b->RealName);
    });
    std::size_t rank = 0;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
      if (i > 0 && ComesBefore(sorted[i - 1]->RealName, sorted[i]->RealName)) ++rank;
      sorted[i]->Rank = rank;
    }
    pricesOfRank_.resize(rank + 1);
  }

  bool JoinMarkets() {
    return db_.VisitRows(routine_, "BaseGoods", {"Base", "GoodNick", "val5", "val6"},
                         [this](std::int64_t, Cells market) { Join(market); });
  }

  void Join(Cells market) {
    const std::string_view* base = TextIn(market[0]);
    const std::string_view* good = TextIn(market[1]);
    if (base == nullptr || good == nullptr) return;
    // Most lines are not about commodities.
    const auto commodity = commodities_.find(*good);
    if (commodity == commodities_.end()) return;
    const auto docks = docks_.find(*base);
    if (docks == docks_.end()) return;
    const std::string_view kept = texts_.Keep(*good);
    for (const Dock& dock : docks->second) AddPrice(market, commodity->second, kept, dock);
  }

  void AddPrice(Cells market, const Commodity& commodity, std::string_view good, const Dock& dock) {
    constexpr std::size_t systemInBase = 4;
    const auto val5 = NumberIn(market[2]);
    const auto val6 = NumberIn(market[3]);
    const auto price =
        commodity.Price && val6 ? std::optional(*commodity.Price * *val6) : std::nullopt;
    const std::string_view system =
        dock.System ? *dock.System : texts_.Keep(Left(*TextIn(market[0]), systemInBase));
    pricesOfRank_[commodity.Rank].push_back(
        {good, &dock, system, Fitted(price, -2147483648.0, 2147483647.0),
         Fitted(val5 ? std::optional(1 + *val5) : std::nullopt, 0, 255)});
  }

  void Append() {
    DropDoubles sink(routine_);
    Recordset rows = db_.OpenTable(sink, "BaseGoodPrices");
    for (const std::vector<Price>& prices : pricesOfRank_) {
      for (const Price& price : prices) AppendPrice(rows, price);
    }
  }

  static void AppendPrice(Recordset& rows, const Price& price) {
    rows.AddNew();
    rows["SysNick"] = price.System;
    rows["BaseNick"] = price.At->Nickname;
    rows["GoodNick"] = price.Good;
    rows["Price"] = WholeOrNull(price.Amount);
    rows["Sell"] = WholeOrNull(price.Sell);
    rows.Update();
  }

  Routine& routine_;
  Database& db_;
  TextStore texts_;
  ByName<Commodity> commodities_;
  ByName<std::vector<Dock>> docks_;
  std::vector<std::vector<Price>> pricesOfRank_;  // each in the order of the market lines
};

class PriceStage {
 public:
  PriceStage(Routine& caller, Import& import)
      : caller_(caller),
        import_(import),
        db_(import.Target.DB),
        prices_(db_.OpenTable(caller, "BaseGoodPrices")) {}

  void Run() {
    Recordset objects = db_.OpenRecordset(caller_, "SELECT * from Objects WHERE len(dock_with)>0",
                                          {}, RecordsetType::Dynaset);
    const auto count = static_cast<std::int32_t>(objects.RecordCount());
    ++import_.Progress.ImportDone;
    import_.ProgressIt(count, 0);
    std::uint32_t lastTick = import_.Host.TickCount();
    for (std::int32_t done = 0; !objects.AtEnd(); objects.MoveNext(), ++done) {
      if (IsDue(import_.Host.TickCount(), lastTick)) {
        import_.ProgressIt(count, done);
        lastTick = import_.Host.TickCount();
      }
      caller_.Try([&] { PriceObject(objects); });
    }
    import_.ProgressIt(count, count);
  }

 private:
  void PriceObject(Recordset& object) {
    const std::string base =
        caller_.Or(std::string(), [&] { return Ucase(object["dock_with"].Get().Text()); });
    if (db_.OpenRecordset(caller_,
                          "SELECT * from BaseGoods WHERE ucase(Base) = '{}' AND ucase(GoodNick) "
                          "like 'COMMODITY_*'",
                          {base})
            .AtEnd()) {
      return;
    }
    object.Edit();
    object["has_commodities"] = 1;
    object.Update();
    for (Recordset goods = db_.OpenRecordset(
             caller_, "SELECT * from Goods WHERE ucase(category) = 'COMMODITY' ORDER BY realname");
         !goods.AtEnd(); goods.MoveNext()) {
      caller_.Try([&] { PriceGood(object, base, goods); });
    }
  }

  void PriceGood(Recordset& object, const std::string& base, Recordset& good) {
    const std::string nickname =
        caller_.Or(std::string(), [&] { return good["nickname"].Get().Text(); });
    const double price = good["price"].Get().Number();
    Recordset market = db_.OpenRecordset(
        caller_, "SELECT * from BaseGoods WHERE ucase(Base) = '{}' AND ucase(GoodNick) = '{}'",
        {base, Ucase(nickname)});
    prices_.AddNew();
    prices_["SysNick"] = object["sys_nick"];
    prices_["BaseNick"] = object["nickname"];
    prices_["GoodNick"] = nickname;
    prices_["Price"] = price;
    prices_["Sell"] = 0;
    if (!market.AtEnd()) {
      prices_["Sell"] = market["val5"].Get().Number() == 0 ? 2 : 1;
      prices_["Price"] = std::floor(price * market["val6"].Get().Number());
    }
    prices_.Update();
  }

  Routine& caller_;
  Import& import_;
  Database& db_;
  Recordset prices_;
};

}  // namespace

void CalcBasePrices2(Universe& universe) {
  Routine routine(universe.Log, "OrrerixMain.CalcBasePrices2");
  routine.Run([&] { MarketStage(routine, universe.DB).Run(); });
}

void CalcBasePrices(Routine& caller, Import& import) {
  PriceStage(caller, import).Run();
}

}  // namespace orrerix
