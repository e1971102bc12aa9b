// SPDX-License-Identifier: MIT
#include "demo/content/commodities.h"

namespace orrerix::demo {

const std::vector<Commodity>& Commodities() {
  using enum GoodsGroup;
  static const std::vector<Commodity> commodities = {
      {"commodity_water", "Water", 25, 1, 0, Food,
       "Melted from comets and filtered twice. Stations recycle all they can and still run short "
       "every winter."},
      {"commodity_oxygen", "Oxygen", 20, 1, 0, Food,
       "Bottled air for mines, ships and the lower decks. A full rack is worth little until the "
       "day it is worth everything."},
      {"commodity_bread_root", "Bread Root", 45, 1, 0, Food,
       "A pale tuber that grows under any lamp. It keeps for a year and tastes the same on the "
       "last day as on the first."},
      {"commodity_sea_silk", "Sea Silk", 780, 1, 0, Luxury,
       "Thread combed from the tidal pools of Cassorel. It is light, warm and fiercely taxed."},
      {"commodity_winter_wine", "Winter Wine", 310, 1, 0, Luxury,
       "Pressed from frozen grapes and shipped before the thaw. Each bottle carries the date of "
       "the frost."},
      {"commodity_preserves", "Preserves", 95, 1, 0, Food,
       "Fruit, fish and pickles in sealed jars. Crews judge a ship by its pantry, and a pantry by "
       "its preserves."},
      {"commodity_seed_stock", "Seed Stock", 160, 1, 0, Food,
       "Certified seed for greenhouse and field. Settlers plant half and lock the other half "
       "away."},
      {"commodity_timber", "Timber", 240, 2, 0, Luxury,
       "Real wood, felled and dried on a planet. In Vorrland it is given at weddings."},
      {"commodity_ice", "Ice", 10, 1, 0, Raw,
       "Blocks cut straight from the field. Cheap, heavy and always wanted somewhere."},
      {"commodity_iron_ore", "Iron Ore", 40, 1, 0, Raw,
       "Dull red rock by the shipload. The foundries of Skerry take it at any hour."},
      {"commodity_copper", "Copper", 70, 1, 0, Metal,
       "Wire, pipe and plate, sold by weight. It is the first metal that a new settlement runs "
       "out of."},
      {"commodity_silver", "Silver", 190, 1, 0, Metal,
       "Ingots for mirrors, contacts and a few old-fashioned banks."},
      {"commodity_gold", "Gold", 340, 1, 0, Metal,
       "The metal that needs no explanation. Most of it travels in unmarked ships."},
      {"commodity_hull_plate", "Hull Plate", 210, 2, 0, Metal,
       "Rolled sheets of layered alloy. A yard without plate is only a crowd of welders."},
      {"commodity_woven_plate", "Woven Plate", 520, 1, 0, Tech,
       "Polymer thread woven and fired into armour. Lighter than steel and twice as stubborn."},
      {"commodity_lamp_oil", "Lamp Oil", 55, 1, 0, Fuel,
       "Thick fuel for small reactors. The border worlds burn it for heat, light and company."},
      {"commodity_ember_gas", "Ember Gas", 130, 1, 0, Fuel,
       "Skimmed from the upper clouds of gas giants. It glows faintly, and inspectors use that to "
       "check the seals."},
      {"commodity_core_rods", "Core Rods", 460, 1, 0, Fuel,
       "Spare rods for ship and station cores. Handle with tongs, or with somebody else's hands."},
      {"commodity_drill_heads", "Drill Heads", 280, 2, 0, Machine,
       "Cutting heads for asteroid work. They arrive sharp and leave as scrap within a season."},
      {"commodity_farm_engines", "Farm Engines", 330, 2, 0, Machine,
       "Ploughs, pumps and pickers in crates. Assembly takes a day and an argument."},
      {"commodity_gate_spares", "Gate Spares", 690, 1, 0, Machine,
       "Rings, coils and clamps for trade lanes. The guilds pay at once, for a dark lane costs "
       "more by the hour."},
      {"commodity_engine_parts", "Engine Parts", 380, 1, 0, Machine,
       "Bearings, nozzles and valves for common drives. No pilot admits to carrying spares, and "
       "none leaves without them."},
      {"commodity_optics", "Fine Optics", 610, 1, 0, Tech,
       "Lenses ground in zero gravity. A thumbprint costs more than the box."},
      {"commodity_thinking_glass", "Thinking Glass", 950, 1, 0, Tech,
       "Memory plates from the workshops of Enkibar. They store anything and forget nothing, not "
       "even the price."},
      {"commodity_medicine", "Medicine", 270, 1, 0, Medical,
       "Sealed kits for ship and field doctors. Delivery within the date on the lid is part of the "
       "contract."},
      {"commodity_vaccines", "Vaccines", 540, 1, 1, Medical,
       "Kept cold, or not worth keeping. Each new colony needs them before it needs a name."},
      {"commodity_fertile_soil", "Fertile Soil", 60, 2, 0, Raw,
       "Black earth from the river plains of Lamarat. It smells of rain, which some station "
       "children have only read about."},
      {"commodity_curios", "Ancient Curios", 1200, 1, 0, Illicit,
       "Pieces of the builders who were here before. Owning them is a crime in three nations and a "
       "fashion in all four."},
      {"commodity_dreamleaf", "Dreamleaf", 880, 1, 0, Illicit,
       "A bitter leaf that makes the night watch pass. It also makes the next one longer."},
      {"commodity_forged_seals", "Forged Seals", 740, 1, 0, Illicit,
       "Wax, ribbon and a very good imitation of authority. The Office pays a reward for each, and "
       "the Hand pays a better one."},
      {"commodity_scrap", "Scrap", 35, 2, 0, Waste,
       "Bent beams and burnt wiring from the wreck fields. Somebody will make something of it."},
      {"commodity_slag", "Reactor Slag", 15, 2, 0, Waste,
       "Spent fuel in grey drums. Places that take it are paid to, and do not talk about it."},
  };
  return commodities;
}

}  // namespace orrerix::demo
