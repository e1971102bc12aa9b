// SPDX-License-Identifier: MIT
// orrerix-cli: the program's answers for scripts.
#include <cstdio>
#include <exception>

#include <fmt/format.h>

#include "cli/verbs.h"
#include "shell/version.h"

namespace {

using namespace orrerix;

int Run(int argc, char** argv) {
  CLI::App app("The universe of a game folder, for scripts");
  CommonOptions options;
  Verb run;
  app.set_version_flag("--version", "orrerix-cli " + CurrentVersion().Text());
  app.add_option("--database", options.Database, "The universe file");
  app.add_option("--language", options.Language, "Language of captions")
      ->check(CLI::IsMember({"en", "de", "fr"}));
  app.add_option("--on-failure", options.OnFailure, "Answer to every failure question")
      ->check(CLI::IsMember({"ok", "cancel"}));
  app.add_flag("--json", options.Json, "Machine-readable answer");
  app.require_subcommand(1);
  app.fallthrough();
  AddImportVerb(app, options, run);
  AddSceneVerb(app, options, run);
  AddTextVerbs(app, options, run);
  AddHoverVerb(app, options, run);
  AddSearchVerbs(app, options, run);
  AddInfoVerb(app, options, run);
  AddStationVerb(app, options, run);
#ifdef ORRERIX_WITH_QT
  AddRenderVerb(app, options, run);
#endif
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kDone : kWrongUsage;
  }
  return run();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const WrongUsage& error) {
    fmt::print(stderr, "orrerix-cli: {}\n", error.what());
    return kWrongUsage;
  } catch (const std::exception& error) {
    fmt::print(stderr, "orrerix-cli: {}\n", error.what());
    return kCouldNot;
  }
}
