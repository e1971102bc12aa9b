// SPDX-License-Identifier: MIT
// diff: what is different between two universes.
#include <memory>

#include <fmt/format.h>

#include "cli/diff_json.h"
#include "cli/json_text.h"
#include "cli/temporary_folder.h"
#include "cli/universe_import.h"
#include "cli/verbs.h"
#include "db/values/text.h"
#include "diff/report.h"
#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

struct DiffArguments {
  std::string Old;
  std::string New;
  std::optional<std::string> Tables;
  bool Markdown = false;
  bool Html = false;
  bool FailOnDifference = false;
};

std::vector<StoredTable> ReadFile(const fs::path& path) {
  StopOnFailure stop;
  return ReadAllTables(stop, OpenFinishedFile(path));
}

// A game folder is imported first, whatever fails in it.
std::vector<StoredTable> ReadSide(const CommonOptions& options, const std::string& path) {
  std::error_code error;
  if (!fs::is_directory(PathOf(path), error)) return ReadFile(PathOf(path));
  CommonOptions answeredOk = options;
  answeredOk.OnFailure = "ok";
  const TemporaryFolder folder;
  const UniverseImport import(answeredOk, path, folder.Path() / "universe.fl");
  if (!import.Run(false).IsFinished) {
    throw CouldNot(fmt::format("the game folder '{}' could not be imported", path));
  }
  return ReadFile(import.Target());
}

// The names asked for, in lower case. Throws CouldNot for a table that neither side has.
std::optional<std::set<std::string>> WantedTables(const DiffArguments& arguments,
                                                  const std::vector<StoredTable>& old,
                                                  const std::vector<StoredTable>& now) {
  if (!arguments.Tables) return std::nullopt;
  std::vector<std::string> known;
  std::set<std::string> folded;
  for (const auto* side : {&now, &old}) {
    for (const StoredTable& table : *side) {
      known.push_back(table.Definition.Name);
      folded.insert(FoldAscii(table.Definition.Name));
    }
  }
  std::set<std::string> wanted;
  for (const std::string& name : SplitList(*arguments.Tables)) {
    if (!folded.contains(FoldAscii(name))) throw NoSuch("table", name, known);
    wanted.insert(FoldAscii(name));
  }
  return wanted;
}

// The last part of a path, as people call a file or folder.
std::string TitleOf(const std::string& path) {
  const fs::path absolute = fs::absolute(PathOf(path)).lexically_normal();
  return TextOf((absolute.has_filename() ? absolute : absolute.parent_path()).filename());
}

std::string ReportText(const DiffArguments& arguments, const UniverseDiff& diff,
                       const NameBook& names) {
  const Report report = MakeReport(diff, names, TitleOf(arguments.Old), TitleOf(arguments.New));
  if (arguments.Markdown) return MarkdownReport(report);
  return arguments.Html ? HtmlReport(report) : PlainReport(report);
}

int RunDiff(const CommonOptions& options, const DiffArguments& arguments) {
  if (options.Json + arguments.Markdown + arguments.Html > 1) {
    throw WrongUsage("only one of --json, --markdown and --html can be given");
  }
  const std::vector<StoredTable> old = ReadSide(options, arguments.Old);
  const std::vector<StoredTable> now = ReadSide(options, arguments.New);
  const UniverseDiff diff = CompareUniverses(old, now, WantedTables(arguments, old, now));
  if (options.Json) {
    PrintJson(DiffJson(diff));
  } else {
    NameBook names;
    names.Learn(now);
    names.Learn(old);
    fmt::print("{}", ReportText(arguments, diff, names));
  }
  return arguments.FailOnDifference && !diff.IsEmpty() ? kDifferent : kDone;
}

}  // namespace

void AddDiffVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  auto arguments = std::make_shared<DiffArguments>();
  CLI::App* verb = app.add_subcommand("diff", "What is different between two universes");
  verb->add_option("OLD", arguments->Old, "Universe file or game folder")->required();
  verb->add_option("NEW", arguments->New, "Universe file or game folder")->required();
  AddText(*verb, "--tables", arguments->Tables, "Only these tables")->type_name("A,B,...");
  verb->add_flag("--markdown", arguments->Markdown, "Answer in Markdown");
  verb->add_flag("--html", arguments->Html, "Answer as an HTML document");
  verb->add_flag("--fail-on-difference", arguments->FailOnDifference,
                 "Exit code 3 if there is any difference");
  verb->footer(
      "Only one of --json, --markdown and --html can be given; without them the answer is text.");
  verb->callback([&options, &run, arguments] {
    run = [&options, arguments] { return RunDiff(options, *arguments); };
  });
}

}  // namespace orrerix
