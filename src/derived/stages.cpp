// SPDX-License-Identifier: MIT
#include "derived/stages.h"

#include "derived/base_prices.h"
#include "derived/dock_objects.h"
#include "derived/jump_objects.h"
#include "derived/owner_names.h"
#include "derived/ship_packages.h"
#include "derived/trade_lanes.h"

namespace orrerix {

std::vector<DerivedStage> DerivedStages() {
  return {
      {"Calculation of Groups...",
       [](Universe& universe, ImportHost&) { CalcOwnerNames(universe); }},
      {"Calculation of Jumpholes and Jumpgates...", CalcJumpObjects},
      {"Calculation of Tradelanes...", CalcTradeLanes},
      {"Calculation of Stations, Planets, DockingRings...", CalcDockObjects},
      {"Calculation of Commodities-Prices per Planet, Station, Base - PLEASE WAIT!",
       [](Universe& universe, ImportHost&) { CalcBasePrices2(universe); }},
      {"Calculation of Ships-Prices and Package-Names...",
       [](Universe& universe, ImportHost&) { CalcShipPackages(universe); }},
  };
}

}  // namespace orrerix
