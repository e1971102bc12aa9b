// SPDX-License-Identifier: MIT
// A universe with places, markets and prices for the tests of the station window.
#pragma once

#include "info/station/station_data.h"
#include "support/universe_fixture.h"

namespace orrerix {

class StationFixture : public UniverseFixture {
 protected:
  StationFixture() {
    db.CreateTable(mustWork, DockObjectsTable());
    names.Set({7, 4}, "Lantern");
  }

  // An object of the map in the middle of a cell: column D, half of row 4.
  void Dock(std::string_view nickname, std::string_view realname) {
    Add("DockObjects", {{"nickname", nickname},
                        {"realname", realname},
                        {"MapX", 7},
                        {"MapY", 4},
                        {"PosX", 0.5},
                        {"PosY", 0.5}});
  }
  void Object(std::string_view nickname, int info, std::string_view dockWith = "",
              std::string_view reputation = "") {
    Add("Objects", {{"nickname", nickname},
                    {"ids_info", info},
                    {"dock_with", dockWith},
                    {"reputation", reputation}});
  }
  void Place(std::string_view nickname, std::string_view realname) {
    Dock(nickname, realname);
    Object(nickname, 100);
  }
  void Info(int number, std::string_view text) {
    Add("ids_info", {{"ID", number}, {"Info", text}, {"DLL", "x.dll"}});
  }
  void Price(std::string_view base, std::string_view good, int price, int sell,
             std::string_view system = "sys_a") {
    Add("BaseGoodPrices", {{"SysNick", system},
                           {"BaseNick", base},
                           {"GoodNick", good},
                           {"Price", price},
                           {"Sell", sell}});
  }
  void Good(std::string_view nickname, std::string_view realname, int price) {
    Add("Goods", {{"nickname", nickname},
                  {"realname", realname},
                  {"category", "commodity"},
                  {"price", price},
                  {"ids_info", 0}});
  }
  void Market(std::string_view base, std::string_view good, double val5 = 0) {
    Add("BaseGoods", {{"Base", base}, {"GoodNick", good}, {"val5", val5}});
  }

  StationData Read(std::string_view nickname, StationMode mode = StationMode::Prices) {
    return ReadStation(universe, names, english, nickname, mode);
  }

  FixedLanguage english{Language::English};
  CellNames names;
};

}  // namespace orrerix
