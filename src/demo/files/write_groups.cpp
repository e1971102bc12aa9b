// SPDX-License-Identifier: MIT
#include <fmt/core.h>

#include "demo/files/writers.h"
#include "demo/format/info_card.h"
#include "demo/format/ini_text.h"

namespace orrerix::demo {
namespace {

// What one faction thinks of another, -1 to 1: pirates against all, each nation for its own.
double Reputation(const Faction& from, const Faction& to) {
  const bool fromPirate = from.Role == FactionRole::Pirate;
  const bool toPirate = to.Role == FactionRole::Pirate;
  if (from.Nickname == to.Nickname) return 0.91;
  if (fromPirate && toPirate) return 0.3;
  if (fromPirate || toPirate) return from.Nation == to.Nation ? -0.8 : -0.65;
  return from.Nation == to.Nation ? 0.65 : 0;
}

void AddGroup(Game& game, IniText& ini, const Faction& faction) {
  ini.Section("Group")
      .Line("nickname", faction.Nickname)
      .Line("ids_name", game.Texts.Name(Library::Misc, faction.Name))
      .Line("ids_info", game.Texts.SharedCard(Library::Misc, InfoCard(faction.Name, faction.About)))
      .Line("ids_short_name", game.Texts.Name(Library::Misc, faction.ShortName));
  for (const Faction& other : Factions()) {
    ini.Line("rep", fmt::format("{}, {}", Decimal(Reputation(faction, other), 2), other.Nickname));
  }
}

}  // namespace

void WriteGroups(Game& game) {
  IniText ini;
  ini.Section("locked_gates")
      .Line("npc_locked_gate", 1293678337)
      .Line("npc_locked_gate", 1293678338);
  for (const Faction& faction : Factions()) AddGroup(game, ini, faction);
  game.Folder.Write("DATA/InitialWorld.ini", ini.Bytes());
}

}  // namespace orrerix::demo
