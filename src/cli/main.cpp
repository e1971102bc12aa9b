// SPDX-License-Identifier: MIT
// orrerix-cli: the program's answers for scripts.
#include <cstdio>
#include <exception>

#include <fmt/format.h>

#include "cli/help_format.h"
#include "cli/spelling.h"
#include "cli/verbs.h"
#include "platform/console.h"
#include "shell/version.h"

namespace {

using namespace orrerix;

// What a text that stands for nothing was probably meant to be.
std::string Correction(const CLI::App& app, const std::string& unknown) {
  std::vector<std::string> known;
  const bool isOption = unknown.starts_with("-");
  const auto chosen = app.get_subcommands();
  if (isOption) {
    for (const CLI::App* each : {chosen.empty() ? &app : chosen.front(), &app}) {
      for (const CLI::Option* option : each->get_options()) {
        for (const std::string& name : option->get_lnames()) known.push_back("--" + name);
      }
    }
  } else if (chosen.empty()) {
    for (const CLI::App* verb : app.get_subcommands([](const CLI::App*) { return true; })) {
      known.push_back(verb->get_name());
    }
  }
  if (known.empty()) return {};
  // The value of "--option=value" is no part of the name.
  const std::string name = unknown.substr(0, isOption ? unknown.find('=') : std::string::npos);
  return fmt::format("there is no {} '{}'; did you mean '{}'?", isOption ? "option" : "verb", name,
                     MostAlike(name, known));
}

// Prints why the arguments cannot be parsed, or the help that they ask for.
int ExitOnParseError(const CLI::App& app, const CLI::ParseError& error) {
  if (error.get_exit_code() == 0) return app.exit(error);
  for (const std::string& unknown : app.remaining(true)) {
    const std::string correction = Correction(app, unknown);
    if (correction.empty()) continue;
    fmt::print(stderr, "orrerix-cli: {}\n", correction);
    return kWrongUsage;
  }
  app.exit(error);
  return kWrongUsage;
}

int Run(const ProgramArguments& arguments) {
  CLI::App app("The universe of a game folder, for scripts");
  CommonOptions options;
  Verb run;
  app.set_version_flag("--version", "orrerix-cli " + CurrentVersion().Text());
  app.formatter(std::make_shared<HelpFormat>());
  AddText(app, "--database", options.Database,
          "The universe file; default: the one in the save folder")
      ->type_name("FILE");
  app.add_option("--language", options.Language, "Language of captions")
      ->check(CLI::IsMember({"en", "de", "fr"}));
  app.add_option("--on-failure", options.OnFailure, "Answer to every failure question")
      ->check(CLI::IsMember({"ok", "cancel"}));
  app.add_flag("--json", options.Json, "Machine-readable answer");
  app.require_subcommand(1);
  app.fallthrough();
  AddImportVerb(app, options, run);
  AddTableVerbs(app, options, run);
  AddAtlasVerb(app, options, run);
  AddRelationsVerb(app, options, run);
  AddDiffVerb(app, options, run);
  AddWatchVerb(app, options, run);
  AddSceneVerb(app, options, run);
  AddTextVerbs(app, options, run);
  AddHoverVerb(app, options, run);
  AddSearchVerbs(app, options, run);
  AddInfoVerb(app, options, run);
  AddStationVerb(app, options, run);
  AddWayVerb(app, options, run);
  AddTradeVerb(app, options, run);
  AddTravelTimesVerb(app, options, run);
  AddCheckVerb(app, options, run);
#ifdef ORRERIX_WITH_QT
  AddRenderVerb(app, options, run);
#endif
  try {
    app.parse(arguments.Count(), arguments.Texts());
  } catch (const CLI::ParseError& error) {
    return ExitOnParseError(app, error);
  }
  return run();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    UseUtf8Output();
    return Run(ProgramArguments(argc, argv));
  } catch (const WrongUsage& error) {
    fmt::print(stderr, "orrerix-cli: {}\n", error.what());
    return kWrongUsage;
  } catch (const std::exception& error) {
    fmt::print(stderr, "orrerix-cli: {}\n", error.what());
    return kCouldNot;
  }
}
