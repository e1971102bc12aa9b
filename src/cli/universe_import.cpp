// SPDX-License-Identifier: MIT
#include "cli/universe_import.h"

#include <chrono>
#include <fstream>
#include <utility>

#include <fmt/format.h>

#include "cli/cli_host.h"
#include "derived/stages.h"
#include "import/replacing_import.h"
#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

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
  std::ofstream file(SystemPath(PathOf(path)), std::ios::binary | mode);
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
  fs::create_directories(SystemPath(target_.parent_path()), error);
  if (!fs::is_directory(SystemPath(target_.parent_path()), error)) {
    throw CouldNot(fmt::format("cannot make the folder '{}'", TextOf(target_.parent_path())));
  }
}

ImportAnswer UniverseImport::Run(bool quiet, const std::function<bool()>& isEnded) const {
  const auto start = std::chrono::steady_clock::now();
  PolicyMessageBoxes messages(options_);
  ErrorLog log(messages, CurrentVersion());
  ImportAnswer answer;
  const GameFolder game(game_);
  try {
    CliHost host(messages, quiet, isEnded);
    ImportResult result = ReplaceUniverse(
        log, host, {game, target_, JetVersionOption::Version30, CurrentVersion()}, DerivedStages());
    answer.IsFinished = result.Finished;
    answer.Tables = std::move(result.Tables);
  } catch (const CannotReplace& error) {
    throw CouldNot(error.what());
  }
  answer.LogEntries = log.TakeDataLines();
  for (std::string& line : answer.LogEntries) line = WithSameLineEnds(line);
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
