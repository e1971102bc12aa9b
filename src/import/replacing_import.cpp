// SPDX-License-Identifier: MIT
#include "import/replacing_import.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <fmt/format.h>

#include "platform/folder_lock.h"
#include "platform/path_text.h"
#include "shell/startup.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

fs::path BesideOf(const fs::path& target) {
  fs::path folder = target;
  return SystemPath(folder += ".import");
}

// A folder beside a universe file that an import works in; it goes with everything in it.
class WorkFolder {
 public:
  explicit WorkFolder(const fs::path& target) : path_(BesideOf(target)) {
    std::error_code error;
    fs::create_directory(path_, error);
    lock_ = FolderLock::TryHold(path_);
    if (!lock_) {
      throw CannotReplace(fmt::format("the universe file '{}' is being imported by another process",
                                      TextOf(target)));
    }
    if (!fs::is_directory(path_, error)) {
      throw CannotReplace(fmt::format("cannot make the folder '{}'", TextOf(path_)));
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
    return CannotReplace(
        fmt::format("the universe file '{}' is being used by another process", TextOf(target)));
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

// A failure that was passed over may have kept the last table from being written.
bool IsStamped(const std::vector<TableCount>& counts) {
  return std::any_of(counts.begin(), counts.end(), [](const TableCount& count) {
    return count.Name == "Version" && count.Rows > 0;
  });
}

}  // namespace

ImportResult ReplaceUniverse(ErrorLog& log, ImportHost& host, const ReplacementOrder& order,
                             const std::vector<DerivedStage>& stages) {
  const FolderLock lock = RequireUnused(order.Target);
  // The files of the import's own names never meet others in a folder of their own.
  const WorkFolder work(order.Target);
  ImportResult result;
  {
    Database database;
    try {
      result = ImportGame(log, host, database,
                          {order.Game, work.Path(), order.Format, order.Version}, stages);
    } catch (const ImportEnded&) {
      // The user aborted for lack of memory, or cancelled the import.
    }
    database.Close();
  }
  if (!result.Finished || !IsStamped(result.Tables)) return {};
  std::error_code error;
  fs::rename(UniverseFileIn(work.Path()), order.Target, error);
  if (error) {
    throw CannotReplace(fmt::format("cannot put the new universe file in the place of '{}': {}",
                                    TextOf(order.Target), error.message()));
  }
  return result;
}

}  // namespace orrerix
