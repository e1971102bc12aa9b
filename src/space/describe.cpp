// SPDX-License-Identifier: MIT
#include "space/describe.h"

#include <array>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "shell/language_texts.h"
#include "space/pick.h"
#include "space/sectors.h"

namespace orrerix {
namespace {

constexpr std::size_t kMostZones = 6;

constexpr std::array<TextId, kLayers> kCaptions = {
    TextId::LayerBodies,      TextId::LayerGates,       TextId::LayerWrecks,
    TextId::LayerPlatforms,   TextId::LayerObjectNames, TextId::LayerAsteroids,
    TextId::LayerNebulas,     TextId::LayerMining,      TextId::LayerDanger,
    TextId::LayerPatrols,     TextId::LayerTradePaths,  TextId::LayerZoneNames,
    TextId::LayerTerritories, TextId::LayerSystemNames, TextId::LayerSectors};

class Description {
 public:
  explicit Description(Language language) : language_(language) {}

  void AddBody(const Body& body) {
    if (!body.Name.empty()) lines_.push_back(body.Name);
  }

  void AddOwned(const std::string& name, const std::string& owner) {
    lines_.push_back(owner.empty() ? name : FormatIn(language_, TextId::OwnedBy, name, owner));
  }

  void AddSpot(const Spot& spot) {
    AddOwned(spot.Name.empty() ? spot.Nickname : spot.Name, spot.Owner);
    for (const std::string& item : spot.Loot) lines_.push_back("  " + item);
  }

  // "Pittsburgh Debris Field (asteroid fields): to be mined: Gold"
  void AddZone(const Zone& zone, ZoneKind kind) {
    std::string line = zone.Name;
    const std::string_view caption = LayerCaption(language_, LayerOf(kind));
    line += zone.Name.empty() ? std::string(caption) : fmt::format(" ({})", caption);
    const std::vector<std::string> facts = FactsOf(zone);
    if (!facts.empty()) line += fmt::format(": {}", fmt::join(facts, "; "));
    lines_.push_back(std::move(line));
  }

  std::string Text(CellFraction point) {
    if (lines_.empty()) return {};
    if (const std::string sector = SectorAt(point); !sector.empty()) lines_.push_back(sector);
    return fmt::format("{}", fmt::join(lines_, "\n"));
  }

 private:
  std::vector<std::string> FactsOf(const Zone& zone) const {
    std::vector<std::string> facts;
    if (zone.Damage > 0) facts.push_back(FormatIn(language_, TextId::ZoneDamage, zone.Damage));
    if (zone.HasMines) facts.emplace_back(TextIn(language_, TextId::ZoneMines));
    if (zone.HasGas) facts.emplace_back(TextIn(language_, TextId::ZoneGas));
    const auto list = [&](TextId id, const std::vector<std::string>& names) {
      if (names.empty()) return;
      facts.push_back(FormatIn(language_, id, fmt::format("{}", fmt::join(names, ", "))));
    };
    list(TextId::ZoneMined, zone.Yields);
    list(TextId::ZoneFlown, zone.Flyers);
    return facts;
  }

  Language language_;
  std::vector<std::string> lines_;
};

}  // namespace

std::string DescribePoint(const Space& space, const LayerChoice& layers, Language language,
                          MapCell cell, CellFraction point, double reach) {
  Description text(language);
  if (const Body* body = BodyAt(space, cell, point, reach); body && layers.Has(Layer::Bodies)) {
    text.AddBody(*body);
  }
  if (const Gate* gate = GateAt(space, cell, point, reach); gate && layers.Has(Layer::Gates)) {
    text.AddOwned(gate->Name.empty() ? gate->Nickname : gate->Name, gate->Owner);
  }
  if (const Spot* spot = SpotAt(space, layers, cell, point, reach)) text.AddSpot(*spot);
  std::size_t count = 0;
  for (const Zone* zone : ZonesAt(space, layers, cell, point)) {
    if (++count > kMostZones) break;
    text.AddZone(*zone, *ShownKind(*zone, layers.Zones()));
  }
  return text.Text(point);
}

std::string_view LayerCaption(Language language, Layer layer) {
  return TextIn(language, kCaptions[static_cast<std::size_t>(layer)]);
}

}  // namespace orrerix
