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
      {TextId::CalculatingGroups,
       [](Universe& universe, ImportHost&) { CalcOwnerNames(universe); }},
      {TextId::CalculatingJumps, CalcJumpObjects},
      {TextId::CalculatingLanes, CalcTradeLanes},
      {TextId::CalculatingDocks, CalcDockObjects},
      {TextId::CalculatingPrices,
       [](Universe& universe, ImportHost&) { CalcBasePrices2(universe); }},
      {TextId::CalculatingShips,
       [](Universe& universe, ImportHost&) { CalcShipPackages(universe); }},
  };
}

}  // namespace orrerix
