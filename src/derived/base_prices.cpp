// SPDX-License-Identifier: MIT
#include "derived/base_prices.h"

#include <cmath>

#include "db/values/text.h"
#include "derived/lookup.h"
#include "platform/tick_count.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

// Market lines of unknown goods or bases give no row, so inner joins will do, written in the order
// in which the indexes serve them best. Most lines are not about commodities: joining the list of
// commodities first drops them before anything is looked up.
constexpr std::string_view kAppendPrices =
    "INSERT INTO BaseGoodPrices (BaseNick, GoodNick, Price, Sell, SysNick) "
    "SELECT Objects.nickname, BaseGoods.GoodNick, fitlong(Goods.price*BaseGoods.val6) AS Preis, "
    "fitbyte(1+BaseGoods.val5) AS Sell, "
    "IIf(sys_nick Is Null,Left(BaseGoods.Base,4),sys_nick) AS SysNick "
    "FROM BaseGoods NOT INDEXED CROSS JOIN Goods ON Goods.nickname = BaseGoods.GoodNick "
    "CROSS JOIN Objects ON BaseGoods.Base = Objects.dock_with "
    "WHERE BaseGoods.GoodNick IN (SELECT nickname FROM Goods WHERE category = 'COMMODITY') "
    "And Goods.category = 'COMMODITY' And Len(Objects.nickname) > 0 "
    "ORDER BY Goods.realname, BaseGoods.rowid, Objects.rowid";

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
  routine.Run([&] {
    LookUpBy(routine, universe, "Objects", "dock_with");
    universe.DB.Execute(routine, kAppendPrices, {}, ExecuteOption::DropBadRows);
  });
}

void CalcBasePrices(Routine& caller, Import& import) {
  PriceStage(caller, import).Run();
}

}  // namespace orrerix
