// SPDX-License-Identifier: MIT
#include "cli/scene.h"

#include <algorithm>
#include <charconv>

#include "cli/verbs.h"
#include "db/values/text.h"
#include "info/boxes/hover_box.h"
#include "info/boxes/text_info_box.h"
#include "map/gestures.h"

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
    if (next != end && at == end) break;  // a separator with nothing after it
    if (at == end && numbers.size() == count) return numbers;
  }
  throw WrongUsage("'" + text + "' is not " + std::to_string(count) +
                   " whole numbers separated by '" + separator + "'");
}

ZoomRectangle ParseZoom(const std::string& text) {
  const std::vector<int> sides = ParseNumbers(text, ',', 4);
  const ZoomRectangle rectangle{sides[0], sides[1], sides[2], sides[3]};
  if (!rectangle.IsValid()) {
    throw WrongUsage("the rectangle '" + text +
                     "' does not lie in the grid of columns 0 to 17 "
                     "and rows 0 to 18");
  }
  return rectangle;
}

MapOptions ParseSwitches(const std::string& text) {
  if (text.size() != kMapSwitches || text.find_first_not_of("01") != std::string::npos) {
    throw WrongUsage("'" + text + "' is not six digits 0 or 1");
  }
  MapOptions options;
  for (std::size_t i = 0; i < options.On.size(); ++i) options.On[i] = text[i] == '1';
  return options;
}

struct InfoWord {
  InfoType Type;
  std::string Nickname;
};

InfoWord ParseInfo(const std::string& text) {
  const std::size_t colon = text.find(':');
  const auto kind = InfoKinds().find(text.substr(0, colon));
  if (colon == std::string::npos || kind == InfoKinds().end()) {
    throw WrongUsage("'" + text + "' is not ship, equipment or group, a colon and a nickname");
  }
  return {kind->second, text.substr(colon + 1)};
}

// The map through gestures, redrawn as the window would redraw it.
class SceneMap {
 public:
  SceneMap(Universe& universe, const CommonOptions& options, const SceneOptions& words)
      : universe_(universe),
        words_(words),
        form_(ParseFormSize(words.Size)),
        texts_(options.CaptionLanguage()),
        panel_(PanelTexts(texts_)) {
    if (words.Zoom) state_.Zoom.Reset(ParseZoom(*words.Zoom));
    state_.Names = GetSystemNames(universe, texts_);
  }

  Scene Draw() {
    for (const Gesture& gesture : words_.Gestures) Play(gesture);
    state_.PrintMode = words_.Print;
    MapDrawing drawing = Redraw();
    if (words_.Hover) Hover(drawing);
    if (words_.Info) ShowInfo(drawing);
    return {form_, state_.Zoom.Current(), state_.Zoom.ZoomDepth(), std::move(drawing)};
  }

 private:
  MapDrawing Redraw() {
    const MapOptions switches = words_.Switches
                                    ? ParseSwitches(*words_.Switches)
                                    : MapOptions::Defaults(state_.Zoom.Current().IsZoomed());
    return DrawMap(universe_, state_, {form_.Width, form_.Height, switches, measure_, panel_});
  }

  // Every gesture meets a map that was drawn: background tiles stay from one to the next.
  void Play(const Gesture& gesture) {
    const MapDrawing drawing = Redraw();
    MapGestures mouse(universe_.Log, state_);
    if (const Drag* drag = std::get_if<Drag>(&gesture)) {
      mouse.MouseDown(drag->X1, drag->Y1);
      mouse.MouseUp(PointerButton::Left, drawing.Cells, drag->X2, drag->Y2);
    } else {
      mouse.MouseUp(PointerButton::Right, drawing.Cells, 0, 0);
    }
  }

  void Hover(MapDrawing& drawing) {
    const auto icon = std::find_if(drawing.Controls.begin(), drawing.Controls.end(),
                                   [this](const Control& control) {
                                     return control.Id == ControlId::MapIcon &&
                                            Ucase(IconText(control)) == Ucase(*words_.Hover);
                                   });
    if (icon == drawing.Controls.end()) {
      throw CouldNot("the map as it is shown has no icon of '" + *words_.Hover + "'");
    }
    HoverBox hover = OpenHoverBox(universe_, state_.Names, texts_, measure_, drawing, *icon);
    *icon = std::move(hover.Icon);
    for (Control& control : hover.Box) drawing.Controls.push_back(std::move(control));
  }

  // The large box is the hover box in another place; without a text neither is seen.
  void ShowInfo(MapDrawing& drawing) {
    const InfoWord info = ParseInfo(*words_.Info);
    ControlList box = ShowInfoTextType(universe_, Wording{texts_, {}}, measure_, drawing,
                                       info.Nickname, info.Type);
    std::erase_if(drawing.Controls, [&](const Control& control) {
      const bool isShape = control.Id == ControlId::BoxShape;
      if (isShape && !box.empty()) box.front().Subject = control.Subject;
      return isShape || control.Id == ControlId::BoxText;
    });
    for (Control& control : box) drawing.Controls.push_back(std::move(control));
  }

  Universe& universe_;
  const SceneOptions& words_;
  Extent form_;
  FixedLanguage texts_;
  PanelContent panel_;
  FixedTextMeasure measure_;
  MapState state_;
};

}  // namespace

void AddSceneOptions(CLI::App& verb, SceneOptions& scene) {
  verb.add_option("--size", scene.Size, "Outer size of the form, twips");
  AddText(verb, "--zoom", scene.Zoom, "Visible cells: X1,Y1,X2,Y2");
  AddText(verb, "--options", scene.Switches, "Six digits for the six display switches");
  verb.add_flag("--print", scene.Print, "As drawn for the printer");
}

void AddMouseOptions(CLI::App& verb, SceneOptions& scene) {
  verb.add_option("--drag", "Zooms in with the left button: X1,Y1,X2,Y2 in twips; repeatable")
      ->expected(1)
      ->take_all();
  verb.add_flag("--back")->description("Goes back with the right button; repeatable");
  AddText(verb, "--hover", scene.Hover, "Nickname of the object under the mouse");
  AddText(verb, "--info", scene.Info, "The large info box about TYPE:NICKNAME");
}

void ReadGestures(const CLI::App& verb, SceneOptions& scene) {
  std::size_t drags = 0;
  for (const CLI::Option* option : verb.parse_order()) {
    if (option->check_name("--back")) scene.Gestures.emplace_back(Back{});
    if (!option->check_name("--drag")) continue;
    const std::vector<int> ends = ParseNumbers(option->results().at(drags++), ',', 4);
    scene.Gestures.emplace_back(Drag{static_cast<float>(ends[0]), static_cast<float>(ends[1]),
                                     static_cast<float>(ends[2]), static_cast<float>(ends[3])});
  }
}

Extent ParseExtent(const std::string& text) {
  const std::vector<int> sides = ParseNumbers(text, 'x', 2);
  if (sides[0] < 0 || sides[1] < 0) throw WrongUsage("'" + text + "' is no size");
  return {sides[0], sides[1]};
}

Extent ParseFormSize(const std::string& text) {
  constexpr int largest = 32767 * 15;
  const Extent form = ParseExtent(text);
  if (form.Width > largest || form.Height > largest) {
    throw WrongUsage("a form cannot be larger than " + std::to_string(largest) + " twips, as '" +
                     text + "' is");
  }
  return form;
}

Scene DrawScene(Universe& universe, const CommonOptions& options, const SceneOptions& words) {
  return SceneMap(universe, options, words).Draw();
}

}  // namespace orrerix
