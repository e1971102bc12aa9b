// SPDX-License-Identifier: MIT
// import: build the universe file.
#include <memory>
#include <optional>

#include <fmt/format.h>

#include "cli/json_text.h"
#include "cli/universe_import.h"
#include "cli/verbs.h"
#include "platform/path_text.h"

namespace orrerix {
namespace {

using Json = nlohmann::ordered_json;

struct ImportOptions {
  std::string Game;
  std::optional<std::string> Log;
  bool Strict = false;
  bool Quiet = false;
};

Json AnswerJson(const std::string& target, const ImportAnswer& result) {
  Json answer;
  answer["database"] = target;
  Json::object_t tables;
  for (const TableCount& count : result.Tables) AppendMember(tables, count.Name, count.Rows);
  answer["tables"] = std::move(tables);
  answer["log_lines"] = result.LogEntries.size();
  answer["log"] = result.LogEntries;
  answer["failures"] = Json::array();
  for (const FailureEntry& entry : result.Failures) {
    answer["failures"].push_back({{"source", entry.Source},
                                  {"info", entry.Info},
                                  {"number", entry.What.Number},
                                  {"description", entry.What.Description}});
  }
  answer["seconds"] = result.Seconds;
  return answer;
}

void PrintText(const std::string& target, const ImportAnswer& result) {
  for (const TableCount& count : result.Tables) fmt::print("{:<32}{:>8}\n", count.Name, count.Rows);
  fmt::print("{} log lines, {} failures, {:.2f} seconds: {}\n", result.LogEntries.size(),
             result.Failures.size(), result.Seconds, target);
}

// Without a file the log stands in the answer.
void WriteLog(const CommonOptions& options, const ImportOptions& import,
              const ImportAnswer& result) {
  if (import.Log) {
    WriteFile(*import.Log, LogText(result.LogEntries));
  } else if (!options.Json && !import.Quiet) {
    fmt::print("{}", LogText(result.LogEntries));
  }
}

int RunImport(const CommonOptions& options, const ImportOptions& import) {
  const UniverseImport universe(options, import.Game, options.DatabasePath());
  // Checked before the import, which would be in vain otherwise.
  if (import.Log) RequireWritable(*import.Log);
  const ImportAnswer result = universe.Run(import.Quiet);
  WriteLog(options, import, result);
  if (!result.IsFinished) {
    throw CouldNot("the import was given up; the universe file is not usable");
  }
  const std::string target = TextOf(universe.Target());
  if (options.Json) {
    PrintJson(AnswerJson(target, result));
  } else if (!import.Quiet) {
    PrintText(target, result);
  }
  const bool found = !result.LogEntries.empty() || !result.Failures.empty();
  return import.Strict && found ? kStrictFound : kDone;
}

}  // namespace

void AddImportVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  auto import = std::make_shared<ImportOptions>();
  CLI::App* verb = app.add_subcommand("import", "Build the universe file anew");
  verb->add_option("--game", import->Game, "The game's folder")->required()->type_name("DIR");
  AddText(*verb, "--log", import->Log, "File for the entries of the data log")->type_name("FILE");
  verb->add_flag("--strict", import->Strict, "Exit code 3 if there is a log entry or a failure");
  verb->add_flag("--quiet", import->Quiet,
                 "Print nothing but failures, and the answer that --json asks for");
  verb->footer("Writes the universe file (--database).");
  verb->callback([&options, &run, import] {
    run = [&options, import] { return RunImport(options, *import); };
  });
}

}  // namespace orrerix
