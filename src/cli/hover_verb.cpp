// SPDX-License-Identifier: MIT
#include <memory>

#include "cli/opened_universe.h"
#include "cli/verbs.h"
#include "info/texts/hover_text.h"

namespace orrerix {
namespace {

int RunHover(const CommonOptions& options, const std::string& nickname) {
  OpenedUniverse universe(options);
  const CellNames names = GetSystemNames(universe.Data, universe.Texts);
  AnswerText(options,
             HoverText(universe.Data, names, universe.Texts, IconTag(universe.Data, nickname)));
  return kDone;
}

}  // namespace

void AddHoverVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  auto nickname = std::make_shared<std::string>();
  CLI::App* verb = app.add_subcommand("hover", "What the box beside an object's icon says");
  verb->add_option("NICKNAME", *nickname, "The object's nickname")->required();
  verb->callback([&options, &run, nickname] {
    run = [&options, nickname] { return RunHover(options, *nickname); };
  });
}

}  // namespace orrerix
