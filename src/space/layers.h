// SPDX-License-Identifier: MIT
// Which of the map's layers are shown.
#pragma once

#include <bitset>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "space/space.h"

namespace orrerix {

enum class Layer {
  Bodies,
  Gates,
  Wrecks,
  Platforms,
  ObjectNames,
  Asteroids,
  Nebulas,
  Mining,
  Danger,
  Patrols,
  TradePaths,
  ZoneNames,
  Territories,
  SystemNames,
  Sectors
};
inline constexpr std::size_t kLayers = 15;

// The name of a layer in the settings: "bodies".
std::string_view LayerName(Layer layer);

class LayerChoice {
 public:
  // What a new player sees: the bodies.
  LayerChoice() { Set(Layer::Bodies, true); }
  static LayerChoice None();

  bool Has(Layer layer) const { return shown_.test(static_cast<std::size_t>(layer)); }
  void Set(Layer layer, bool shown) { shown_.set(static_cast<std::size_t>(layer), shown); }
  bool Empty() const { return shown_.none(); }
  bool operator==(const LayerChoice&) const = default;

  // The kinds of zones whose layers are shown.
  ZoneKinds Zones() const;

  // The names of the layers that are shown with blanks between them, and back. Names that are not
  // known are passed over.
  std::string Text() const;
  static LayerChoice FromText(std::string_view text);

 private:
  std::bitset<kLayers> shown_;
};

// The layer that shows a kind of zone.
Layer LayerOf(ZoneKind kind);

// The kind that a zone is drawn as: of those that are shown the first one, danger first. Nothing if
// none is shown.
std::optional<ZoneKind> ShownKind(const Zone& zone, const ZoneKinds& shown);

}  // namespace orrerix
