// SPDX-License-Identifier: MIT
// watch: import again whenever the game's files change.
#include <chrono>
#include <cstdio>
#include <ctime>
#include <memory>
#include <set>

#include <fmt/chrono.h>
#include <fmt/format.h>

#include "check/check.h"
#include "cli/diff_json.h"
#include "cli/interruption.h"
#include "cli/json_text.h"
#include "cli/universe_import.h"
#include "cli/verbs.h"
#include "platform/path_text.h"
#include "shell/game_files_watch.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

using Json = nlohmann::ordered_json;
using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kPause{50};
constexpr std::chrono::seconds kRetryPause{1};

struct WatchArguments {
  std::string Game;
  std::optional<std::string> Log;
  bool Check = false;
};

// How many findings of each severity a check has.
struct FindingCounts {
  std::size_t Errors = 0;
  std::size_t Warnings = 0;
  std::size_t Notes = 0;
};

// What is told of one round.
struct Round {
  std::string Time;
  std::size_t Files = 0;
  ImportAnswer Import;
  std::optional<UniverseDiff> Diff;  // to the round before; nothing in the first one
  std::optional<FindingCounts> Findings;
};

FindingCounts CheckGame(const std::string& game) {
  using check::Severity;
  check::CheckOptions options;
  options.Game = PathOf(game);
  try {
    const check::CheckAnswer answer =
        check::RunCheck(options, [](std::size_t) { return !Interruption::IsAsked(); });
    return {answer.Count(Severity::Error), answer.Count(Severity::Warning),
            answer.Count(Severity::Note)};
  } catch (const check::CannotCheck& error) {
    throw CouldNot(error.what());
  }
}

Json RoundJson(const Round& round) {
  Json json = {{"time", round.Time},
               {"files", round.Files},
               {"seconds", round.Import.Seconds},
               {"log_lines", round.Import.LogEntries.size()},
               {"failures", round.Import.Failures.size()},
               {"summary", round.Diff ? DiffSummaryJson(*round.Diff) : Json(nullptr)}};
  if (const auto& findings = round.Findings) {
    json["findings"] = {
        {"error", findings->Errors}, {"warning", findings->Warnings}, {"note", findings->Notes}};
  }
  return json;
}

std::string DiffText(const UniverseDiff& diff) {
  if (diff.IsEmpty()) return "; no differences";
  const UniverseDiff::Counts counts = diff.RowCounts();
  std::string text = fmt::format("; {} rows added, {} removed, {} changed", counts.Added,
                                 counts.Removed, counts.Changed);
  const std::size_t added = diff.TablesAdded.size();
  const std::size_t removed = diff.TablesRemoved.size();
  if (added > 0) text += fmt::format(", {} tables added", added);
  if (removed > 0) text += fmt::format(", {} tables removed", removed);
  return text;
}

std::string RoundText(const Round& round) {
  std::string text =
      fmt::format("{}  {} {}, {:.2f} seconds, {} log lines, {} failures", round.Time, round.Files,
                  round.Files == 1 ? "file" : "files", round.Import.Seconds,
                  round.Import.LogEntries.size(), round.Import.Failures.size());
  if (round.Diff) text += DiffText(*round.Diff);
  if (const auto& findings = round.Findings) {
    text += fmt::format("; check: {} errors, {} warnings, {} notes", findings->Errors,
                        findings->Warnings, findings->Notes);
  }
  return text;
}

std::string TimeOfDay() {
  return fmt::format("{:%H:%M:%S}", fmt::localtime(std::time(nullptr)));
}

// Files below the game folder that the program itself writes.
std::vector<fs::path> OwnFiles(const CommonOptions& options, const WatchArguments& arguments) {
  std::vector<fs::path> files = {fs::absolute(options.DatabasePath()).lexically_normal()};
  if (arguments.Log) files.push_back(fs::absolute(PathOf(*arguments.Log)).lexically_normal());
  return files;
}

class WatchVerb {
 public:
  WatchVerb(const CommonOptions& options, const WatchArguments& arguments)
      : options_(options),
        arguments_(arguments),
        watch_(fs::absolute(PathOf(arguments.Game)).lexically_normal(),
               OwnFiles(options, arguments)) {}

  // The first round must succeed; a later one is tried again.
  void Run() {
    const UniverseImport first(options_, arguments_.Game, options_.DatabasePath());
    if (arguments_.Log) RequireWritable(*arguments_.Log);
    TellRound(first);
    while (!Interruption::IsAsked()) {
      NoteChanges();
      if (!changed_.empty() && Clock::now() >= notBefore_) TryRound();
      watch_.Wait(kPause);
    }
  }

 private:
  void NoteChanges() {
    const auto files = watch_.TakeRound(Clock::now());
    if (!files) return;
    changed_.insert(files->begin(), files->end());
    notBefore_ = {};
  }

  void TryRound() {
    try {
      TellRound(UniverseImport(options_, arguments_.Game, options_.DatabasePath()));
      obstacle_.clear();
    } catch (const CouldNot& error) {
      notBefore_ = Clock::now() + kRetryPause;
      if (obstacle_ != error.what()) fmt::print(stderr, "orrerix-cli: {}\n", error.what());
      obstacle_ = error.what();
    }
  }

  void TellRound(const UniverseImport& universe) {
    Round round{TimeOfDay(), changed_.size(), universe.Run(false, Interruption::IsAsked), {}, {}};
    if (arguments_.Check && !Interruption::IsAsked()) round.Findings = CheckGame(arguments_.Game);
    if (Interruption::IsAsked()) return;
    if (arguments_.Log) WriteFile(*arguments_.Log, LogText(round.Import.LogEntries));
    if (!round.Import.IsFinished) {
      throw CouldNot("the import was given up; the universe file is as it was");
    }
    StopOnFailure stop;
    auto tables = ReadAllTables(stop, OpenFinishedFile(universe.Target()));
    if (before_) round.Diff = CompareUniverses(*before_, tables);
    before_ = std::move(tables);
    changed_.clear();
    Print(round);
  }

  void Print(const Round& round) const {
    if (options_.Json) {
      fmt::print("{}\n", RoundJson(round).dump(-1, ' ', false, Json::error_handler_t::replace));
    } else {
      fmt::print("{}\n", RoundText(round));
    }
    std::fflush(stdout);
  }

  const CommonOptions& options_;
  const WatchArguments& arguments_;
  GameFilesWatch watch_;
  std::optional<std::vector<StoredTable>> before_;  // of the round before
  std::set<fs::path> changed_;                      // since the last round that was told
  Clock::time_point notBefore_{};                   // for another attempt
  std::string obstacle_;                            // that was told last
};

int RunWatch(const CommonOptions& options, const WatchArguments& arguments) {
  if (!options.Database) throw WrongUsage("watch needs --database FILE");
  const Interruption interruption;
  WatchVerb(options, arguments).Run();
  return kDone;
}

}  // namespace

void AddWatchVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  auto arguments = std::make_shared<WatchArguments>();
  CLI::App* verb =
      app.add_subcommand("watch", "Build the universe file anew whenever the game's files change");
  verb->add_option("--game", arguments->Game, "The game's folder")->required()->type_name("DIR");
  AddText(*verb, "--log", arguments->Log, "File for the data log of the last round")
      ->type_name("FILE");
  verb->add_flag("--check", arguments->Check, "Check the game's files, too, as check does");
  verb->footer(
      "Needs --database, the universe file that it writes. Ends on an interrupt (Ctrl+C).");
  verb->callback([&options, &run, arguments] {
    run = [&options, arguments] { return RunWatch(options, *arguments); };
  });
}

}  // namespace orrerix
