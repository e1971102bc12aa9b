// SPDX-License-Identifier: MIT
// Factions and bribes.
#include <algorithm>
#include <map>

#include "atlas/families.h"
#include "atlas/sales.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

// All offers of a base to bribe one faction.
struct Bribe {
  std::string Faction;  // nickname
  std::string FactionName;
  std::size_t Base = 0;
  AtlasBase Place;
  std::size_t Givers = 0;
  Figure Lowest;
  Figure Highest;
};

struct Faction {
  SourceRow Row;
  Sellers Bases;
  std::string BaseLabels;
  Sellers BribeBases;
  std::string BribeLabels;
  Figure LowestBribe;
  Figure HighestBribe;
};

Figure Lower(Figure a, Figure b) {
  return a && b ? Figure(std::min(*a, *b)) : (a ? a : b);
}
Figure Higher(Figure a, Figure b) {
  return a && b ? Figure(std::max(*a, *b)) : (a ? a : b);
}

// Offers at bases that a ship can dock at, in the order of the files.
std::vector<Bribe> ReadBribes(const AtlasSource& source) {
  std::vector<Bribe> bribes;
  std::map<std::pair<std::size_t, std::string>, std::size_t> places;
  const SourceTable& people = source.Tables["GF_NPC"];
  for (std::size_t i = 0; i < people.RowCount(); ++i) {
    const SourceRow row = people.Row(i);
    const std::string faction = row.Text("bribe");
    const auto base = source.Bases.Find(row.Text("BaseNick"));
    if (faction.empty() || !base) continue;
    const auto [place, isNew] = places.try_emplace({*base, FoldAscii(faction)}, bribes.size());
    if (isNew) {
      bribes.push_back({faction,
                        FactionNameOf(source.Tables, faction),
                        *base,
                        source.Bases.Bases()[*base],
                        0,
                        {},
                        {}});
    }
    Bribe& bribe = bribes[place->second];
    ++bribe.Givers;
    const Figure price = UnlessZero(row.Number("bribe_2"));
    bribe.Lowest = Lower(bribe.Lowest, price);
    bribe.Highest = Higher(bribe.Highest, price);
  }
  return bribes;
}

template <typename Row>
Column<Row> PriceColumn(std::string id, std::string head, std::string formula,
                        Figure Row::*figure) {
  return {std::move(id), std::move(head), std::move(formula),
          [figure](const Row& row) { return FigureValue(row.*figure); }};
}

ColumnList<Bribe> BribeColumns() {
  const auto text = [](std::string id, std::string head, std::string formula, auto of) {
    return Column<Bribe>{std::move(id), std::move(head), std::move(formula),
                         [of](const Bribe& bribe) { return TextValueOf(of(bribe)); }};
  };
  return {text("faction", "Faction", "name of the faction that is bribed",
               [](const Bribe& b) { return b.FactionName; }),
          text("faction_nickname", "Faction nickname", "first value of bribe of [GF_NPC]",
               [](const Bribe& b) { return b.Faction; }),
          text("base", "Base", "name of the base", [](const Bribe& b) { return b.Place.Name; }),
          text("base_nickname", "Base nickname", "nickname of the base",
               [](const Bribe& b) { return b.Place.Nickname; }),
          text("system", "System", "name of its system",
               [](const Bribe& b) { return b.Place.SystemName; }),
          text("owner", "Owner", "name of the faction that owns the base",
               [](const Bribe& b) { return b.Place.OwnerName; }),
          {"givers", "Offers (people)", "number of people there who offer it",
           [](const Bribe& b) { return Value(static_cast<std::int64_t>(b.Givers)); }},
          PriceColumn("price", "Price (credits)",
                      "lowest second value of bribe there; empty if it is 0", &Bribe::Lowest),
          PriceColumn("highest_price", "Highest price (credits)", "highest one", &Bribe::Highest)};
}

ColumnList<Faction> FactionColumns() {
  const auto field = [](std::string id, std::string head, std::string formula, std::string name) {
    return Column<Faction>{std::move(id), std::move(head), std::move(formula),
                           [name = std::move(name)](const Faction& f) {
                             return TextValueOf(GivenName(f.Row.Text(name), {}));
                           }};
  };
  const auto count = [](std::string id, std::string head, std::string formula,
                        Sellers Faction::*bases) {
    return Column<Faction>{
        std::move(id), std::move(head), std::move(formula),
        [bases](const Faction& f) { return Value(static_cast<std::int64_t>((f.*bases).size())); }};
  };
  const auto list = [](std::string id, std::string head, std::string formula,
                       std::string Faction::*labels) {
    return Column<Faction>{std::move(id), std::move(head), std::move(formula),
                           [labels](const Faction& f) { return TextValueOf(f.*labels); }};
  };
  return {
      field("name", "Name", "name of ids_name of [Group]", "Name"),
      field("short_name", "Short name", "name of ids_short_name of [Group]", "SName"),
      field("nickname", "Nickname", "nickname of [Group]", "NickName"),
      count("bases", "Bases (number)", "number of bases whose first dock it owns", &Faction::Bases),
      list("base_names", "Bases", "these bases, with their systems", &Faction::BaseLabels),
      count("bribes", "Bribes (bases)", "number of bases where it can be bribed",
            &Faction::BribeBases),
      PriceColumn("bribe_price", "Lowest bribe (credits)", "lowest price of these bribes",
                  &Faction::LowestBribe),
      PriceColumn("highest_bribe", "Highest bribe (credits)", "highest price of these bribes",
                  &Faction::HighestBribe),
      list("bribe_places", "Bribes at", "these bases, with their systems", &Faction::BribeLabels)};
}

std::vector<Faction> ReadFactions(const AtlasSource& source) {
  const std::vector<Bribe> bribes = ReadBribes(source);
  const auto& bases = source.Bases.Bases();
  std::vector<Faction> factions;
  const SourceTable& groups = source.Tables["Groups"];
  for (std::size_t i = 0; i < groups.RowCount(); ++i) {
    Faction faction;
    faction.Row = groups.Row(i);
    const std::string nickname = faction.Row.Text("NickName");
    for (std::size_t base = 0; base < bases.size(); ++base) {
      if (EqualIgnoringCase(bases[base].Owner, nickname)) faction.Bases.push_back(base);
    }
    for (const Bribe& bribe : bribes) {
      if (!EqualIgnoringCase(bribe.Faction, nickname)) continue;
      faction.BribeBases.push_back(bribe.Base);
      faction.LowestBribe = Lower(faction.LowestBribe, bribe.Lowest);
      faction.HighestBribe = Higher(faction.HighestBribe, bribe.Highest);
    }
    faction.BaseLabels = LabelsOf(source.Bases, faction.Bases);
    faction.BribeLabels = LabelsOf(source.Bases, faction.BribeBases);
    factions.push_back(std::move(faction));
  }
  return factions;
}

}  // namespace

AtlasTable FactionsTable() {
  return MakeTable<Faction>({"factions", "Factions",
                             "Factions with their bases and bribes. A universe file does not hold "
                             "how they stand to each other."},
                            FactionColumns(), ReadFactions);
}

AtlasTable BribesTable() {
  return MakeTable<Bribe>(
      {"bribes", "Bribes", "Where a faction can be bribed: one row for each base and faction."},
      BribeColumns(), ReadBribes);
}

}  // namespace orrerix
