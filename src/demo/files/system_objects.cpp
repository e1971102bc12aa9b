// SPDX-License-Identifier: MIT
#include <cstddef>

#include <fmt/core.h>

#include "demo/content/place_cards.h"
#include "demo/files/system_text.h"

namespace orrerix::demo {

void SystemText::AddBase(const PlannedBase& base) {
  if (base.Planet != nullptr) {
    AddPlanet(base);
  } else {
    AddStation(base);
  }
}

void SystemText::AddPlanet(const PlannedBase& planet) {
  const int radius = random_.Between(15, 30) * 100;
  Object(planet.Nickname, Name(Library::Names, planet.Name), Position(planet.Place))
      .Line("archetype", planet.Planet->Archetype)
      .Line("spin", "0, 0.006, 0")
      .Line("atmosphere_range", radius + 200)
      .Line("burn_color", Color(120, 255))
      .Line("ids_info", BaseCards(game_, system_, planet))
      .Line("base", planet.BaseNickname())
      .Line("reputation", ReputationOf(planet.Owner));
  const PlanePoint ring = {planet.Place.X, planet.Place.Y + radius + 700};
  Object(planet.Nickname + "_dock_ring", Name(Library::Misc, "Landing Ring"), Position(ring))
      .Line("rotate", "0, 180, 0")
      .Line("archetype", "dock_ring")
      .Line("ids_info", SharedCard("Landing Ring",
                                   "Ships pass through here on their way down. The "
                                   "queue is orderly, and long at harvest."))
      .Line("dock_with", planet.BaseNickname());
  Owned(planet.Owner, LoadoutOf("docking_ring", system_.Nation), 4);
  AddFixture(planet);
  Zone(fmt::format("zone_{}_death", planet.Nickname), planet.Place, radius + 100)
      .Line("damage", 2000000)
      .Line("sort", 99.5);
}

void SystemText::AddFixture(const PlannedBase& base) {
  const PlanePoint place = {base.Place.X + 300, base.Place.Y + 900};
  Object(fmt::format("{}_docking_fixture_{}", system_.Nickname, ++fixtures_),
         Name(Library::Misc, "Docking Fixture"), Position(place, 350))
      .Line("archetype", "docking_fixture")
      .Line("ids_info",
            SharedCard("Docking Fixture", "Large ships moor here and unload by tender."))
      .Line("base", base.BaseNickname())
      .Line("dock_with", base.BaseNickname())
      .Line("reputation", ReputationOf(base.Owner))
      .Line("behavior", "NOTHING");
}

void SystemText::AddStation(const PlannedBase& station) {
  Object(station.Nickname, Name(Library::Names, station.Name),
         Position(station.Place, random_.Between(-400, 400)))
      .Line("rotate", fmt::format("0, {}, 0", random_.Between(-179, 180)))
      .Line("archetype", station.Station->Stem)
      .Line("ids_info", BaseCards(game_, system_, station))
      .Line("base", station.BaseNickname())
      .Line("dock_with", station.BaseNickname());
  Owned(station.Owner, LoadoutOf(station.Station->Stem, system_.Nation), random_.Between(2, 6));
  Zone(fmt::format("zone_{}_patrol", station.Nickname), station.Place, 6000)
      .Line("comment", station.Name)
      .Line("toughness", random_.Between(2, 14))
      .Line("density", random_.Between(2, 6))
      .Line("repop_time", 20)
      .Line("density_restriction", "1, guards")
      .Line("density_restriction", "2, outlaws")
      .Line("encounter", fmt::format("patrol_light, {}, 0.4", random_.Between(2, 9)))
      .Line("faction", fmt::format("{}, 0.8", ReputationOf(station.Owner)))
      .Line("faction", fmt::format("{}, 0.2", ReputationOf(Police())))
      .Line("encounter", fmt::format("convoy, {}, 0.25", random_.Between(2, 9)))
      .Line("faction", fmt::format("{}, 1", ReputationOf(station.Owner)));
}

void SystemText::AddBarePlanet(const BarePlanet& planet) {
  Object(planet.Nickname, Name(Library::Names, planet.Name), Position(planet.Place))
      .Line("archetype", planet.Kind->Archetype)
      .Line("spin", "0, 0.004, 0")
      .Line("ids_info", BarePlanetCards(game_, system_, planet));
}

void SystemText::AddLane(const TradeLane& lane) {
  for (int ring = 1; ring <= lane.Rings; ++ring) {
    if (ring != lane.MissingRing) AddRing(lane, ring);
  }
  Zone(fmt::format("zone_{}_lane_{}", system_.Nickname, lane.FirstRing),
       Along(lane.From, lane.To, 0.5), 3000)
      .Line("usage", "trade")
      .Line("encounter", "convoy, 4, 0.3")
      .Line("faction", fmt::format("{}, 1", ReputationOf(Police())));
}

void SystemText::AddRing(const TradeLane& lane, int ring) {
  const std::string stem = system_.Nickname + "_trade_lane_ring_";
  const int number = lane.FirstRing + ring - 1;
  const double share = static_cast<double>(ring - 1) / (lane.Rings - 1);
  Object(fmt::format("{}{}", stem, number), Name(Library::Misc, "Trade Lane Ring"),
         Position(Along(lane.From, lane.To, share)))
      .Line("archetype", "Trade_Lane_Ring")
      .Line("ids_info", SharedCard("Trade Lane Ring",
                                   "Enter on the lit side and keep your hands off "
                                   "the throttle. The next ring does the rest."));
  if (ring > 1) ini_.Line("prev_ring", fmt::format("{}{}", stem, number - 1));
  if (ring < lane.Rings) ini_.Line("next_ring", fmt::format("{}{}", stem, number + 1));
  if (ring == 1) ini_.Line("tradelane_space_name", Name(Library::Misc, lane.FromName));
  if (ring == lane.Rings) ini_.Line("tradelane_space_name", Name(Library::Misc, lane.ToName));
  Owned(Police(), LoadoutOf("trade_lane_ring", system_.Nation), 3);
}

void SystemText::AddWreck(const Wreck& wreck) {
  const std::string name = fmt::format("Wreck of the {}", wreck.Name);
  Object(wreck.Nickname, Name(Library::Names, name),
         Position(wreck.Place, random_.Between(-900, 900)))
      .Line("rotate", fmt::format("{}, {}, 0", random_.Between(0, 90), random_.Between(0, 90)))
      .Line("archetype", "wreck_freighter")
      .Line("ids_info", WreckCard(game_, system_, wreck))
      .Line("visit", 0)
      .Line("loadout", wreck.Loadout());
}

void SystemText::AddField(const AsteroidField& field) {
  constexpr const char* stems[] = {"ice", "rock", "debris"};
  const char* stem = stems[static_cast<std::size_t>(field.Kind)];
  ini_.Section("Asteroids")
      .Line("file", fmt::format("solar\\asteroids\\{}_field.ini", stem))
      .Line("zone", field.Nickname);
  if (field.Kind == FieldKind::Ice) {
    ini_.Section("Nebula")
        .Line("file", "solar\\nebula\\ice_cloud.ini")
        .Line("zone", field.Nickname);
  }
  ini_.Section("zone")
      .Line("nickname", field.Nickname)
      .Line("ids_name", Name(Library::Names, field.Name))
      .Line("pos", Position(field.Place))
      .Line("rotate", fmt::format("0, {}, 0", random_.Between(-90, 90)))
      .Line("shape", "ELLIPSOID")
      .Line("size", fmt::format("{}, 5000, {}", field.Size, field.Size * 2 / 3))
      .Line("property_flags", 256)
      .Line("visit", 36)
      .Line("spacedust", fmt::format("{}dust", stem))
      .Line("ids_info", FieldCard(game_, system_, field))
      .Line("comment", field.Name)
      .Line("interference", random_.Between(0.0, 0.5), 2)
      .Line("encounter", "raiders, 6, 0.35")
      .Line("faction", fmt::format("{}, 1", ReputationOf(Pirates())));
}

}  // namespace orrerix::demo
