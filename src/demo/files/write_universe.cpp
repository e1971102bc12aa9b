// SPDX-License-Identifier: MIT
#include <fmt/core.h>

#include "demo/content/place_cards.h"
#include "demo/files/writers.h"
#include "demo/format/ini_text.h"

namespace orrerix::demo {
namespace {

void AddUniverseBase(Game& game, IniText& ini, const PlannedSystem& system,
                     const PlannedBase& base) {
  ini.Section("Base")
      .Line("nickname", base.BaseNickname())
      .Line("system", system.Nickname)
      .Line("strid_name", game.Texts.Name(Library::Names, base.Name))
      .Line("file", fmt::format("Universe\\Systems\\{0}\\Bases\\{1}.ini", system.Nickname,
                                base.BaseNickname()));
}

void AddSystem(Game& game, IniText& ini, const PlannedSystem& system) {
  ini.Section("system")
      .Line("nickname", system.Nickname)
      .Line("file", fmt::format("systems\\{0}\\{0}.ini", system.Nickname))
      .Line("pos", fmt::format("{}, {}", system.Place.X, system.Place.Y))
      .Line("msg_id_prefix", fmt::format("msg_system_{}", system.Nickname))
      .Line("visit", 0)
      .Line("strid_name", game.Texts.Name(Library::Names, system.Name))
      .Line("ids_info", SystemCard(game, system))
      .Line("NavMapScale", system.Scale, 2);
}

}  // namespace

void WriteUniverse(Game& game) {
  IniText ini;
  ini.Section("Time").Line("seconds_per_day", 1800);
  for (const PlannedSystem& system : game.Plan.Systems) {
    for (const PlannedBase& base : system.Bases) AddUniverseBase(game, ini, system, base);
  }
  for (const PlannedSystem& system : game.Plan.Systems) AddSystem(game, ini, system);
  game.Folder.Write("DATA/UNIVERSE/universe.ini", ini.Bytes());
}

}  // namespace orrerix::demo
