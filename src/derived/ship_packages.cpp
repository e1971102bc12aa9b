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
    for (Recordset ships = universe_.DB.OpenRows(routine_, "Ships"); !ships.AtEnd();
         ships.MoveNext()) {
      routine_.Try([&] { TakeHull(ships); });
      routine_.Try([&] { AddPackage(ships); });
    }
  }

 private:
  // The goods of a category that name a ship or a hull in this field.
  Recordset Goods(std::string_view field, const std::string& nickname, std::string_view category) {
    return routine_.Or(Recordset(), [&] {
      return universe_.DB.OpenRowsNamed(routine_, "Goods", {field, nickname},
                                        Database::NamedField{"category", category});
    });
  }

  void TakeHull(Recordset& ship) {
    const std::string nickname = TextOf(ship, "NickName");
    Recordset hull = Goods("ship", nickname, "SHIPHULL");
    if (hull.AtEnd()) return WarnOf("Shiphull for", nickname);
    const std::string hullNickname = TextOf(hull, "nickname");
    ship.Edit();
    ship["price"] = hull["price"];
    ship.Update();
    Recordset package = Goods("hull", hullNickname, "SHIP");
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

  // The prices of all goods of this nickname together; Null if none of them has one.
  Value PriceOf(const std::string& nickname) {
    Value sum;
    for (Recordset goods = RowNamed(routine_, universe_, "Goods", nickname); !goods.AtEnd();
         goods.MoveNext()) {
      const Value price = goods["price"].Get();
      if (!price.IsNull()) sum = sum.Number() + price.Number();
    }
    return sum;
  }

  void AddPackage(Recordset& ship) {
    for (Recordset items = universe_.DB.OpenRowsNamed(routine_, "Packages",
                                                      {"PackageName", TextOf(ship, "packagename")},
                                                      std::nullopt, RecordsetType::Dynaset);
         !items.AtEnd(); items.MoveNext()) {
      const Value price = PriceOf(TextOf(items, "NickName"));
      if (price.IsNull()) continue;
      ship.Edit();
      ship["price"] = [&] { return Sum(ship["price"].Get(), price); };
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
