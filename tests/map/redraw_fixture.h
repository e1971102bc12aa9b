// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "derived/jump_objects.h"
#include "map/redraw.h"
#include "support/universe_fixture.h"

namespace orrerix {

// The map of a universe to which a test adds jumps, lanes and docks.
class Redraw : public UniverseFixture {
 protected:
  Redraw() {
    db.CreateTable(mustWork, JumpNodesTable());
    db.CreateTable(mustWork, TradeLanesTable());
    db.CreateTable(mustWork, DockObjectsTable());
    state.Names.Set({7, 4}, "Lantern");
    state.Names.Set({8, 4}, "Ember");
  }

  void Jump(int type) {
    Add("JumpNodes", {{"nickname", "a"},
                      {"nickname2", "b"},
                      {"MapX1", 7},
                      {"MapY1", 4},
                      {"MapX2", 8},
                      {"MapY2", 4},
                      {"PosX1", 0.5},
                      {"PosY1", 0.5},
                      {"PosX2", 0.25},
                      {"PosY2", 0.75},
                      {"Type", type}});
  }
  // A gate whose first end is odd.
  void GateFrom(int mapX1, const Value& posX1) {
    Add("JumpNodes", {{"nickname", "a"},
                      {"MapX1", mapX1},
                      {"MapY1", 4},
                      {"MapX2", 8},
                      {"MapY2", 4},
                      {"PosX1", posX1},
                      {"PosY1", 0.5},
                      {"PosX2", 0.5},
                      {"PosY2", 0.5},
                      {"Type", kJumpGate}});
  }
  void Lane() {
    Add("TradeLanes", {{"nickname", "a"},
                       {"nickname2", "b"},
                       {"realname", "Jetty"},
                       {"realname2", "Harbour"},
                       {"MapX1", 7},
                       {"MapY1", 4},
                       {"MapX2", 7},
                       {"MapY2", 4},
                       {"PosX1", 0.1},
                       {"PosY1", 0.2},
                       {"PosX2", 0.3},
                       {"PosY2", 0.4}});
  }
  void Dock(std::string_view nickname, std::string_view loadout, int x = 7, int y = 4) {
    Add("DockObjects", {{"nickname", nickname},
                        {"loadout", loadout},
                        {"MapX", x},
                        {"MapY", y},
                        {"PosX", 0.5},
                        {"PosY", 0.5}});
  }

  void Zoom(const ZoomRectangle& rectangle) { state.Zoom.Reset(rectangle); }

  MapDrawing Draw() {
    const MapOptions options =
        switches.value_or(MapOptions::Defaults(state.Zoom.Current().IsZoomed()));
    return DrawMap(universe, state, {formWidth, formHeight, options, measure, panel});
  }

  // Names of the controls in their stacking, runs of the same name once.
  static std::vector<ControlId> Layers(const MapDrawing& drawing) {
    std::vector<ControlId> layers;
    for (const Control& control : drawing.Controls) {
      if (layers.empty() || layers.back() != control.Id) layers.push_back(control.Id);
    }
    return layers;
  }
  static ControlList Named(const MapDrawing& drawing, ControlId id) {
    ControlList found;
    for (const Control& control : drawing.Controls) {
      if (control.Id == id) found.push_back(control);
    }
    return found;
  }

  int formWidth = 24000;
  int formHeight = 18000;
  std::optional<MapOptions> switches;
  MapState state;
  FixedTextMeasure measure;
  FixedLanguage english{Language::English};
  PanelContent panel = PanelTexts(english);
};

inline constexpr ZoomRectangle kTwoCells{7, 4, 8, 4};

}  // namespace orrerix
