// SPDX-License-Identifier: MIT
// name and card: one text by its number.
#include <memory>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "cli/json_text.h"
#include "cli/opened_universe.h"
#include "cli/verbs.h"
#include "import/resources/resource_strings.h"

namespace orrerix {

void AnswerText(const CommonOptions& options, const std::string& text) {
  if (!options.Json) return fmt::print("{}\n", text);
  const nlohmann::json answer = {{"text", text}};
  PrintJson(answer);
}

namespace {

// A verb that looks a number up.
template <typename LookUp>
void AddNumberVerb(CLI::App& app, const CommonOptions& options, Verb& run, const char* name,
                   const char* help, LookUp lookUp) {
  auto number = std::make_shared<std::int32_t>();
  CLI::App* verb = app.add_subcommand(name, help);
  verb->add_option("NUMBER", *number, "The text's number")->required();
  verb->callback([&options, &run, number, lookUp] {
    run = [&options, number, lookUp] {
      OpenedUniverse universe(options);
      AnswerText(options, lookUp(universe.Data, *number));
      return kDone;
    };
  });
}

}  // namespace

void AddTextVerbs(CLI::App& app, const CommonOptions& options, Verb& run) {
  AddNumberVerb(
      app, options, run, "name", "The name of a number",
      [](Universe& universe, std::int32_t number) { return GetName(universe, number, ""); });
  AddNumberVerb(app, options, run, "card", "The info text of a number", GetInfo);
}

}  // namespace orrerix
