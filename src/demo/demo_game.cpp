// SPDX-License-Identifier: MIT
#include "demo/demo_game.h"

#include "demo/files/writers.h"

namespace orrerix {

void WriteDemoGame(const std::filesystem::path& folder, int systemCount) {
  const demo::UniversePlan plan = demo::PlanUniverse(systemCount);
  const demo::GameFolder target(folder);
  demo::TextLibraries texts;
  demo::Game game{plan, target, texts};
  demo::WriteConfiguration(game);
  demo::WriteUniverse(game);
  demo::WriteSystems(game);
  demo::WriteCommodities(game);
  demo::WriteEquipment(game);
  demo::WriteGoods(game);
  demo::WriteShips(game);
  demo::WriteLoadouts(game);
  demo::WriteMarkets(game);
  demo::WriteGroups(game);
  demo::WriteMissionBases(game);
  demo::WriteSounds(game);
  demo::WriteLibraries(game);
}

}  // namespace orrerix
