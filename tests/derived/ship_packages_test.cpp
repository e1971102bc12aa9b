// SPDX-License-Identifier: MIT
#include "derived/ship_packages.h"

#include <gmock/gmock.h>

#include "derived/universe_builders.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ShipPackages : public DerivedFixture {
 protected:
  void Ship(std::string_view nickname) { Add("Ships", {{"NickName", nickname}}); }
  void Hull(std::string_view nickname, std::string_view ship, const Value& price) {
    Add("Goods", {{"nickname", nickname},
                  {"category", "shiphull"},
                  {"ship", ship},
                  {"hull", ""},
                  {"price", price}});
  }
  void Package(std::string_view nickname, std::string_view hull) {
    Add("Goods", {{"nickname", nickname},
                  {"category", "ship"},
                  {"ship", ""},
                  {"hull", hull},
                  {"price", 1000000}});
  }
  void Equipment(std::string_view nickname, const Value& price) {
    Add("Goods", {{"nickname", nickname},
                  {"category", "equipment"},
                  {"ship", ""},
                  {"hull", ""},
                  {"price", price}});
  }
  void Addon(std::string_view package, std::string_view item, const Value& count) {
    Add("Packages", {{"PackageName", package}, {"NickName", item}, {"Val", count}});
  }
};

TEST_F(ShipPackages, APriceIsThatOfTheHullAndOfEachGoodInThePackage) {
  Ship("kite");
  Hull("kite_hull", "KITE", 5000);
  Package("kite_package", "Kite_Hull");
  Equipment("gun", 300);
  Equipment("lamp", 20);
  Addon("kite_package", "gun", 1);
  Addon("KITE_package", "GUN", 1);
  Addon("kite_package", "lamp", 0);

  CalcShipPackages(universe);

  // 5000 + 300 + 300 + 20; the package's own price does not count.
  EXPECT_THAT(Column("Ships", "price"), ElementsAre("5620"));
  EXPECT_THAT(Column("Ships", "packagename"), ElementsAre("kite_package"));
  EXPECT_THAT(Column("Packages", "Val"), ElementsAre("2", "2", "1"));
  EXPECT_THAT(DataLog(), IsEmpty());
}

TEST_F(ShipPackages, AShipWithoutAHullIsNamedAndGainsNothing) {
  Ship("ghost");

  CalcShipPackages(universe);

  EXPECT_THAT(DataLog(), ElementsAre("Warning: NO Shiphull for ghost this means the ship has no "
                                     "equipment."));
  EXPECT_TRUE(Rows("Ships").front()["price"].IsNull());
  EXPECT_TRUE(Rows("Ships").front()["packagename"].IsNull());
}

TEST_F(ShipPackages, AHullWithoutAPackageGivesItsPriceAndIsNamed) {
  Ship("kite");
  Hull("kite_hull", "kite", 5000);

  CalcShipPackages(universe);

  EXPECT_THAT(Column("Ships", "price"), ElementsAre("5000"));
  EXPECT_THAT(DataLog(), ElementsAre("Warning: NO Packagename for Shiphull kite_hull this means "
                                     "the ship has no equipment."));
}

TEST_F(ShipPackages, AGoodWithoutAPriceChangesNothing) {
  Ship("kite");
  Hull("kite_hull", "kite", 5000);
  Package("kite_package", "kite_hull");
  Equipment("light", Value());
  Addon("kite_package", "light", 1);
  Addon("kite_package", "unknown", 1);

  CalcShipPackages(universe);

  EXPECT_THAT(Column("Ships", "price"), ElementsAre("5000"));
  EXPECT_THAT(Column("Packages", "Val"), ElementsAre("1", "1"));
}

TEST_F(ShipPackages, ACountThatIsNullStaysNull) {
  Ship("kite");
  Hull("kite_hull", "kite", 1);
  Package("kite_package", "kite_hull");
  Equipment("gun", 300);
  Addon("kite_package", "gun", Value());

  CalcShipPackages(universe);

  EXPECT_TRUE(Rows("Packages").front()["Val"].IsNull());
  EXPECT_THAT(Column("Ships", "price"), ElementsAre("301"));
}

TEST_F(ShipPackages, APriceBeyondItsFieldIsAFailureAndKeepsTheOldOne) {
  Ship("kite");
  Hull("kite_hull", "kite", 2000000000);
  Package("kite_package", "kite_hull");
  Equipment("gun", 2000000000);
  Addon("kite_package", "gun", 1);

  CalcShipPackages(universe);

  EXPECT_THAT(FailureNumbers(), ElementsAre(6));
  EXPECT_THAT(Column("Ships", "price"), ElementsAre("2000000000"));
  EXPECT_THAT(Column("Packages", "Val"), ElementsAre("2"));
}

}  // namespace
}  // namespace orrerix
