// SPDX-License-Identifier: MIT
#include "cli/universe_import.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <optional>
#include <utility>

#include <fmt/format.h>

#include "cli/cli_host.h"
#include "derived/stages.h"
#include "import/import_driver.h"
#include "platform/folder_lock.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

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
    // What a killed import left.
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

// The window imports in the folder of its own universe file, and holds that folder meanwhile.
FolderLock RequireUnused(const fs::path& target) {
  const auto inUse = [&target] {
    return CouldNot(
        fmt::format("the universe file '{}' is being used by another process", target.string()));
  };
  FolderLock unlocked;
  if (target.filename() == "Orrerix.fl") {
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

// A failure that was passed over may have kept the last table from being written.
bool IsStamped(const std::vector<TableCount>& counts) {
  return std::any_of(counts.begin(), counts.end(), [](const TableCount& count) {
    return count.Name == "Version" && count.Rows > 0;
  });
}

// CR LF, CR and LF all become LF.
std::string WithSameLineEnds(std::string_view text) {
  std::string same;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isFirstOfTwo = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    if (!isFirstOfTwo) same += text[i] == '\r' ? '\n' : text[i];
  }
  return same;
}

std::ofstream OpenFile(const std::string& path, std::ios::openmode mode) {
  std::ofstream file(path, std::ios::binary | mode);
  if (!file) throw CouldNot(fmt::format("cannot write '{}'", path));
  return file;
}

}  // namespace

UniverseImport::UniverseImport(const CommonOptions& options, std::string game,
                               const fs::path& universeFile)
    : options_(options), game_(std::move(game)) {
  const std::string asGiven = game_;
  while (game_.size() > 1 && (game_.back() == '/' || game_.back() == '\\')) game_.pop_back();
  if (!GameFolder(game_).FindFile(game_ + "\\exe\\freelancer.ini")) {
    throw CouldNot(
        fmt::format("'{}' is no game folder: there is no exe/freelancer.ini in it", asGiven));
  }
  target_ = fs::absolute(universeFile).lexically_normal();
  std::error_code error;
  fs::create_directories(target_.parent_path(), error);
  if (!fs::is_directory(target_.parent_path(), error)) {
    throw CouldNot(fmt::format("cannot make the folder '{}'", target_.parent_path().string()));
  }
}

ImportAnswer UniverseImport::Run(bool quiet, const std::function<bool()>& isEnded) const {
  const auto start = std::chrono::steady_clock::now();
  const auto lock = RequireUnused(target_);
  PolicyMessageBoxes messages(options_);
  ErrorLog log(messages, CurrentVersion());
  Database database;
  ImportAnswer answer;
  // The files of the import's own names never meet others in a folder of their own.
  const WorkFolder work(target_);
  const GameFolder game(game_);
  {
    CliHost host(messages, quiet, isEnded);
    try {
      ImportResult result = ImportGame(
          log, host, database, {game, work.Path(), JetVersionOption::Version30, CurrentVersion()},
          DerivedStages());
      answer.IsFinished = result.Finished && IsStamped(result.Tables);
      answer.Tables = std::move(result.Tables);
    } catch (const ImportEnded&) {
      // The answer to the question about memory was to abort, or the import is wanted no more.
    }
  }
  database.Close();
  if (answer.IsFinished) {
    std::error_code error;
    fs::rename(work.Path() / "Orrerix.fl", target_, error);
    answer.IsFinished = !error;
  }
  for (const std::string& line : log.DataLines()) {
    answer.LogEntries.push_back(WithSameLineEnds(line));
  }
  answer.Failures = log.Failures();
  answer.Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  return answer;
}

std::string LogText(const std::vector<std::string>& entries) {
  std::string text;
  for (const std::string& entry : entries) text += entry + '\n';
  return text;
}

void WriteFile(const std::string& path, const std::string& text) {
  std::ofstream file = OpenFile(path, std::ios::trunc);
  file << text;
  if (!file.flush()) throw CouldNot(fmt::format("cannot write '{}'", path));
}

void RequireWritable(const std::string& path) {
  OpenFile(path, std::ios::app);
}

}  // namespace orrerix
