// SPDX-License-Identifier: MIT
#include "derived/commodity_names.h"

#include <array>

#include "db/values/text.h"
#include "derived/lookup.h"
#include "import/resources/resource_strings.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

// String 65000 of the third library is the name of the first of these, and so on.
constexpr std::int32_t kFirstName = 261608;

constexpr std::array<std::string_view, 40> kCommodities = {"commodity_boron",
                                                           "commodity_beryllium",
                                                           "commodity_gold",
                                                           "commodity_cobalt",
                                                           "commodity_silver",
                                                           "commodity_toxic_waste",
                                                           "commodity_scrap_metal",
                                                           "commodity_hydrocarbons",
                                                           "commodity_niobium",
                                                           "commodity_copper",
                                                           "commodity_oxygen",
                                                           "commodity_water",
                                                           "commodity_diamonds",
                                                           "commodity_alien_organisms",
                                                           "commodity_food",
                                                           "commodity_luxury_food",
                                                           "commodity_fertilizers",
                                                           "commodity_H_fuel",
                                                           "commodity_mox_fuel",
                                                           "commodity_basic_alloys",
                                                           "commodity_super_alloys",
                                                           "commodity_high_temp_alloys",
                                                           "commodity_superconductors",
                                                           "commodity_optical_chips",
                                                           "commodity_mining_machinery",
                                                           "commodity_construction_machinery",
                                                           "commodity_pharm",
                                                           "commodity_ship_hull_panels",
                                                           "commodity_polymers",
                                                           "commodity_optronics",
                                                           "commodity_consumer_goods",
                                                           "commodity_luxury_consumer_goods",
                                                           "commodity_engine_components",
                                                           "commodity_terraforming_gases",
                                                           "commodity_cardamine",
                                                           "commodity_alien_artifacts",
                                                           "commodity_sidearms",
                                                           "commodity_tradelane_parts",
                                                           "commodity_prisoners",
                                                           "commodity_vips"};

}  // namespace

std::string RealComName(Universe& universe, std::string_view nickname) {
  std::string name;
  Routine routine(universe.Log, "OrrerixMain.RealComName",
                  "While getting Commodity-name for " + std::string(nickname));
  routine.Run([&] {
    Recordset commodity = RowNamed(routine, universe, "commodity", nickname);
    if (!commodity.AtEnd()) {
      name = commodity["realname"].Get().Text();
      return;
    }
    for (std::size_t i = 0; i < kCommodities.size(); ++i) {
      if (kCommodities[i] != nickname) continue;
      name = GetName(universe, kFirstName + static_cast<std::int32_t>(i), "");
      return;
    }
  });
  return name;
}

}  // namespace orrerix
