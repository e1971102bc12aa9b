// SPDX-License-Identifier: MIT
#include "space/relations.h"

#include <map>

#include "atlas/places.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr double kOpensFire = 0.6;
constexpr double kNoted = 0.2;
constexpr double kAllied = 0.8;
constexpr std::string_view kUsualFile = "initialworld.ini";

using PlacesByFaction = std::map<std::string, std::size_t, std::less<>>;

bool IsGroup(const GameSection& section) {
  return section.Name == "group" && !section.Value("nickname").empty();
}

// "0.91, li_n_grp"
void TakeReputation(std::string_view line, const PlacesByFaction& places, RelatedFaction& faction) {
  const std::size_t comma = line.find(',');
  if (comma == std::string_view::npos) return;
  const Figure reputation = ParseFigure(line.substr(0, comma));
  std::string_view other = line.substr(comma + 1);
  const auto place = places.find(FoldAscii(Trim(other.substr(0, other.find(',')))));
  if (reputation && place != places.end()) faction.Towards[place->second] = reputation;
}

}  // namespace

Attitude AttitudeOf(double reputation) {
  if (reputation <= -kOpensFire) return Attitude::Hostile;
  if (reputation < -kNoted) return Attitude::Unfriendly;
  if (reputation <= kNoted) return Attitude::Neutral;
  return reputation < kAllied ? Attitude::Friendly : Attitude::Allied;
}

std::vector<RelatedFaction> RelationsOf(const std::vector<GameSection>& sections) {
  std::vector<RelatedFaction> factions;
  PlacesByFaction places;
  for (const GameSection& section : sections) {
    if (!IsGroup(section)) continue;
    const std::string nickname(section.Value("nickname"));
    if (!places.try_emplace(FoldAscii(nickname), factions.size()).second) continue;
    factions.push_back({nickname, nickname, {}});
  }
  for (RelatedFaction& faction : factions) faction.Towards.resize(factions.size());
  for (const GameSection& section : sections) {
    if (!IsGroup(section)) continue;
    RelatedFaction& faction = factions[places.find(FoldAscii(section.Value("nickname")))->second];
    for (const auto& [key, value] : section.Entries) {
      if (key == "rep") TakeReputation(value, places, faction);
    }
  }
  return factions;
}

std::string RelationsFile(const SourceTables& tables) {
  const SourceTable& files = tables["DataFiles"];
  const SourceRow row = files.Find("type", "groups");
  return row.Exists() ? row.Text("pathfile") : std::string(kUsualFile);
}

std::vector<RelatedFaction> ReadRelations(const SourceTables& tables, const GameFolder& game) {
  std::vector<RelatedFaction> factions = RelationsOf(ReadGameSections(game, RelationsFile(tables)));
  std::map<std::string, std::size_t> counts;
  for (RelatedFaction& faction : factions) {
    faction.Name = FactionNameOf(tables, faction.Nickname);
    ++counts[faction.Name];
  }
  for (RelatedFaction& faction : factions) {
    if (counts[faction.Name] > 1) faction.Name += " (" + faction.Nickname + ")";
  }
  return factions;
}

}  // namespace orrerix
