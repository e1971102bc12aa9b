// SPDX-License-Identifier: MIT
#include "derived/ship_packages.h"

#include <fmt/format.h>

#include "db/values/text.h"
#include "derived/lookup.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

// Null in arithmetic gives Null.
Value Sum(const Value& a, const Value& b) {
  return a.IsNull() || b.IsNull() ? Value() : Value(a.Number() + b.Number());
}

class PackageStage {
 public:
  PackageStage(Routine& routine, Universe& universe) : routine_(routine), universe_(universe) {}

  void Run() {
    LookUpBy(routine_, universe_, "Goods", "ucase(nickname)");
    LookUpBy(routine_, universe_, "Goods", "ucase(ship)");
    LookUpBy(routine_, universe_, "Goods", "ucase(hull)");
    LookUpBy(routine_, universe_, "Packages", "ucase(PackageName)");
    for (Recordset ships = universe_.DB.OpenRecordset(routine_, "SELECT * from Ships", {},
                                                      RecordsetType::Dynaset);
         !ships.AtEnd(); ships.MoveNext()) {
      routine_.Try([&] { TakeHull(ships); });
      routine_.Try([&] { AddPackage(ships); });
    }
  }

 private:
  Recordset Goods(std::string_view condition, const std::string& nickname) {
    return routine_.Or(Recordset(), [&] {
      return universe_.DB.OpenRecordset(
          routine_, "SELECT * from Goods WHERE " + std::string(condition), {Ucase(nickname)});
    });
  }

  void TakeHull(Recordset& ship) {
    const std::string nickname = TextOf(ship, "NickName");
    Recordset hull = Goods("ucase(ship) = '{}' AND ucase(category) = 'SHIPHULL'", nickname);
    if (hull.AtEnd()) return WarnOf("Shiphull for", nickname);
    const std::string hullNickname = TextOf(hull, "nickname");
    ship.Edit();
    ship["price"] = hull["price"];
    ship.Update();
    Recordset package = Goods("ucase(hull) = '{}' AND ucase(category) = 'SHIP'", hullNickname);
    if (package.AtEnd()) return WarnOf("Packagename for Shiphull", hullNickname);
    ship.Edit();
    ship["packagename"] = package["nickname"];
    ship.Update();
  }

  std::string TextOf(Recordset& row, std::string_view field) {
    return routine_.Or(std::string(), [&] { return row[field].Get().Text(); });
  }

  void WarnOf(std::string_view missing, std::string_view nickname) {
    routine_.Try([&] {
      universe_.Log.AddErrorLine(fmt::format(
          "Warning: NO {} {} this means the ship has no equipment.", missing, nickname));
    });
  }

  void AddPackage(Recordset& ship) {
    for (Recordset items = universe_.DB.OpenRecordset(
             routine_, "SELECT * from Packages WHERE ucase(PackageName) = '{}'",
             {Ucase(TextOf(ship, "packagename"))}, RecordsetType::Dynaset);
         !items.AtEnd(); items.MoveNext()) {
      Recordset prices = universe_.DB.OpenRecordset(
          routine_,
          "SELECT sum(Price) as summe from Goods WHERE ucase(nickname) = '{}' and NOT "
          "ISNULL(Price)",
          {Ucase(TextOf(items, "NickName"))});
      if (prices.AtEnd() || prices["summe"].IsNull()) continue;
      ship.Edit();
      ship["price"] = [&] { return Sum(ship["price"].Get(), prices["summe"].Get()); };
      ship.Update();
      items.Edit();
      items["Val"] = [&] { return Sum(items["Val"].Get(), 1); };
      items.Update();
    }
  }

  Routine& routine_;
  Universe& universe_;
};

}  // namespace

void CalcShipPackages(Universe& universe) {
  Routine routine(universe.Log, "OrrerixMain.CalcShipPackages");
  routine.Run([&] { PackageStage(routine, universe).Run(); });
}

}  // namespace orrerix
