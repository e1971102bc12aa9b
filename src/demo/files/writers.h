// SPDX-License-Identifier: MIT
#pragma once

#include "demo/content/text_libraries.h"
#include "demo/files/game_folder.h"
#include "demo/plan/universe_plan.h"

namespace orrerix::demo {

// What every writer of game files works with. Texts grow as the files are written, so the
// resource libraries go last.
struct Game {
  const UniversePlan& Plan;
  const GameFolder& Folder;
  TextLibraries& Texts;
};

// The program's own folder: the executable (empty) and the configuration, which lists all other
// files, one data file that does not exist among them.
void WriteConfiguration(Game& game);
// The resource libraries with all texts handed out so far.
void WriteLibraries(Game& game);

// The universe file: clock, bases, systems.
void WriteUniverse(Game& game);
// One file a system; every thirteenth is packed.
void WriteSystems(Game& game);

// Weapons, shields and the rest. One gun stands twice and one power core repeats a key.
void WriteEquipment(Game& game);
// Commodities with the small supplies that are sold in numbers.
void WriteCommodities(Game& game);
// What can be bought: goods of all the above, hulls and ship packages.
void WriteGoods(Game& game);
void WriteShips(Game& game);
// Loadouts of stations, gates and rings, and the cargo of the wrecks.
void WriteLoadouts(Game& game);
// What each base sells: commodities (packed), equipment, ships.
void WriteMarkets(Game& game);

// Factions and what they think of one another.
void WriteGroups(Game& game);
// The rooms of the bases and the persons in them, with their bribes.
void WriteMissionBases(Game& game);

void WriteSounds(Game& game);

// Names that several files share.
std::string LoadoutOf(const std::string& stem, int nation);
const std::string& ReputationOf(int faction);

}  // namespace orrerix::demo
