// SPDX-License-Identifier: MIT
#include "demo/content/place_cards.h"

#include <cstddef>

#include <fmt/core.h>

#include "demo/content/composer.h"
#include "demo/content/nations.h"
#include "demo/content/sentences.h"
#include "demo/format/info_card.h"

namespace orrerix::demo {
namespace {

const Nation& NationOf(const PlannedSystem& system) {
  return Nations()[static_cast<std::size_t>(system.Nation)];
}

Subject SubjectOf(const PlannedSystem& system, const std::string& name, int owner) {
  const std::string shortName =
      owner < 0 ? "" : Factions()[static_cast<std::size_t>(owner)].ShortName;
  return {name, system.Name, shortName, NationOf(system).Name};
}

// 12345678 as "12,345,678".
std::string Grouped(long long number) {
  std::string text = fmt::format("{}", number);
  for (int place = static_cast<int>(text.size()) - 3; place > 0; place -= 3) {
    text.insert(static_cast<std::size_t>(place), ",");
  }
  return text;
}

std::vector<Fact> PlanetFacts(const PlanetKind& kind, Random& random) {
  const int low = kind.CoolestDegrees + random.Between(-3, 5);
  const int high = kind.WarmestDegrees + random.Between(-5, 3);
  std::vector<Fact> facts = {
      {"DIAMETER",
       fmt::format("{} km", Grouped(kind.Diameter / 1000 * random.Between(85, 118) * 10))},
      {"KIND", kind.Class},
      {"DAY", fmt::format("{} hours", random.Between(9, 71))},
      {"TEMPERATURE", fmt::format("{} to {} degrees", low, high)},
  };
  if (kind.Settled) {
    facts.push_back({"PEOPLE", fmt::format("{} million", random.Between(2, 940))});
  } else {
    facts.push_back({"PEOPLE", "none"});
  }
  return facts;
}

std::vector<Fact> StationFacts(const StationKind& kind, Random& random) {
  return {
      {"CLASS", kind.Class},
      {"BERTHS", fmt::format("{}", random.Between(4, 48))},
      {"CREW", Grouped(kind.Crew * random.Between(70, 135) / 100)},
      {"REPAIRS", random.Chance(80) ? "yes" : "emergencies only"},
      {"LAID DOWN", fmt::format("{} years ago", random.Between(6, 190))},
  };
}

// Opening, some details, now and then a word on the nation, and a closing line.
std::string Story(const std::vector<std::string>& openings, const std::vector<std::string>& details,
                  const std::vector<std::string>& nation, const std::vector<std::string>& closings,
                  const Subject& subject, Random& random) {
  std::vector<std::string> patterns = {random.Pick(openings)};
  for (const std::string& detail : PickSentences(details, random.Between(1, 2), random)) {
    patterns.push_back(detail);
  }
  if (!nation.empty()) patterns.push_back(random.Pick(nation));
  if (random.Chance(75)) patterns.push_back(random.Pick(closings));
  return Paragraph(patterns, subject);
}

}  // namespace

int SystemCard(Game& game, const PlannedSystem& system) {
  Random random(SeedOf("card of " + system.Nickname));
  const Subject subject = SubjectOf(system, system.Name, -1);
  const std::string count =
      fmt::format("The system {} has {} places to land and {} ways out, and belongs to {}.",
                  system.Name, system.Bases.size(), system.Jumps.size(), NationOf(system).Name);
  const std::string word = Sentence(random.Pick(NationOf(system).Sentences), subject);
  return game.Texts.Cards(Library::Cards, {InfoCard(system.Name, {count, word})});
}

int BaseCards(Game& game, const PlannedSystem& system, const PlannedBase& base) {
  Random random(SeedOf("card of " + base.Nickname));
  const Subject subject = SubjectOf(system, base.Name, base.Owner);
  if (base.Planet != nullptr) {
    const std::string story = Story(base.Planet->Openings, PlanetDetails(),
                                    NationOf(system).Sentences, PlanetClosings(), subject, random);
    return game.Texts.Cards(Library::Cards, {FactCard(base.Name, PlanetFacts(*base.Planet, random)),
                                             InfoCard("", {story})});
  }
  const std::string story =
      Story(base.Station->Openings, StationDetails(), {}, StationClosings(), subject, random);
  return game.Texts.Cards(Library::Cards, {FactCard(base.Name, StationFacts(*base.Station, random)),
                                           InfoCard("", {story})});
}

int BarePlanetCards(Game& game, const PlannedSystem& system, const BarePlanet& planet) {
  Random random(SeedOf("card of " + planet.Nickname));
  const Subject subject = SubjectOf(system, planet.Name, -1);
  const std::string story = Paragraph(
      {random.Pick(planet.Kind->Openings), "Surveyors from {nation} come by once in a decade."},
      subject);
  return game.Texts.Cards(Library::Cards, {FactCard(planet.Name, PlanetFacts(*planet.Kind, random)),
                                           InfoCard("", {story})});
}

int WreckCard(Game& game, const PlannedSystem& system, const Wreck& wreck) {
  Random random(SeedOf("card of " + wreck.Nickname));
  const Subject subject = SubjectOf(system, wreck.Name, -1);
  const std::string story = Paragraph(PickSentences(WreckStories(), 3, random), subject);
  return game.Texts.Cards(Library::Cards, {InfoCard(wreck.Name, {story})});
}

int FieldCard(Game& game, const PlannedSystem& system, const AsteroidField& field) {
  static const std::vector<std::string> ice = {
      "{name} is broken ice, drifting in sheets and needles.",
      "Cutters from {system} haul blocks out of {name} all year."};
  static const std::vector<std::string> rock = {
      "{name} is all that remains of a planet that never was.",
      "Miners of {system} have marked the good rocks of {name} with paint, and the best ones with "
      "nothing."};
  static const std::vector<std::string> debris = {
      "{name} is what a forgotten battle left behind.",
      "Plates, beams and silence: {name} keeps the salvagers of {system} busy."};
  const auto& patterns = field.Kind == FieldKind::Ice    ? ice
                         : field.Kind == FieldKind::Rock ? rock
                                                         : debris;
  const std::string story = Paragraph(patterns, SubjectOf(system, field.Name, -1));
  return game.Texts.Cards(Library::Cards, {InfoCard(field.Name, {story})});
}

}  // namespace orrerix::demo
