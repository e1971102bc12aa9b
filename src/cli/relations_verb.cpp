// SPDX-License-Identifier: MIT
// relations: how the factions of a game stand to each other.
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "atlas/source.h"
#include "cli/json_text.h"
#include "cli/verbs.h"
#include "db/values/text.h"
#include "shell/game_record.h"
#include "space/relations.h"
#include "tables/table_formats.h"

namespace orrerix {
namespace {

using Json = nlohmann::ordered_json;

struct RelationArguments {
  std::optional<std::string> Faction;
  std::optional<std::string> Game;
  bool Csv = false;
};

const char* NameOf(Attitude attitude) {
  switch (attitude) {
    case Attitude::Hostile:
      return "hostile";
    case Attitude::Unfriendly:
      return "unfriendly";
    case Attitude::Neutral:
      return "neutral";
    case Attitude::Friendly:
      return "friendly";
    case Attitude::Allied:
      return "allied";
  }
  return "";
}

// The game's folder: the one that is named, or else the one that the universe file came from.
std::string RequireGame(const CommonOptions& options, const RelationArguments& arguments) {
  if (arguments.Game) return *arguments.Game;
  if (const auto record = ReadGameRecord(options.DatabasePath())) return record->Game;
  throw CouldNot("relations needs --game: nothing beside the universe file names its game");
}

// Those of the faction that was asked for, or all.
std::vector<RelatedFaction> ChosenFactions(const std::vector<RelatedFaction>& factions,
                                           const std::optional<std::string>& name) {
  if (!name) return factions;
  std::vector<RelatedFaction> chosen;
  std::vector<std::string> known;
  known.reserve(2 * factions.size());
  for (const RelatedFaction& faction : factions) {
    known.push_back(faction.Nickname);
    known.push_back(faction.Name);
    if (FoldAscii(faction.Nickname) == FoldAscii(*name) ||
        FoldAscii(faction.Name) == FoldAscii(*name)) {
      chosen.push_back(faction);
    }
  }
  if (chosen.empty()) throw NoSuch("faction", *name, known);
  return chosen;
}

Json TowardsJson(const RelatedFaction& faction, const std::vector<RelatedFaction>& all) {
  Json towards = Json::array();
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (!faction.Towards[i]) continue;
    towards.push_back({{"nickname", all[i].Nickname},
                       {"name", all[i].Name},
                       {"value", *faction.Towards[i]},
                       {"attitude", NameOf(AttitudeOf(*faction.Towards[i]))}});
  }
  return towards;
}

void PrintRelationsJson(const std::vector<RelatedFaction>& chosen,
                        const std::vector<RelatedFaction>& all) {
  Json answer = Json::array();
  for (const RelatedFaction& faction : chosen) {
    answer.push_back({{"nickname", faction.Nickname},
                      {"name", faction.Name},
                      {"towards", TowardsJson(faction, all)}});
  }
  PrintJson(answer);
}

void PrintRelationsCsv(const std::vector<RelatedFaction>& chosen,
                       const std::vector<RelatedFaction>& all) {
  std::string text = "Faction";
  for (const RelatedFaction& other : all) text += "," + CsvField(other.Nickname);
  text += "\r\n";
  for (const RelatedFaction& faction : chosen) {
    text += CsvField(faction.Nickname);
    for (const auto& value : faction.Towards) text += value ? fmt::format(",{}", *value) : ",";
    text += "\r\n";
  }
  fmt::print("{}", text);
}

void PrintRelations(const std::vector<RelatedFaction>& chosen,
                    const std::vector<RelatedFaction>& all) {
  for (const RelatedFaction& faction : chosen) {
    for (std::size_t i = 0; i < all.size(); ++i) {
      const auto& value = faction.Towards[i];
      if (!value) continue;
      fmt::print("{}\t{}\t{}\t{}\n", faction.Nickname, all[i].Nickname, *value,
                 NameOf(AttitudeOf(*value)));
    }
  }
}

int RunRelations(const CommonOptions& options, const RelationArguments& arguments) {
  if (options.Json && arguments.Csv) throw WrongUsage("--csv does not go with --json");
  const Database universe = OpenFinishedFile(options.DatabasePath());
  StopOnFailure stop;
  const SourceTables tables(stop, universe);
  const GameFolder game(RequireGame(options, arguments));
  const std::vector<RelatedFaction> all = ReadRelations(tables, game);
  if (all.empty()) {
    throw CouldNot(
        fmt::format("'{}' below '{}' names no factions", RelationsFile(tables), game.Text()));
  }
  const std::vector<RelatedFaction> chosen = ChosenFactions(all, arguments.Faction);
  if (options.Json) {
    PrintRelationsJson(chosen, all);
  } else if (arguments.Csv) {
    PrintRelationsCsv(chosen, all);
  } else {
    PrintRelations(chosen, all);
  }
  return kDone;
}

}  // namespace

void AddRelationsVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  auto arguments = std::make_shared<RelationArguments>();
  CLI::App* verb = app.add_subcommand("relations", "How the factions stand to each other");
  AddText(*verb, "FACTION", arguments->Faction, "One faction: nickname or name; default: all");
  AddText(*verb, "--game", arguments->Game,
          "The game's folder; default: the one that the universe file came from")
      ->type_name("DIR");
  verb->add_flag("--csv", arguments->Csv,
                 "The whole matrix as comma-separated values; not with "
                 "--json");
  verb->footer("The universe file does not hold this: it is read from the game's file of groups.");
  verb->callback([&options, &run, arguments] {
    run = [&options, arguments] { return RunRelations(options, *arguments); };
  });
}

}  // namespace orrerix
