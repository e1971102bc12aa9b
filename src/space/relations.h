// SPDX-License-Identifier: MIT
// How the factions stand to each other, as the game's own files say: a universe file lacks it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "atlas/source.h"
#include "platform/game_path.h"
#include "space/game_sections.h"

namespace orrerix {

// From worst to best.
enum class Attitude { Hostile, Unfriendly, Neutral, Friendly, Allied };
inline constexpr std::size_t kAttitudes = 5;

// Of a reputation, -1 to 1: hostile up to -0.6, where factions open fire, unfriendly below -0.2,
// neutral up to 0.2, friendly below 0.8, allied from there on.
Attitude AttitudeOf(double reputation);

struct RelatedFaction {
  std::string Nickname;
  std::string Name;
  std::vector<std::optional<double>> Towards;  // by the places of the factions; none: not stated
};

// The factions of [Group] sections in their order, called as their nicknames. Of sections with one
// nickname and of lines about one faction the last counts; lines about factions that have no
// section, and lines without a number, are left out.
std::vector<RelatedFaction> RelationsOf(const std::vector<GameSection>& sections);

// The file below DATA that holds them: the one that the universe names, or else the usual one.
std::string RelationsFile(const SourceTables& tables);

// All factions with the names that the universe gives them; a faction without a name is called as
// its nickname, and those of one name have their nicknames after it. None if the file cannot be
// read.
std::vector<RelatedFaction> ReadRelations(const SourceTables& tables, const GameFolder& game);

}  // namespace orrerix
