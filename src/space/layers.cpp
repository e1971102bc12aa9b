// SPDX-License-Identifier: MIT
#include "space/layers.h"

#include <array>

namespace orrerix {
namespace {

constexpr std::array<std::string_view, kLayers> kNames = {
    "bodies",      "gates",      "wrecks",      "platforms",    "object_names",
    "asteroids",   "nebulas",    "mining",      "danger",       "patrols",
    "trade_paths", "zone_names", "territories", "system_names", "sectors"};

constexpr std::array<ZoneKind, kZoneKinds> kAllKinds = {ZoneKind::Danger,    ZoneKind::Mining,
                                                        ZoneKind::Asteroids, ZoneKind::Nebula,
                                                        ZoneKind::Patrol,    ZoneKind::Trade};

}  // namespace

std::string_view LayerName(Layer layer) {
  return kNames[static_cast<std::size_t>(layer)];
}

LayerChoice LayerChoice::None() {
  LayerChoice none;
  none.Set(Layer::Bodies, false);
  return none;
}

ZoneKinds LayerChoice::Zones() const {
  ZoneKinds kinds;
  for (const ZoneKind kind : kAllKinds) {
    if (Has(LayerOf(kind))) kinds.Add(kind);
  }
  return kinds;
}

std::string LayerChoice::Text() const {
  std::string text;
  for (std::size_t i = 0; i < kLayers; ++i) {
    if (!shown_.test(i)) continue;
    if (!text.empty()) text += ' ';
    text += kNames[i];
  }
  return text;
}

LayerChoice LayerChoice::FromText(std::string_view text) {
  LayerChoice choice = None();
  while (!text.empty()) {
    const std::size_t end = text.find(' ');
    const std::string_view name = text.substr(0, end);
    for (std::size_t i = 0; i < kLayers; ++i) {
      if (kNames[i] == name) choice.shown_.set(i);
    }
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return choice;
}

Layer LayerOf(ZoneKind kind) {
  switch (kind) {
    case ZoneKind::Danger:
      return Layer::Danger;
    case ZoneKind::Mining:
      return Layer::Mining;
    case ZoneKind::Asteroids:
      return Layer::Asteroids;
    case ZoneKind::Nebula:
      return Layer::Nebulas;
    case ZoneKind::Patrol:
      return Layer::Patrols;
    case ZoneKind::Trade:
      return Layer::TradePaths;
  }
  return Layer::Danger;
}

std::optional<ZoneKind> ShownKind(const Zone& zone, const ZoneKinds& shown) {
  for (const ZoneKind kind : kAllKinds) {
    if (zone.Kinds.Has(kind) && shown.Has(kind)) return kind;
  }
  return std::nullopt;
}

}  // namespace orrerix
