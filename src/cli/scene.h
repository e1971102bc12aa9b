// SPDX-License-Identifier: MIT
// One picture of the map as the command line's arguments ask for it.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/options.h"
#include "map/redraw.h"

namespace orrerix {

// A gesture on the map, played before the list is made: a drag with the left button, or a right
// click.
struct Drag {
  float X1;
  float Y1;
  float X2;
  float Y2;
};
struct Back {};
using Gesture = std::variant<Drag, Back>;

// The arguments, as they were given. An empty text is one that was given.
struct SceneOptions {
  std::string Size = "24000x18000";
  std::optional<std::string> Zoom;
  std::optional<std::string> Switches;
  bool Print = false;
  std::vector<Gesture> Gestures;     // in their order
  std::optional<std::string> Hover;  // nickname of the object under the mouse
  std::optional<std::string> Info;   // "TYPE:NICKNAME" of the large info box
};

// Adds the options that scene and render share.
void AddSceneOptions(CLI::App& verb, SceneOptions& scene);

// Adds those of the mouse and the boxes. Gestures are not in `scene` before ReadGestures was called
// on the parsed verb, which throws WrongUsage for a drag that is not four whole numbers.
void AddMouseOptions(CLI::App& verb, SceneOptions& scene);
void ReadGestures(const CLI::App& verb, SceneOptions& scene);

// A width and a height out of "WxH", both at least 0. Throws WrongUsage.
struct Extent {
  int Width;
  int Height;
};
Extent ParseExtent(const std::string& text);

// The outer size of a form, twips. No window is wider or higher than 32767 pixels of 15 twips; a
// larger one would be filled with tiles without end, and throws WrongUsage too.
Extent ParseFormSize(const std::string& text);

struct Scene {
  Extent Form;
  ZoomRectangle Visible;
  std::size_t Depth = 0;
  MapDrawing Drawing;
};

// Draws the map of a universe with the fixed text measure. Throws WrongUsage for a rectangle beyond
// the grid or with its ends swapped, and for switches that are not six digits 0 or 1; CouldNot if
// the object under the mouse has no icon.
Scene DrawScene(Universe& universe, const CommonOptions& options, const SceneOptions& words);

}  // namespace orrerix
