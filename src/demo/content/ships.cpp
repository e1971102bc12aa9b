// SPDX-License-Identifier: MIT
#include "demo/content/ships.h"

namespace orrerix::demo {

const std::vector<Ship>& Ships() {
  using enum ShipRole;
  static const std::vector<Ship> ships = {
      {"vo_fighter", "Petrel", 0, LightFighter, 4200, 900, 20, 96, 21000, 2, 6,
       "The Petrel is the first ship of most Vorrland pilots, and the last of the careful ones. It "
       "turns slowly but forgives nearly everything."},
      {"vo_elite", "Fjordwarden", 0, HeavyFighter, 78000, 3400, 45, 150, 33000, 5, 28,
       "A slab of armour with engines. The Fjordwarden was drawn up by the Home Fleet for officers "
       "who dislike surprises."},
      {"vo_freighter", "Knarr", 0, Freighter, 31000, 2600, 140, 210, 30500, 3, 20,
       "Skerry has built the Knarr for sixty years without changing a bolt. Its hold is dry, "
       "square "
       "and larger than it looks."},
      {"ca_fighter", "Mésange", 1, LightFighter, 5100, 820, 18, 88, 22500, 2, 6,
       "Light, quick and a little vain: the Mésange is flown by couriers and by those who wish "
       "to be taken for one."},
      {"ca_elite", "Chevalier d'Orlinde", 1, HeavyFighter, 91000, 3100, 40, 138, 36500, 6, 30,
       "The pride of the Republic's yards. It carries six guns on two wings, and nobody at "
       "Cassorel "
       "will say what it costs to keep."},
      {"ca_freighter", "Péniche", 1, Freighter, 34000, 2300, 155, 205, 29000, 3, 18,
       "A broad-bellied carrier for wine, seed and furniture. The cabin has a stove and a window "
       "box."},
      {"ta_fighter", "Kestrel of Ulgarat", 2, LightFighter, 4700, 780, 15, 82, 24000, 3, 8,
       "The clans race the Kestrel before they fight in it. It has no comforts, and a seat that "
       "fits everyone badly."},
      {"ta_elite", "Steppe Wolf", 2, HeavyFighter, 69000, 2900, 35, 131, 35500, 5, 26,
       "Lancers say that the Wolf knows the way home. They also say that it bites, and check the "
       "straps twice."},
      {"ta_freighter", "Bactrian", 2, Freighter, 28000, 2900, 165, 232, 27500, 2, 22,
       "Two humps, one engine and no speed to speak of. A Bactrian arrives late and arrives "
       "always."},
      {"is_fighter", "Reed Needle", 3, LightFighter, 5600, 800, 16, 84, 24500, 2, 8,
       "Narrow as its name, the Needle is woven rather than welded. It slips between patrols and "
       "through most regulations."},
      {"is_elite", "Sword of Nabesh", 3, HeavyFighter, 102000, 3000, 38, 134, 38000, 6, 32,
       "Each House orders its own trim, and the pilots are buried with it. The drive hums a chord "
       "that the yards keep secret."},
      {"is_freighter", "Ziggurat", 3, Freighter, 41000, 2500, 150, 198, 31000, 4, 20,
       "Cargo stands on seven decks, sorted by worth from the bottom up. Customs officers begin at "
       "the top."},
      {"fw_patchwork", "Patchwork", 4, HeavyFighter, 52000, 3200, 60, 145, 31500, 4, 24,
       "No two Patchworks are alike. The Union builds them from what it finds, and names the "
       "parts after their former owners.",
       true, false},
      {"fw_ghost", "Pale Courier", 4, LightFighter, 0, 700, 10, 76, 26000, 2, 4,
       "It is seen at the rim, always leaving. Nobody sells it, and nobody admits to flying one.",
       false, false},
  };
  return ships;
}

}  // namespace orrerix::demo
