// SPDX-License-Identifier: MIT
// search and sellers: the lists of the search panel.
#include <algorithm>
#include <iterator>
#include <map>
#include <memory>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "cli/json_text.h"
#include "cli/opened_universe.h"
#include "cli/verbs.h"
#include "db/values/text.h"
#include "info/search/search.h"

namespace orrerix {
namespace {

// Between nickname and name of a printed row.
constexpr char kBetween = '\t';

const std::map<std::string, SearchType> kSearches = {{"place", SearchType::Place},
                                                     {"ship", SearchType::Ship},
                                                     {"equipment", SearchType::Equipment},
                                                     {"bribe", SearchType::Bribe}};
const std::map<std::string, SearchType> kSold = {
    {"ship", SearchType::Ship}, {"equipment", SearchType::Equipment}, {"bribe", SearchType::Bribe}};

// A row as search prints it.
std::string LineOf(const SearchRow& row) {
  return row.Nickname + kBetween + row.RealName;
}

void AnswerRows(const CommonOptions& options, const std::vector<SearchRow>& rows) {
  if (!options.Json) {
    for (const SearchRow& row : rows) fmt::print("{}\n", LineOf(row));
    return;
  }
  nlohmann::ordered_json answer = nlohmann::ordered_json::array();
  for (const SearchRow& row : rows) {
    answer.push_back({{"nickname", row.Nickname}, {"realname", row.RealName}});
  }
  PrintJson(answer);
}

bool IsEqual(std::string_view a, std::string_view b) {
  return Ucase(a) == Ucase(b);
}

// From all rows of the panel, those that match the text: by nickname, by printed line, or else by
// name.
std::vector<SearchRow> RowsMeant(const std::vector<SearchRow>& listed, const std::string& text) {
  std::vector<SearchRow> rows;
  const auto keep = [&](auto&& isMeant) {
    if (rows.empty()) std::copy_if(listed.begin(), listed.end(), std::back_inserter(rows), isMeant);
  };
  keep([&](const SearchRow& row) { return IsEqual(row.Nickname, text); });
  keep([&](const SearchRow& row) { return IsEqual(LineOf(row), text); });
  keep([&](const SearchRow& row) { return IsEqual(row.RealName, text); });
  return rows;
}

// What the panel lists for a text. Where it lists nothing, the rows that the text names exactly.
int RunSearch(const CommonOptions& options, SearchType type, const std::string& text) {
  OpenedUniverse universe(options);
  std::vector<SearchRow> rows;
  const bool isLine = text.find(kBetween) != std::string::npos;
  if (!isLine) rows = Search(universe.Data, type, text);
  if (rows.empty() && !text.empty()) rows = RowsMeant(Search(universe.Data, type, ""), text);
  AnswerRows(options, rows);
  return kDone;
}

int RunSellers(const CommonOptions& options, SearchType type, const std::string& text) {
  OpenedUniverse universe(options);
  const std::vector<SearchRow> rows = RowsMeant(Search(universe.Data, type, ""), text);
  if (rows.empty()) throw CouldNot("the search panel lists no '" + text + "'");
  AnswerRows(options, SellersOf(universe.Data, type, rows.front()));
  return kDone;
}

// A verb with a kind of search and a text.
template <typename Answer>
void AddVerb(CLI::App& app, const CommonOptions& options, Verb& run, const char* name,
             const char* help, const std::map<std::string, SearchType>& kinds, const char* word,
             const char* about, Answer answer) {
  struct Words {
    std::string Kind;
    std::string Text;
  };
  auto words = std::make_shared<Words>();
  CLI::App* verb = app.add_subcommand(name, help);
  verb->add_option("KIND", words->Kind, "What is sought")->required()->check(CLI::IsMember(&kinds));
  verb->add_option(word, words->Text, about)->required();
  verb->callback([&options, &run, &kinds, words, answer] {
    run = [&options, &kinds, words, answer] {
      return answer(options, kinds.at(words->Kind), words->Text);
    };
  });
}

}  // namespace

void AddSearchVerbs(CLI::App& app, const CommonOptions& options, Verb& run) {
  AddVerb(app, options, run, "search", "The rows that the search panel lists", kSearches, "TEXT",
          "Part of the name, with * and ?; or a nickname", RunSearch);
  AddVerb(app, options, run, "sellers", "Where it is sold, or the bribe taken", kSold, "NICKNAME",
          "What a row of search has: its nickname or its name", RunSellers);
}

}  // namespace orrerix
