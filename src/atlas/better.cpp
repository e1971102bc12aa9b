// SPDX-License-Identifier: MIT
#include "atlas/better.h"

#include <algorithm>
#include <array>

namespace orrerix {
namespace {

constexpr std::array<std::string_view, 21> kLower = {
    "price",         "ammo_price",    "ammo_price_per_damage",
    "energy_shot",   "energy_second", "energy_rebuild",
    "cruise_energy", "refill_time",   "offline_time",
    "offline_below", "charge_time",   "cruise_charge",
    "lock_time",     "arming_time",   "drag",
    "bribe_price",   "highest_bribe", "highest_price",
    "cheapest",      "volume",        "decay"};

constexpr std::array<std::string_view, 5> kNeither = {"class", "mass", "scale", "docks", "jumps"};

template <typename List>
bool Holds(const List& list, std::string_view text) {
  return std::find(list.begin(), list.end(), text) != list.end();
}

}  // namespace

Better BetterOf(std::string_view column) {
  if (Holds(kNeither, column)) return Better::Neither;
  return Holds(kLower, column) ? Better::Lower : Better::Higher;
}

}  // namespace orrerix
