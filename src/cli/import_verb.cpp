// SPDX-License-Identifier: MIT
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <memory>
#include <optional>
#include <utility>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "cli/cli_host.h"
#include "cli/verbs.h"
#include "derived/stages.h"
#include "import/import_driver.h"
#include "platform/folder_lock.h"
#include "shell/startup.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

struct ImportOptions {
  std::string Game;
  std::optional<std::string> Log;
  bool Strict = false;
  bool Quiet = false;
};

// A folder beside a universe file that an import works in; it goes with everything in it.
class WorkFolder {
 public:
  explicit WorkFolder(const fs::path& target) : path_(target.string() + ".import") {
    std::error_code error;
    fs::create_directory(path_, error);
    lock_ = FolderLock::TryHold(path_);
    if (!lock_) {
      throw CouldNot(fmt::format("the universe file '{}' is being imported by another process",
                                 target.string()));
    }
    if (!fs::is_directory(path_, error)) {
      throw CouldNot(fmt::format("cannot make the folder '{}'", path_.string()));
    }
    // What a killed import left behind.
    for (const auto& entry : fs::directory_iterator(path_, error)) {
      fs::remove_all(entry.path(), error);
    }
  }
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;
  ~WorkFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }

  const fs::path& Path() const { return path_; }

 private:
  fs::path path_;
  std::optional<FolderLock> lock_;
};

class ImportVerb {
 public:
  ImportVerb(const CommonOptions& options, const ImportOptions& import)
      : options_(options), import_(import), messages_(options), log_(messages_, CurrentVersion()) {}

  int Run() {
    const auto start = std::chrono::steady_clock::now();
    const fs::path target = RequireTarget();
    const auto lock = RequireUnused(target);
    RequireLogFile();
    const bool finished = Import(target);
    seconds_ = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    WriteLog();
    if (!finished) throw CouldNot("the import was given up; the universe file is not usable");
    options_.Json ? PrintJson(target) : PrintText(target);
    const bool found = !log_.DataLines().empty() || !log_.Failures().empty();
    return import_.Strict && found ? kStrictFound : kDone;
  }

 private:
  fs::path RequireTarget() const {
    const GameFolder game(GameText());
    if (!game.FindFile(game.Text() + "\\exe\\freelancer.ini")) {
      throw CouldNot(fmt::format("'{}' is no game folder: there is no exe/freelancer.ini in it",
                                 import_.Game));
    }
    fs::path target = fs::absolute(options_.DatabasePath()).lexically_normal();
    std::error_code error;
    fs::create_directories(target.parent_path(), error);
    if (!fs::is_directory(target.parent_path(), error)) {
      throw CouldNot(fmt::format("cannot make the folder '{}'", target.parent_path().string()));
    }
    return target;
  }

  // The window imports in the folder of its own universe file, and holds that folder meanwhile.
  static FolderLock RequireUnused(const fs::path& target) {
    const auto inUse = [&target] {
      return CouldNot(
          fmt::format("the universe file '{}' is being used by another process", target.string()));
    };
    FolderLock unlocked;
    if (target == UniverseFileIn(target.parent_path())) {
      auto lock = FolderLock::TryHold(target.parent_path());
      if (!lock) throw inUse();
      unlocked = std::move(*lock);
    }
    std::error_code ignored;
    if (!fs::exists(target, ignored)) return unlocked;
    class InUse : public FailureSink {
     public:
      bool Is = false;
      void Fail(const Failure& failure) override {
        Is = Is || failure.Number == failure_number::kFileInUse;
      }
    } probe;
    DBEngine::OpenDatabase(probe, target);
    if (probe.Is) throw inUse();
    return unlocked;
  }

  std::string GameText() const {
    std::string text = import_.Game;
    while (text.size() > 1 && (text.back() == '/' || text.back() == '\\')) text.pop_back();
    return text;
  }

  // Works in a folder beside the target, so that files of the import's own names never meet
  // others, and an older universe file is replaced only by a finished one.
  bool Import(const fs::path& target) {
    const WorkFolder work(target);
    const GameFolder game(GameText());
    CliHost host(messages_, import_.Quiet);
    ImportResult result;
    try {
      result = ImportGame(log_, host, database_,
                          {game, work.Path(), JetVersionOption::Version30, CurrentVersion()},
                          DerivedStages());
    } catch (const ImportEnded&) {
      // The answer to the question about memory was to abort.
    }
    counts_ = std::move(result.Tables);
    database_.Close();
    if (!result.Finished || !IsStamped()) return false;
    std::error_code error;
    fs::rename(UniverseFileIn(work.Path()), target, error);
    return !error;
  }

  // A failure that was passed over may have kept the last table from being written.
  bool IsStamped() const {
    return std::any_of(counts_.begin(), counts_.end(), [](const TableCount& count) {
      return count.Name == "Version" && count.Rows > 0;
    });
  }

  // Asked for before the import, so that none is made in vain.
  void RequireLogFile() const {
    if (import_.Log) OpenLogFile(std::ios::app);
  }

  std::ofstream OpenLogFile(std::ios::openmode mode) const {
    std::ofstream file(*import_.Log, std::ios::binary | mode);
    if (!file) throw CouldNot(fmt::format("cannot write '{}'", *import_.Log));
    return file;
  }

  void WriteLog() const {
    if (!import_.Log) {
      if (options_.Json) return;
      for (const std::string& line : log_.DataLines()) fmt::print("{}\n", line);
      return;
    }
    std::ofstream file = OpenLogFile(std::ios::trunc);
    for (const std::string& line : log_.DataLines()) file << line << '\n';
    if (!file.flush()) throw CouldNot(fmt::format("cannot write '{}'", *import_.Log));
  }

  void PrintJson(const fs::path& target) const {
    nlohmann::ordered_json answer;
    answer["database"] = target.string();
    // By index an ordered object looks through all its keys, of which there may be thousands.
    nlohmann::ordered_json::object_t tables;
    for (const TableCount& count : counts_) {
      tables.std::vector<nlohmann::ordered_json::object_t::value_type>::emplace_back(count.Name,
                                                                                     count.Rows);
    }
    answer["tables"] = std::move(tables);
    answer["log_lines"] = log_.DataLines().size();
    answer["failures"] = nlohmann::ordered_json::array();
    for (const FailureEntry& entry : log_.Failures()) {
      answer["failures"].push_back({{"source", entry.Source},
                                    {"info", entry.Info},
                                    {"number", entry.What.Number},
                                    {"description", entry.What.Description}});
    }
    answer["seconds"] = seconds_;
    fmt::print("{}\n",
               answer.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
  }

  void PrintText(const fs::path& target) const {
    for (const TableCount& count : counts_) fmt::print("{:<32}{:>8}\n", count.Name, count.Rows);
    fmt::print("{} log lines, {} failures, {:.2f} seconds: {}\n", log_.DataLines().size(),
               log_.Failures().size(), seconds_, target.string());
  }

  const CommonOptions& options_;
  const ImportOptions& import_;
  PolicyMessageBoxes messages_;
  ErrorLog log_;
  Database database_;
  std::vector<TableCount> counts_;
  double seconds_ = 0;
};

}  // namespace

void AddImportVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  auto import = std::make_shared<ImportOptions>();
  CLI::App* verb = app.add_subcommand("import", "Build the universe file anew");
  verb->add_option("--game", import->Game, "The game's folder")->required();
  AddText(*verb, "--log", import->Log, "File for the lines of the data log");
  verb->add_flag("--strict", import->Strict, "Exit code 3 if there is a log line or a failure");
  verb->add_flag("--quiet", import->Quiet, "No progress");
  verb->callback([&options, &run, import] {
    run = [&options, import] { return ImportVerb(options, *import).Run(); };
  });
}

}  // namespace orrerix
