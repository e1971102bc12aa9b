// SPDX-License-Identifier: MIT
#include <memory>

#include "cli/opened_universe.h"
#include "cli/verbs.h"

namespace orrerix {

const std::map<std::string, InfoType>& InfoKinds() {
  static const std::map<std::string, InfoType> kinds = {
      {"ship", InfoType::Ship}, {"equipment", InfoType::Equipment}, {"group", InfoType::Group}};
  return kinds;
}

namespace {

int RunInfo(const CommonOptions& options, InfoType type, const std::string& nickname) {
  OpenedUniverse universe(options);
  AnswerText(options, GetInfoTextType(universe.Data, Wording{universe.Texts, {}}, nickname, type));
  return kDone;
}

}  // namespace

void AddInfoVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  struct Words {
    std::string Kind;
    std::string Nickname;
  };
  auto words = std::make_shared<Words>();
  CLI::App* verb = app.add_subcommand("info", "The text of the info box");
  verb->add_option("KIND", words->Kind, "What it is about")
      ->required()
      ->check(CLI::IsMember(&InfoKinds()));
  verb->add_option("NICKNAME", words->Nickname)->required();
  verb->callback([&options, &run, words] {
    run = [&options, words] {
      return RunInfo(options, InfoKinds().at(words->Kind), words->Nickname);
    };
  });
}

}  // namespace orrerix
