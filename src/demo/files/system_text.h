// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "demo/files/writers.h"
#include "demo/format/info_card.h"
#include "demo/format/ini_text.h"
#include "demo/plan/random.h"

namespace orrerix::demo {

// A position as the game writes it: the height stands second.
std::string Position(PlanePoint place, int height = 0);

// Writes the file of one system; the methods follow the order of the file. Surroundings and jump
// points are in system_file.cpp, what lies between them in system_objects.cpp.
class SystemText {
 public:
  SystemText(Game& game, int index)
      : game_(game),
        index_(index),
        system_(game.Plan.Systems[static_cast<std::size_t>(index)]),
        random_(SeedOf("file of " + system_.Nickname)) {}

  // The whole file in Windows-1252. Call it once.
  std::string Bytes();

 private:
  int Police() const { return FactionsOf(system_.Nation, FactionRole::Police)[0]; }
  int Pirates() const { return FactionsOf(system_.Nation, FactionRole::Pirate)[0]; }
  int Name(Library library, std::string_view text) { return game_.Texts.Name(library, text); }

  std::string Color(int low, int high) {
    const int red = random_.Between(low, high);
    const int green = random_.Between(low, high);
    return fmt::format("{}, {}, {}", red, green, random_.Between(low, high));
  }

  // A card that all things of a kind share; the text is stored once.
  int SharedCard(std::string_view headline, const std::string& text) {
    return game_.Texts.SharedCard(Library::Misc, InfoCard(headline, {text}));
  }

  IniText& Object(const std::string& nickname, int name, const std::string& position) {
    ini_.Section("Object").Line("nickname", nickname).Line("ids_name", name);
    if (!position.empty()) ini_.Line("pos", position);
    return ini_;
  }

  IniText& Zone(const std::string& nickname, PlanePoint place, int size) {
    return ini_.Section("zone")
        .Line("nickname", nickname)
        .Line("pos", Position(place))
        .Line("shape", "SPHERE")
        .Line("size", size);
  }

  // The lines that every inhabited object ends with.
  void Owned(int owner, const std::string& loadout, int difficulty) {
    ini_.Line("reputation", ReputationOf(owner))
        .Line("behavior", "NOTHING")
        .Line("difficulty_level", difficulty)
        .Line("loadout", loadout)
        .Line("pilot", "pilot_solar_hard");
  }

  void AddSurroundings();
  void AddSun();
  void AddJump(const JumpPoint& jump);
  void AddStrayHole();
  void AddBase(const PlannedBase& base);
  void AddPlanet(const PlannedBase& planet);
  void AddFixture(const PlannedBase& base);
  void AddStation(const PlannedBase& station);
  void AddBarePlanet(const BarePlanet& planet);
  void AddLane(const TradeLane& lane);
  void AddRing(const TradeLane& lane, int ring);
  void AddWreck(const Wreck& wreck);
  void AddField(const AsteroidField& field);

  Game& game_;
  int index_;
  const PlannedSystem& system_;
  Random random_;
  IniText ini_;
  int fixtures_ = 0;
};

}  // namespace orrerix::demo
