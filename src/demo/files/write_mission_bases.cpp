// SPDX-License-Identifier: MIT
#include <cstddef>

#include <fmt/core.h>

#include "demo/content/nations.h"
#include "demo/content/sentences.h"
#include "demo/files/writers.h"
#include "demo/format/ini_text.h"
#include "demo/plan/random.h"

namespace orrerix::demo {
namespace {

// What a person says who offers a bribe; the same text for all.
int BribeText(Game& game) {
  return game.Texts.Name(Library::People,
                         "For a fee I could put in a good word for you. Interested?");
}

struct Person {
  std::string Nickname;
  int Faction = 0;
};

// The owner's people, and sometimes somebody from another faction of the same nation.
std::vector<Person> PeopleOf(const PlannedSystem& system, const PlannedBase& base, Random& random) {
  std::vector<Person> people;
  const int count = random.Between(2, 4);
  for (int i = 1; i <= count; ++i) {
    const bool guest = i > 1 && random.Chance(50);
    const auto role = static_cast<FactionRole>(random.Between(0, 2));
    const int faction = guest ? random.Pick(FactionsOf(system.Nation, role)) : base.Owner;
    people.push_back({fmt::format("{}_person_{:03}", base.Nickname, i), faction});
  }
  return people;
}

void AddFaction(IniText& ini, int faction, int weight, const std::vector<Person>& people) {
  ini.Section("BaseFaction").Line("faction", ReputationOf(faction)).Line("weight", weight);
  for (const Person& person : people) {
    if (person.Faction == faction) ini.Line("npc", person.Nickname);
  }
}

void AddFactions(IniText& ini, const std::vector<Person>& people) {
  std::vector<int> done;
  for (const Person& person : people) {
    bool known = false;
    for (const int faction : done) known = known || faction == person.Faction;
    if (known) continue;
    AddFaction(ini, person.Faction, done.empty() ? 30 : 8, people);
    done.push_back(person.Faction);
  }
}

void AddPerson(Game& game, IniText& ini, const PlannedSystem& system, const Person& person,
               Random& random) {
  const std::string name =
      fmt::format("{} {}", random.Pick(FirstNames()), random.Pick(FamilyNames()));
  ini.Section("GF_NPC")
      .Line("nickname", person.Nickname)
      .Line("body", "settler_body")
      .Line("head", "settler_head")
      .Line("individual_name", game.Texts.Name(Library::People, name))
      .Line("affiliation", ReputationOf(person.Faction))
      .Line("voice", "settler")
      .Line("room", "bar");
  const int bribes = random.Between(0, 2);
  for (int i = 0; i < bribes; ++i) {
    const int nation = random.Chance(70) ? system.Nation : random.Between(0, kBorderWorlds);
    const auto role = static_cast<FactionRole>(i == 0 ? random.Between(0, 3) : 3);
    const int faction = random.Pick(FactionsOf(nation, role));
    ini.Line("bribe", fmt::format("{}, {}, {}", ReputationOf(faction), random.Between(4, 40) * 500,
                                  BribeText(game)));
  }
  ini.Line("rumor", fmt::format("early, late, 1, {}", BribeText(game)));
}

void AddRooms(IniText& ini, const PlannedBase& base) {
  ini.Section("MRoom").Line("nickname", "Bar").Line("character_density", 7);
  ini.Line("fixture",
           fmt::format("{}_person_001, bar/stand/01, bar.thn, bartender", base.Nickname));
  ini.Section("MRoom").Line("nickname", "Deck").Line("character_density", 3);
  if (base.Planet != nullptr)
    ini.Section("MRoom").Line("nickname", "ShipDealer").Line("character_density", 2);
}

void AddMissionBase(Game& game, IniText& ini, const PlannedSystem& system,
                    const PlannedBase& base) {
  Random random(SeedOf("people of " + base.Nickname));
  const std::vector<Person> people = PeopleOf(system, base, random);
  ini.Section("MBase")
      .Line("nickname", base.BaseNickname())
      .Line("local_faction", ReputationOf(base.Owner))
      .Line("diff", random.Between(1, 8))
      .Line("msg_id_prefix", "msg_base_" + base.BaseNickname());
  ini.Section("MVendor").Line("num_offers", "2, 4");
  AddFactions(ini, people);
  AddRooms(ini, base);
  for (const Person& person : people) AddPerson(game, ini, system, person, random);
}

}  // namespace

void WriteMissionBases(Game& game) {
  IniText ini;
  for (const PlannedSystem& system : game.Plan.Systems) {
    for (const PlannedBase& base : system.Bases) AddMissionBase(game, ini, system, base);
  }
  game.Folder.Write("DATA/MISSIONS/mbases.ini", ini.Bytes());
}

}  // namespace orrerix::demo
