// SPDX-License-Identifier: MIT
#pragma once

#include "demo/content/commodities.h"
#include "demo/content/equipment.h"
#include "demo/content/ships.h"
#include "demo/files/writers.h"

namespace orrerix::demo {

// Text numbers of a thing's name and card. Asking again gives the same numbers, so that a piece of
// equipment and its good share them.
struct GearNumbers {
  int Name = 0;
  int Card = 0;
};

GearNumbers NumbersOfGun(Game& game, const GunLine& line, int mark);
GearNumbers NumbersOfLauncher(Game& game, const Launcher& launcher);
GearNumbers NumbersOfShield(Game& game, const ShieldLine& line, int mark);
GearNumbers NumbersOfDevice(Game& game, const Device& device);
GearNumbers NumbersOfCommodity(Game& game, const Commodity& commodity);

// A ship's name with its card of figures; the story has a number of its own.
GearNumbers NumbersOfShip(Game& game, const Ship& ship);
int StoryOfShip(Game& game, const Ship& ship);

}  // namespace orrerix::demo
