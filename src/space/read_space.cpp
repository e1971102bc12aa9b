// SPDX-License-Identifier: MIT
#include "space/read_space.h"

namespace orrerix {

Space ReadSpace(const SourceTables& tables, const GameFolder& game,
                const std::function<bool()>& isCancelled) {
  Space space;
  const SystemBook systems(tables);
  Territories territories = ReadTerritories(tables, systems);
  space.Systems = std::move(territories.Systems);
  space.Factions = std::move(territories.Factions);
  const SolarBook solars(game);
  space.Bodies = ReadBodies(tables, systems, solars);
  if (isCancelled()) return space;
  space.Gates = ReadGates(tables);
  space.Spots = ReadSpots(tables, systems, solars);
  if (isCancelled()) return space;
  space.Zones = ReadZones(tables, systems, game);
  return space;
}

}  // namespace orrerix
