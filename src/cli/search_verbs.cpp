// SPDX-License-Identifier: MIT
// search and sellers: the lists of the search panel.
#include <algorithm>
#include <map>
#include <memory>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "cli/json_text.h"
#include "cli/opened_universe.h"
#include "cli/verbs.h"
#include "db/text.h"
#include "info/search.h"

namespace orrerix {
namespace {

const std::map<std::string, SearchType> kSearches = {{"place", SearchType::Place},
                                                     {"ship", SearchType::Ship},
                                                     {"equipment", SearchType::Equipment},
                                                     {"bribe", SearchType::Bribe}};
const std::map<std::string, SearchType> kSold = {
    {"ship", SearchType::Ship}, {"equipment", SearchType::Equipment}, {"bribe", SearchType::Bribe}};

void AnswerRows(const CommonOptions& options, const std::vector<SearchRow>& rows) {
  if (!options.Json) {
    for (const SearchRow& row : rows) fmt::print("{}\t{}\n", row.Nickname, row.RealName);
    return;
  }
  nlohmann::ordered_json answer = nlohmann::ordered_json::array();
  for (const SearchRow& row : rows) {
    answer.push_back({{"nickname", row.Nickname}, {"realname", row.RealName}});
  }
  PrintJson(answer);
}

int RunSearch(const CommonOptions& options, SearchType type, const std::string& text) {
  OpenedUniverse universe(options);
  AnswerRows(options, Search(universe.Data, type, text));
  return kDone;
}

int RunSellers(const CommonOptions& options, SearchType type, const std::string& nickname) {
  OpenedUniverse universe(options);
  const std::vector<SearchRow> listed = Search(universe.Data, type, "");
  const auto row = std::find_if(listed.begin(), listed.end(), [&](const SearchRow& each) {
    return Ucase(each.Nickname) == Ucase(nickname);
  });
  if (row == listed.end()) throw CouldNot("the search panel lists no '" + nickname + "'");
  AnswerRows(options, SellersOf(universe.Data, type, *row));
  return kDone;
}

// A verb with a kind of search and a text.
template <typename Answer>
void AddVerb(CLI::App& app, const CommonOptions& options, Verb& run, const char* name,
             const char* help, const std::map<std::string, SearchType>& kinds, const char* word,
             Answer answer) {
  struct Words {
    std::string Kind;
    std::string Text;
  };
  auto words = std::make_shared<Words>();
  CLI::App* verb = app.add_subcommand(name, help);
  verb->add_option("KIND", words->Kind, "What is sought")->required()->check(CLI::IsMember(&kinds));
  verb->add_option(word, words->Text)->required();
  verb->callback([&options, &run, &kinds, words, answer] {
    run = [&options, &kinds, words, answer] {
      return answer(options, kinds.at(words->Kind), words->Text);
    };
  });
}

}  // namespace

void AddSearchVerbs(CLI::App& app, const CommonOptions& options, Verb& run) {
  AddVerb(app, options, run, "search", "The rows that the search panel lists", kSearches, "TEXT",
          RunSearch);
  AddVerb(app, options, run, "sellers", "Where it is sold, or the bribe taken", kSold, "NICKNAME",
          RunSellers);
}

}  // namespace orrerix
