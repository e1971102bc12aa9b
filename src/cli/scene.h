// SPDX-License-Identifier: MIT
// One picture of the map as the command line's words ask for it.
#pragma once

#include <optional>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/options.h"
#include "map/redraw.h"

namespace orrerix {

// The words, as they were given.
struct SceneOptions {
  std::string Size = "24000x18000";
  std::string Zoom;
  std::string Switches;
  bool Print = false;
};

// Adds the options that scene and render share.
void AddSceneOptions(CLI::App& verb, SceneOptions& scene);

// A width and a height out of "WxH", both at least 0. Throws WrongUsage.
struct Extent {
  int Width;
  int Height;
};
Extent ParseExtent(const std::string& text);

struct Scene {
  Extent Form;
  ZoomRectangle Visible;
  std::size_t Depth = 0;
  MapDrawing Drawing;
};

// Draws the map of a universe with the fixed text measure. Throws WrongUsage for a rectangle beyond
// the grid or with its ends swapped, and for switches that are not six digits 0 or 1.
Scene DrawScene(Universe& universe, const CommonOptions& options, const SceneOptions& words);

}  // namespace orrerix
