// SPDX-License-Identifier: MIT
#include "shell/files.h"

#include <string_view>

#include <fmt/format.h>

#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

void Report(FailureSink& routine, std::string_view what, const fs::path& path,
            const std::error_code& error) {
  routine.Fail(
      {failure_number::kPathFileAccess, fmt::format("Path/File access error: cannot {} '{}': {}",
                                                    what, TextOf(path), error.message())});
}

}  // namespace

bool FileExists(FailureSink& routine, const fs::path& path) {
  std::error_code error;
  const bool exists = fs::exists(SystemPath(path), error);
  if (error) Report(routine, "look at", path, error);
  return exists;
}

void DeleteFile(FailureSink& routine, const fs::path& path) {
  std::error_code error;
  fs::remove(SystemPath(path), error);
  if (error) Report(routine, "delete", path, error);
}

void RenameFile(FailureSink& routine, const fs::path& from, const fs::path& to) {
  std::error_code error;
  fs::rename(SystemPath(from), SystemPath(to), error);
  if (error) Report(routine, "rename", from, error);
}

void BuildWhole(FailureSink& routine, const ErrorLog& log, const fs::path& path,
                const std::function<void(const fs::path&)>& build) {
  fs::path begun = path;
  begun += ".new";
  fs::path journal = begun;
  journal += "-journal";
  DeleteFile(routine, begun);
  DeleteFile(routine, journal);
  const std::size_t failures = log.Failures().size();
  build(begun);
  if (log.Failures().size() == failures) RenameFile(routine, begun, path);
  DeleteFile(routine, begun);
  DeleteFile(routine, journal);
}

bool MakeFolder(FailureSink& routine, const fs::path& folder) {
  std::error_code error;
  fs::create_directories(SystemPath(folder), error);
  std::error_code ignored;
  const bool isThere = fs::is_directory(SystemPath(folder), ignored);
  if (!isThere) Report(routine, "make the folder", folder, error);
  return isThere;
}

}  // namespace orrerix
