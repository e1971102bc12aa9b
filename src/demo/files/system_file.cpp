// SPDX-License-Identifier: MIT
#include "demo/files/system_file.h"

#include <cmath>

#include <fmt/core.h>

#include "demo/files/system_text.h"

namespace orrerix::demo {

std::string Position(PlanePoint place, int height) {
  return fmt::format("{}, {}, {}", std::lround(place.X), height, std::lround(place.Y));
}

std::string SystemText::Bytes() {
  AddSurroundings();
  AddSun();
  for (const JumpPoint& jump : system_.Jumps) AddJump(jump);
  AddStrayHole();
  for (const PlannedBase& base : system_.Bases) AddBase(base);
  for (const BarePlanet& planet : system_.BarePlanets) AddBarePlanet(planet);
  for (const TradeLane& lane : system_.Lanes) AddLane(lane);
  for (const Wreck& wreck : system_.Wrecks) AddWreck(wreck);
  for (const AsteroidField& field : system_.Fields) AddField(field);
  return ini_.Bytes();
}

void SystemText::AddSurroundings() {
  const std::string music = fmt::format("music_{}", system_.Nickname.substr(0, 2));
  ini_.Comment(system_.Name)
      .Section("SystemInfo")
      .Line("space_color", "0, 0, 0")
      .Line("local_faction", ReputationOf(Police()));
  for (const char* encounter : {"patrol_light", "patrol_heavy", "convoy", "raiders"}) {
    ini_.Section("EncounterParameters")
        .Line("nickname", encounter)
        .Line("filename", fmt::format("missions\\encounters\\{}.ini", encounter));
  }
  ini_.Section("TexturePanels").Line("file", "universe\\heavens\\shapes.ini");
  ini_.Section("Music")
      .Line("space", music + "_space")
      .Line("danger", music + "_danger")
      .Line("battle", music + "_battle");
  ini_.Section("Dust").Line("spacedust", "Dust");
  ini_.Section("Ambient").Line("color", Color(15, 90));
  ini_.Section("Background")
      .Line("basic_stars", "solar\\starsphere\\stars_basic.cmp")
      .Line("nebulae", fmt::format("solar\\starsphere\\{}.cmp", system_.Nickname));
  ini_.Section("LightSource")
      .Line("nickname", system_.Nickname + "_system_light")
      .Line("pos", "0, 0, 0")
      .Line("color", Color(200, 255))
      .Line("range", 100000)
      .Line("type", "DIRECTIONAL")
      .Line("atten_curve", "DYNAMIC_DIRECTION");
}

void SystemText::AddSun() {
  const int radius = random_.Between(14, 30) * 100;
  Object(system_.Nickname + "_sun", Name(Library::Misc, "Sun"), "0, 0, 0")
      .Line("ambient_color", "255, 255, 255")
      .Line("archetype", fmt::format("sun_{}", radius))
      .Line("star", fmt::format("{}_star", system_.Nickname))
      .Line("atmosphere_range", radius * 3)
      .Line("burn_color", Color(140, 255))
      .Line("ids_info", SharedCard("Sun",
                                   "Too bright to look at and too hot to land on. Charts mark a "
                                   "circle round it that pilots are advised to respect."));
  Zone(fmt::format("zone_{}_sun_death", system_.Nickname), {}, radius * 3)
      .Line("damage", 10000)
      .Line("sort", 99.5)
      .Line("density", 0)
      .Line("relief_time", 0)
      .Line("population_additive", "false");
}

void SystemText::AddJump(const JumpPoint& jump) {
  const PlannedSystem& target = game_.Plan.Systems[static_cast<std::size_t>(jump.Target)];
  const std::string nation = system_.Nickname.substr(0, 2);
  const char* kind = jump.Hole ? "Hole" : "Gate";
  Object(jump.Nickname, Name(Library::Misc, fmt::format("{} Jump {}", target.Name, kind)),
         Position(jump.Place))
      .Line("rotate", fmt::format("0, {}, 0", random_.Between(-179, 180)))
      .Line("archetype", jump.Hole ? "jumphole_pale" : "jumpgate")
      .Line("msg_id_prefix", "msg_system_" + target.Nickname);
  ini_.Line("jump_effect", jump.Hole ? "jump_effect_hole" : "jump_effect_" + nation)
      .Line("ids_info",
            jump.Hole ? SharedCard("Jump Hole",
                                   "A tear in space that leads elsewhere. It is older than "
                                   "every gate, charges no toll and gives no warranty.")
                      : SharedCard("Jump Gate",
                                   "Two rings that fold the way between two suns. The toll is "
                                   "part of the price of everything."));
  ini_.Line("goto", fmt::format("{}, {}, gate_tunnel_{}", target.Nickname, jump.TargetNickname,
                                jump.Hole ? "hole" : nation));
  if (jump.Hole) return;
  Owned(Police(), LoadoutOf("jumpgate", system_.Nation), 3);
  Zone(fmt::format("zone_{}_gate_{}", system_.Nickname, target.Nickname), jump.Place, 4000)
      .Line("comment", target.Name + " Gate")
      .Line("sort", 8);
  const PlanePoint guard = Along(jump.Place, {}, 0.03);
  Object(fmt::format("{}_weapons_platform_{}", system_.Nickname, target.Nickname),
         Name(Library::Misc, "Gun Platform"), Position(guard, 400))
      .Line("archetype", "gun_platform")
      .Line("ids_info", SharedCard("Gun Platform", "Four turrets, one gunner and a long shift."));
  Owned(Police(), LoadoutOf("weapon_platform", system_.Nation), 5);
}

// The hole leads to a buoy in the first system that drifts and so has no position.
void SystemText::AddStrayHole() {
  const PlannedSystem& first = game_.Plan.Systems[0];
  const std::string buoy = first.Nickname + "_drift_buoy";
  const int card = SharedCard("Drift", "Charts disagree about where this leads.");
  if (index_ == game_.Plan.StrayHoleSystem) {
    Object(system_.Nickname + "_to_drift", Name(Library::Misc, "Unsteady Jump Hole"),
           Position(OnCircle(random_.Share(), system_.Rim() * 0.7)))
        .Line("archetype", "jumphole_pale")
        .Line("jump_effect", "jump_effect_hole_unsteady")
        .Line("ids_info", card)
        .Line("goto", fmt::format("{}, {}, gate_tunnel_hole", first.Nickname, buoy));
  }
  if (index_ == 0) {
    Object(buoy, Name(Library::Misc, "Drifting Buoy"), "")
        .Line("archetype", "nav_buoy")
        .Line("ids_info", card);
  }
}

std::string SystemFile(Game& game, int systemIndex) {
  return SystemText(game, systemIndex).Bytes();
}

}  // namespace orrerix::demo
