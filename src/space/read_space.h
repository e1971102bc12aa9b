// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "atlas/source.h"
#include "platform/game_path.h"
#include "space/solar_book.h"
#include "space/space.h"
#include "space/system_book.h"

namespace orrerix {

// Everything, out of a universe file and, where the file lacks it, the game's own: sizes of bodies
// are in DATA\SOLAR\solararch.ini, and what can be mined is in the files of the asteroid fields. A
// file that is not there is passed over. Returns early once `isCancelled` is true.
Space ReadSpace(const SourceTables& tables, const GameFolder& game,
                const std::function<bool()>& isCancelled);

// The zones that are more than a mark for the game itself, larger ones first. What is found in the
// files of asteroid fields makes a field one that can be mined.
std::vector<Zone> ReadZones(const SourceTables& tables, const SystemBook& systems,
                            const GameFolder& game);

// Suns and planets that have a name or a size.
std::vector<Body> ReadBodies(const SourceTables& tables, const SystemBook& systems,
                             const SolarBook& solars);

// Both ends of each jump connection.
std::vector<Gate> ReadGates(const SourceTables& tables);

// Stations, wrecks and weapon platforms.
std::vector<Spot> ReadSpots(const SourceTables& tables, const SystemBook& systems,
                            const SolarBook& solars);

// The systems and the names of the factions that own them: the one that the system's file names as
// the local one if it owns a station or gate there, else the one that owns most of them.
struct Territories {
  std::vector<SystemArea> Systems;
  std::vector<std::string> Factions;  // most systems first
};
Territories ReadTerritories(const SourceTables& tables, const SystemBook& systems);

// What the game calls an item: a good, a commodity or equipment; its nickname if it has no name.
std::string ItemName(const SourceTables& tables, const std::string& nickname);

// A name of table Objects; empty where it is made up of the nickname.
std::string GivenObjectName(const SourceRow& object);

}  // namespace orrerix
