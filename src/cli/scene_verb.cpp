// SPDX-License-Identifier: MIT
#include <memory>

#include <fmt/format.h>

#include "cli/scene_json.h"
#include "cli/verbs.h"

namespace orrerix {
namespace {

// One line a control, for people.
void PrintText(const Scene& scene) {
  for (const Control& control : scene.Drawing.Controls) {
    const std::string index = control.Index ? fmt::format("({})", *control.Index) : "";
    if (control.Kind == ControlKind::Line) {
      fmt::print("{}{} {},{} - {},{} {}\n", control.Name, index, control.Ends.X1, control.Ends.Y1,
                 control.Ends.X2, control.Ends.Y2, control.Tag.value_or(""));
    } else {
      fmt::print("{}{} {},{} {}x{} {}\n", control.Name, index, control.Place.Left,
                 control.Place.Top, control.Place.Width, control.Place.Height,
                 control.Caption.value_or(""));
    }
  }
}

int RunScene(const CommonOptions& options, const SceneOptions& words) {
  ParseExtent(words.Size);
  Database database = OpenUniverse(options);
  PolicyMessageBoxes messages(options);
  ErrorLog log(messages, CurrentVersion());
  Universe universe{log, database};
  const Scene scene = DrawScene(universe, options, words);
  if (options.Json) {
    fmt::print("{}\n", SceneJson(scene).dump(
                           2, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
  } else {
    PrintText(scene);
  }
  return kDone;
}

}  // namespace

void AddSceneVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  auto words = std::make_shared<SceneOptions>();
  CLI::App* verb = app.add_subcommand("scene", "The drawing list of the map, in twips");
  AddSceneOptions(*verb, *words);
  AddMouseOptions(*verb, *words);
  verb->callback([&options, &run, words, verb] {
    ReadGestures(*verb, *words);
    run = [&options, words] { return RunScene(options, *words); };
  });
}

}  // namespace orrerix
