// SPDX-License-Identifier: MIT
#include <memory>

#include "cli/json_text.h"
#include "cli/opened_universe.h"
#include "cli/scene_json.h"
#include "cli/verbs.h"

namespace orrerix {

namespace {

int RunScene(const CommonOptions& options, const SceneOptions& words) {
  ParseFormSize(words.Size);
  OpenedUniverse universe(options);
  const Scene scene = DrawScene(universe.Data, options, words);
  if (options.Json) {
    PrintJson(SceneJson(scene));
  } else {
    for (const Control& control : scene.Drawing.Controls) PrintControl(control);
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
