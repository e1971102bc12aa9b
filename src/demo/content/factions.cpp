// SPDX-License-Identifier: MIT
#include "demo/content/factions.h"

#include <cstddef>

#include "demo/content/nations.h"

namespace orrerix::demo {

const std::vector<Faction>& Factions() {
  using enum FactionRole;
  static const std::vector<Faction> factions = {
      {"vo_navy_grp",
       "Vorrland Home Fleet",
       "Home Fleet",
       0,
       Navy,
       {"The Home Fleet has never fought outside the Compact and does not mean to begin. Its "
        "ships are heavy, slow and very hard to move from where they stand."}},
      {"vo_lane_grp",
       "Vorrland Lane Guard",
       "Lane Guard",
       0,
       Police,
       {"The Lane Guard sees to it that the trade lanes stay lit. It has little patience with "
        "pilots who cross them, and none with those who wait beside them."}},
      {"vo_sker_grp",
       "Skerry Ironworks",
       "Skerry",
       0,
       Company,
       {"Skerry began as a foundry on a rock that nobody wanted. It now casts every second hull "
        "frame in the sector, and still pays rent for the rock."}},
      {"vo_norr_grp",
       "Norrgat Freight",
       "Norrgat",
       0,
       Company,
       {"Norrgat haulers are grey, unarmed and exactly on time. The company insures its cargo "
        "against everything but lateness, which it holds to be a matter of character."}},
      {"vo_rime_grp",
       "Rime Brothers",
       "Rime Brothers",
       0,
       Pirate,
       {"Two of the brothers were real; both have retired. The rest took the name, the ice field "
        "and the habit of asking for a third of everything."}},
      {"ca_navy_grp",
       "Cassorel Navy of the Republic",
       "Republic Navy",
       1,
       Navy,
       {"The Navy answers to the Assembly, and the Assembly rarely asks. Its officers are chosen "
        "by examination, its dreadnoughts by architects."}},
      {"ca_gend_grp",
       "Cassorel Gendarmerie",
       "Gendarmerie",
       1,
       Police,
       {"The Gendarmerie patrols the inner lanes of the Republic in pairs. One of the two speaks; "
        "it is the other one that should worry you."}},
      {"ca_aube_grp",
       "Aubade Lines",
       "Aubade",
       1,
       Company,
       {"Aubade carries passengers, letters and secrets between the nations. No liner of the "
        "house has left a dock late since the founding, whoever was not yet aboard."}},
      {"ca_vign_grp",
       "Vigne and Daughters",
       "Vigne",
       1,
       Company,
       {"Four generations of daughters have run the house, and each has doubled it. They sell "
        "whatever grows, and own most of the places where it does."}},
      {"ca_lame_grp",
       "Lames Grises",
       "Lames Grises",
       1,
       Pirate,
       {"The grey blades rob with courtesy and written receipts. The Gendarmerie collects the "
        "receipts, for want of the blades."}},
      {"ta_navy_grp",
       "Dominion Lance",
       "Lance",
       2,
       Navy,
       {"A lancer rides alone, strikes once and leaves. The Lance keeps few stations, since its "
        "pilots refuse to sleep under a roof that they cannot fly."}},
      {"ta_ward_grp",
       "Road Wardens",
       "Wardens",
       2,
       Police,
       {"The wardens hold the roads of the Dominion for whoever pays the toll. The toll is "
        "modest, and so is their curiosity about cargo."}},
      {"ta_saig_grp",
       "Saiga Mining Combine",
       "Saiga",
       2,
       Company,
       {"Saiga digs where others have given up. Its crews are paid by the ton and sing while they "
        "work, which carries surprisingly well over open channels."}},
      {"ta_kumi_grp",
       "Kumis Transport",
       "Kumis",
       2,
       Company,
       {"Kumis drivers know every side road of the Dominion. Their ships are old, overloaded and "
        "decorated with ribbons for each safe arrival."}},
      {"ta_jack_grp",
       "Jackal Riders",
       "Jackals",
       2,
       Pirate,
       {"The Jackals follow the convoys at a polite distance and take what falls behind. Sooner or "
        "later something always does."}},
      {"is_navy_grp",
       "Armada of the Houses",
       "Armada",
       3,
       Navy,
       {"Each House sends ships to the Armada and counts those of the others. It is the finest "
        "fleet in the sector on the days when it agrees on a course."}},
      {"is_seal_grp",
       "Office of the Seal",
       "the Seal",
       3,
       Police,
       {"Nothing moves in the Houses without a seal, and no seal is given in a hurry. Officers of "
        "the Seal carry ink, wax and excellent missiles."}},
      {"is_scri_grp",
       "Scribes of Enkibar",
       "Scribes",
       3,
       Company,
       {"The Scribes build thinking machines and deny that the machines think. They lease them "
        "with a contract of four hundred pages, which the machines have read."}},
      {"is_loom_grp",
       "Loom Syndicate",
       "Loom",
       3,
       Company,
       {"The Loom weaves hull plate from polymer thread, and trades in whatever the thread will "
        "buy. A third of its profit goes to the Houses, by tradition; another by mistake."}},
      {"is_veil_grp",
       "Veiled Hand",
       "Veiled Hand",
       3,
       Pirate,
       {"The Hand smuggles for all the Houses, and spies for each of them on the rest. Its pilots "
        "have no names, only prices."}},
      {"fw_mili_grp",
       "Free Worlds Militia",
       "Militia",
       4,
       Navy,
       {"Every grown settler is a member, and most of them have a gun. The Militia is brave, "
        "stubborn and short of ammunition."}},
      {"fw_watch_grp",
       "Lantern Watch",
       "Watch",
       4,
       Police,
       {"The Watch keeps the beacons burning between the border worlds. It asks for fuel, not for "
        "taxes, and remembers who gave."}},
      {"fw_salv_grp",
       "Salvagers' Union",
       "Union",
       4,
       Company,
       {"What drifts belongs to the Union, and the Union decides what drifts. Its members buy "
        "scrap "
        "at a fair price, and ask where it came from only once."}},
      {"fw_ferr_grp",
       "Ferrymen's Guild",
       "Ferrymen",
       4,
       Company,
       {"The Ferrymen know the jump holes as others know stairs. For a fee they lead ships "
        "through, and for a larger one they forget that they did."}},
      {"fw_ashn_grp",
       "Ashen Fleet",
       "Ashen",
       4,
       Pirate,
       {"They burned their colours after the border war and never chose new ones. The Ashen take "
        "ships whole, crews included, and offer the crews a share."}},
  };
  return factions;
}

std::vector<int> FactionsOf(int nation, FactionRole role) {
  std::vector<int> places;
  const std::vector<Faction>& all = Factions();
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (all[i].Nation == nation && all[i].Role == role) places.push_back(static_cast<int>(i));
  }
  return places;
}

}  // namespace orrerix::demo
