// SPDX-License-Identifier: MIT
#include "demo/content/gear_texts.h"

#include <array>
#include <cstddef>

#include <fmt/core.h>

#include "demo/content/nations.h"
#include "demo/format/info_card.h"

namespace orrerix::demo {
namespace {

GearNumbers Numbers(Game& game, const std::string& name, const std::string& card) {
  return {game.Texts.Name(Library::Equipment, name),
          game.Texts.SharedCard(Library::Equipment, card)};
}

std::string MarkRemark(int mark) {
  constexpr std::array<const char*, 3> remarks = {
      "This is the plain model, sold wherever ships dock.",
      "The second mark has a better mount and draws more power.",
      "The third mark is made to order, and it shows in the price."};
  return remarks[static_cast<std::size_t>(mark) - 1];
}

const char* RoleName(ShipRole role) {
  switch (role) {
    case ShipRole::LightFighter:
      return "light fighter";
    case ShipRole::HeavyFighter:
      return "heavy fighter";
    case ShipRole::Freighter:
      return "freighter";
  }
  return "";
}

}  // namespace

GearNumbers NumbersOfGun(Game& game, const GunLine& line, int mark) {
  const std::string name = MarkName(line.Name, mark);
  return Numbers(game, name, InfoCard(name, {line.About, MarkRemark(mark)}));
}

GearNumbers NumbersOfLauncher(Game& game, const Launcher& launcher) {
  const std::string supply =
      launcher.FreeAmmunition > 0
          ? fmt::format("It is sold with {} rounds.", launcher.FreeAmmunition)
          : std::string("Ammunition is sold apart, and dearly.");
  return Numbers(game, launcher.Name, InfoCard(launcher.Name, {launcher.About, supply}));
}

GearNumbers NumbersOfShield(Game& game, const ShieldLine& line, int mark) {
  const std::string name = MarkName(line.Name, mark);
  return Numbers(game, name, InfoCard(name, {line.About, MarkRemark(mark)}));
}

GearNumbers NumbersOfDevice(Game& game, const Device& device) {
  return Numbers(game, device.Name, InfoCard(device.Name, {device.About}));
}

GearNumbers NumbersOfCommodity(Game& game, const Commodity& commodity) {
  return Numbers(game, commodity.Name, InfoCard(commodity.Name, {commodity.About}));
}

GearNumbers NumbersOfShip(Game& game, const Ship& ship) {
  const std::string card =
      FactCard(ship.Name, {{"Role", RoleName(ship.Role)},
                           {"Guns", fmt::format("{}", ship.Guns)},
                           {"Armour", fmt::format("{}", ship.HitPoints)},
                           {"Hold", fmt::format("{} units", ship.Hold)},
                           {"Flasks and mites", fmt::format("{}", ship.Batteries)}});
  return Numbers(game, ship.Name, card);
}

int StoryOfShip(Game& game, const Ship& ship) {
  const std::string origin =
      fmt::format("It is at home in {}.", Nations()[static_cast<std::size_t>(ship.Nation)].Name);
  return game.Texts.SharedCard(Library::Equipment, InfoCard("", {ship.About, origin}));
}

}  // namespace orrerix::demo
