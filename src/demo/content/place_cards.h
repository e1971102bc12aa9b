// SPDX-License-Identifier: MIT
#pragma once

#include "demo/files/writers.h"
#include "demo/plan/universe_plan.h"

namespace orrerix::demo {

// The cards of places. A place to land has two cards in a row, facts first and the story behind;
// the number is that of the first. Map programs show the second where the first has the word CLASS
// (stations) or DIAMETER (planets).
int SystemCard(Game& game, const PlannedSystem& system);
int BaseCards(Game& game, const PlannedSystem& system, const PlannedBase& base);
int BarePlanetCards(Game& game, const PlannedSystem& system, const BarePlanet& planet);
int WreckCard(Game& game, const PlannedSystem& system, const Wreck& wreck);
int FieldCard(Game& game, const PlannedSystem& system, const AsteroidField& field);

}  // namespace orrerix::demo
