// SPDX-License-Identifier: MIT
// The places, ships and factions that the travel pages offer.
#pragma once

#include <QString>
#include <filesystem>
#include <string>
#include <vector>

namespace orrerix {

// What a list offers: the nickname, and the text that stands for it.
struct TravelChoice {
  std::string Nickname;
  QString Text;
};

// What a player chooses from, each in the order of the texts.
struct TravelChoices {
  std::vector<TravelChoice> Ships;  // that one can buy
  std::vector<TravelChoice> Factions;
  std::vector<TravelChoice> Places;  // docks and systems
};

// Reads them out of a universe file; they are empty if it cannot be read.
TravelChoices ReadTravelChoices(const std::filesystem::path& universe);

}  // namespace orrerix
