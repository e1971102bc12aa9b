// SPDX-License-Identifier: MIT
#include "cli/scene.h"

#include <charconv>
#include <vector>

namespace orrerix {
namespace {

// Whole numbers between separators; throws WrongUsage unless there are just `count` of them.
std::vector<int> ParseNumbers(const std::string& text, char separator, std::size_t count) {
  std::vector<int> numbers;
  const char* at = text.data();
  const char* const end = at + text.size();
  while (at != end) {
    int number = 0;
    const auto [next, error] = std::from_chars(at, end, number);
    if (error != std::errc() || (next != end && *next != separator)) break;
    numbers.push_back(number);
    at = next == end ? end : next + 1;
    if (next != end && at == end) break;  // a separator with nothing behind it
    if (at == end && numbers.size() == count) return numbers;
  }
  throw WrongUsage("'" + text + "' is not " + std::to_string(count) +
                   " whole numbers separated by '" + separator + "'");
}

ZoomRectangle ParseZoom(const std::string& text) {
  if (text.empty()) return {};
  const std::vector<int> sides = ParseNumbers(text, ',', 4);
  const ZoomRectangle rectangle{sides[0], sides[1], sides[2], sides[3]};
  if (!rectangle.IsValid()) {
    throw WrongUsage("the rectangle '" + text + "' does not lie in the grid of columns 0 to 17 "
                     "and rows 0 to 18");
  }
  return rectangle;
}

MapOptions ParseSwitches(const std::string& text, bool zoomed) {
  if (text.empty()) return MapOptions::Defaults(zoomed);
  if (text.size() != kMapSwitches || text.find_first_not_of("01") != std::string::npos) {
    throw WrongUsage("'" + text + "' is not six digits 0 or 1");
  }
  MapOptions options;
  for (std::size_t i = 0; i < options.On.size(); ++i) options.On[i] = text[i] == '1';
  return options;
}

}  // namespace

void AddSceneOptions(CLI::App& verb, SceneOptions& scene) {
  verb.add_option("--size", scene.Size, "Outer size of the form, twips");
  verb.add_option("--zoom", scene.Zoom, "Visible cells: X1,Y1,X2,Y2");
  verb.add_option("--options", scene.Switches, "Six digits for the six display switches");
  verb.add_flag("--print", scene.Print, "As drawn for the printer");
}

Extent ParseExtent(const std::string& text) {
  const std::vector<int> sides = ParseNumbers(text, 'x', 2);
  if (sides[0] < 0 || sides[1] < 0) throw WrongUsage("'" + text + "' is no size");
  return {sides[0], sides[1]};
}

Scene DrawScene(Universe& universe, const CommonOptions& options, const SceneOptions& words) {
  Scene scene{ParseExtent(words.Size), ParseZoom(words.Zoom), 0, {}};
  const MapOptions switches = ParseSwitches(words.Switches, scene.Visible.IsZoomed());
  FixedLanguage texts(options.LanguageNumber());
  MapState state;
  state.Zoom.Reset(scene.Visible);
  state.Names = GetSystemNames(universe, texts);
  state.PrintMode = words.Print;
  const FixedTextMeasure measure;
  const PanelContent panel = PanelTexts(texts);
  scene.Drawing =
      DrawMap(universe, state,
              {scene.Form.Width, scene.Form.Height, switches, measure, panel, "StarMapPic"});
  scene.Depth = state.Zoom.ZoomDepth();
  return scene;
}

}  // namespace orrerix
